#pragma once

#include <string>

namespace Ledgrove {

inline constexpr const char* ApplicationTitle = "Ledgrove";

enum class MessageIcon { None, Information, Exclamation, Question };
enum class MessageButtons { Ok, YesNo };
enum class MessageAnswer { Ok, Yes, No };

struct Message {
    std::string Title;
    std::string Text;
    MessageIcon Icon = MessageIcon::None;
    MessageButtons Buttons = MessageButtons::Ok;
};

/// The little that the core asks of the outside. The window shows message boxes, the command line collects
/// them, tests script the answers.
class Host {
public:
    virtual ~Host() = default;

    /// Shows the message and waits for its answer.
    virtual MessageAnswer ShowMessage(const Message& message) = 0;

    /// Lets queued user-interface events run, then comes back.
    virtual void RunPendingEvents() = 0;
};

} // namespace Ledgrove
