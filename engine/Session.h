#pragma once

#include "engine/MainScreen.h"
#include "engine/TypeDeclarations.h"

#include <filesystem>
#include <string>

namespace Ledgrove {

/// The whole state of the program in one value.
struct Session {
    HomeCase StdCase;
    HomeCase GMHCase;
    struct Scenario Scenario;
    AssumptionSet Assumptions;
    LoanTypeList LoanTypes;
    TaxSchedule TaxBrackets;
    FeatureTexts Features;
    std::filesystem::path Folder; ///< the program's folder, where its settings, help and pictures lie
    std::string HelpFile;         ///< file name, "" for none
    std::string LogoFile;         ///< full path, "" for none
    std::string BuilderName;
    House ChosenHouse; ///< the house scenario last copied to the screen; its amounts tell when a house is
                       ///< "Custom"
    MainScreen Screen;
};

} // namespace Ledgrove
