#pragma once

#include "tests/settings/TemporaryFolder.h"
#include "tests/ui/EntryDesk.h"
#include "ui/AssumptionsScreen.h"
#include "ui/StartUp.h"

namespace Ledgrove {

/// Starts the program's state from a settings file and fills the dialog from it.
class AssumptionsDesk : public SettingsTest {
protected:
    void Start(std::string_view settings) {
        Given(settings);
        ASSERT_FALSE(Module1::LoadMainScreen(m_session, m_host, Folder()));
        ASSERT_FALSE(Module1::FillAssumptions(m_dialog, m_session));
    }
    void StartShipped() { Start(*ReadBytes(LEDGROVE_SOURCE_DIR "/data/Ledgrove.ini")); }

    std::optional<SettingsFault> Confirm() {
        return Module1::ConfirmAssumptions(m_dialog, m_session, m_host);
    }

    Session m_session;
    AssumptionsScreen m_dialog;
    Testing::ScriptedHost m_host;
    std::vector<std::string> m_log;
    Testing::ScriptedFocus m_focus{m_session, m_log};
    EntryContext m_context{m_session, m_host, m_focus};
};

} // namespace Ledgrove
