#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/batch/InputRecord.h"
#include "engine/Host.h"
#include "engine/Session.h"
#include "engine/ShowResults.h"

namespace Ledgrove {

/// A host without a window. Collects the messages in order and answers Yes to every question.
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

/// Runs comparisons one after another, each from the same start-up state.
class Comparison {
public:
    /// `start` is a session after LoadMainScreen.
    explicit Comparison(Session start);

    /// Enters the inputs as a person would, then recalculates once. Returns the refusal of the first invalid
    /// input, if there is one; do not use State, Messages and DataCheck then.
    std::optional<Refusal> Run(const InputRecord& inputs);

    /// Comparisons are faster if fewer result labels are written.
    void Show(const ShownLabels& shown) { m_shown = shown; }

    const Session& State() const { return m_state; }
    const std::vector<Message>& Messages() const { return m_host.Messages(); }
    /// The text of the data check for the inputs; empty if they are plausible.
    std::string DataCheck() const;

private:
    void Reset();
    std::optional<Refusal> EnterFields(const InputRecord& inputs);
    std::optional<Refusal> EnterConversion(const InputValue& value);
    void NameHouse(const InputValue& name);
    std::optional<Refusal> PickOptions(const InputRecord& inputs);

    Session m_start;
    Session m_state;
    CollectingHost m_host;
    ShownLabels m_shown;
};

} // namespace Ledgrove
