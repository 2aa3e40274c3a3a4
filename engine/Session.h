#pragma once

#include "engine/MainScreen.h"
#include "engine/Results.h"
#include "engine/Rules.h"

#include <filesystem>
#include <string>

namespace Ledgrove {

/// The report header, as set in the print options dialog.
struct ReportHeader {
    std::string BuilderName;
    std::string HomeBuyer;                           ///< not saved
    std::string LogoFile = "Full Path To Logo File"; ///< full path; this text until a logo is chosen
};

/// The whole state of the program: the results of the last recalculation, the rules, and the contents of the
/// windows.
struct Session : Results, Rules {
    FeatureTexts Features;
    std::filesystem::path Folder; ///< the program's folder, which holds its settings, help and pictures
    std::string HelpFile;         ///< file name, "" for none
    ReportHeader Header;
    House ChosenHouse; ///< the house scenario last copied to the screen; other amounts on the screen make the
                       ///< house "Custom"
    MainScreen Screen;

    /// The picture file of the emblem on the main screen and in the report.
    std::filesystem::path EmblemFile() const { return Folder / "LedgroveEmblem.png"; }
};

} // namespace Ledgrove
