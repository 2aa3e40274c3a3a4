#pragma once

#include "engine/MainScreen.h"
#include "engine/Results.h"
#include "engine/Rules.h"

#include <filesystem>
#include <string>

namespace Ledgrove {

/// The report header as the print options dialog holds it for the run.
struct ReportHeader {
    std::string BuilderName;
    std::string HomeBuyer;                           ///< kept for the run only
    std::string LogoFile = "Full Path To Logo File"; ///< full path; as here while none was ever named
};

/// The whole state of the program in one value: the results of the last recalculation, the rules it went by,
/// and what the windows hold.
struct Session : Results, Rules {
    FeatureTexts Features;
    std::filesystem::path Folder; ///< the program's folder, where its settings, help and pictures lie
    std::string HelpFile;         ///< file name, "" for none
    ReportHeader Header;
    House ChosenHouse; ///< the house scenario last copied to the screen; its amounts tell when a house is
                       ///< "Custom"
    MainScreen Screen;

    /// The main screen's emblem, which the report shows too: a picture file beside the program.
    std::filesystem::path EmblemFile() const { return Folder / "LedgroveEmblem.png"; }
};

} // namespace Ledgrove
