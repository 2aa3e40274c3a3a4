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

/// What the core needs from the program around it. The window shows message boxes, the command line collects
/// the messages, and tests script the answers.
class Host {
public:
    virtual ~Host() = default;

    /// Shows the message and waits for its answer.
    virtual MessageAnswer ShowMessage(const Message& message) = 0;

    /// Processes pending user-interface events, then returns.
    virtual void RunPendingEvents() = 0;
};

} // namespace Ledgrove
