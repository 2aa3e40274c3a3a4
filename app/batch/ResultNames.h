#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "engine/Figures.h"
#include "engine/MainScreen.h"
#include "engine/ShowResults.h"

// The names of everything in a result, so that a caller can choose.
namespace Ledgrove {

/// A part of a result that is not in a table of controls or figures.
enum class ResultPart { DownOption, TaxBox, DownAsPercent, YearsInHome, EEMNoticeFlag, Messages, DataCheck };

struct ResultName {
    std::string Member; ///< of the JSON result: "fields", "labels", "StdCase", "messages"
    std::string Key;    ///< inside the member; empty for a member without keys
    std::string Name;   ///< for choosing: "ecIncome", "lblStdQual", "StdCase.PITI", "messages"
    std::string Unit;
    std::string Meaning;
    std::variant<Field MainScreen::*, PickList MainScreen::*, Label MainScreen::*, const FigureEntry*,
                 ResultPart>
        Value;

    /// The heading of a price list's column. A field's has "fields." in front, because the list has a column
    /// of its own for the input.
    std::string Heading() const { return Member == "fields" ? "fields." + Key : Name; }
};

using ChosenNames = std::vector<const ResultName*>;

/// Everything in a result, in the order of the JSON.
const std::vector<ResultName>& ResultNames();

/// Finds a result by its name or its heading; nullptr for any other text.
const ResultName* FindResultName(std::string_view name);

/// Reads names separated by commas into `chosen`. Returns a message for an unknown or repeated name and for
/// an empty list, else "".
std::string ReadResultNames(std::string_view list, ChosenNames& chosen);

/// The groups of labels that these names need; all of them without names.
ShownLabels LabelsFor(const ChosenNames& names);

/// All names with unit and meaning, a line each, in columns.
std::string ResultNameTable();

} // namespace Ledgrove
