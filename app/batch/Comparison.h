#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/batch/InputRecord.h"
#include "engine/Host.h"
#include "engine/Session.h"

namespace Ledgrove {

/// A host without a window: keeps the messages in order of appearance.
class CollectingHost : public Host {
public:
    MessageAnswer ShowMessage(const Message& message) override {
        m_messages.push_back(message);
        return message.Buttons == MessageButtons::YesNo ? MessageAnswer::Yes : MessageAnswer::Ok;
    }
    void RunPendingEvents() override {}

    const std::vector<Message>& Messages() const { return m_messages; }
    void Clear() { m_messages.clear(); }

private:
    std::vector<Message> m_messages;
};

/// Runs comparisons one after the other, each from the same start-up state.
class Comparison {
public:
    /// `start` is a session as LoadMainScreen leaves it.
    explicit Comparison(Session start);

    /// Enters the inputs as a person would, then recalculates once. The refusal of the first faulty input, if
    /// any; State, Messages and DataCheck then mean nothing.
    std::optional<Refusal> Run(const InputRecord& inputs);

    const Session& State() const { return m_state; }
    const std::vector<Message>& Messages() const { return m_host.Messages(); }
    /// What the data check says of the inputs, "" when they are plausible.
    std::string DataCheck() const;

private:
    void Reset();
    std::optional<Refusal> EnterFields(const InputRecord& inputs);
    std::optional<Refusal> PickOptions(const InputRecord& inputs);

    Session m_start;
    Session m_state;
    CollectingHost m_host;
};

} // namespace Ledgrove
