#pragma once

#include "engine/Recalculate.h"
#include "tests/engine/TestSession.h"
#include "tests/settings/TemporaryFolder.h"
#include "ui/StartUp.h"

// What the tests of the comparison files share.
namespace Ledgrove {

/// A program folder with the shipped settings, and the session as it is right after the start.
class FileTest : public SettingsTest {
protected:
    FileTest() {
        std::filesystem::copy_file(std::filesystem::path(LEDGROVE_SOURCE_DIR) / "data/Ledgrove.ini",
                                   File().Path());
        if (Module1::LoadMainScreen(m_start, m_host, Folder()))
            ADD_FAILURE() << "the shipped settings do not load";
    }

    Session m_start;
    Testing::ScriptedHost m_host;
};

} // namespace Ledgrove
