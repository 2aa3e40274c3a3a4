#pragma once

#include "tests/engine/TestSession.h"
#include "ui/Entry.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Ledgrove::Testing {

/// A scripted keyboard focus that records the requests.
class ScriptedFocus : public EntryFocus {
public:
    ScriptedFocus(const Session& session, std::vector<std::string>& log)
        : m_session(session)
        , m_log(log) {}

    std::string Focused = "ecGMHHome"; ///< the name that the entry rules get

    std::string FocusedControl() const override { return Focused; }
    void ReturnFocusTo(const Field& field) override { m_log.push_back("focus " + NameOf(field)); }
    void SelectFieldText() override { m_log.push_back("select"); }
    void NextField() override { m_log.push_back("next"); }
    void PreviousField() override { m_log.push_back("previous"); }

private:
    std::string NameOf(const Field& field) const {
        for (const auto& entry : FieldTable())
            if (&(m_session.Screen.*entry.Member) == &field)
                return std::string(entry.Name);
        return "another form's field";
    }

    const Session& m_session;
    std::vector<std::string>& m_log;
};

/// The sample comparison with one log of everything that an entry requests: "focus NAME", "message TEXT",
/// "select", "next", and "recalculated" for each time pending events run (once per recalculation on the
/// Welcome tab).
class EntryDesk : public testing::Test {
protected:
    using Log = std::vector<std::string>;

    EntryDesk() {
        m_host.OnMessage = [this](const Message& message) { m_log.push_back("message " + message.Text); };
        m_host.OnPendingEvents = [this] { m_log.push_back("recalculated"); };
    }

    MainScreen& Screen() { return m_session.Screen; }
    void ForgetLog() { m_log.clear(); }

    Session m_session = SampleSession();
    ScriptedHost m_host;
    Log m_log;
    ScriptedFocus m_focus{m_session, m_log};
    EntryContext m_context{m_session, m_host, m_focus};
};

} // namespace Ledgrove::Testing
