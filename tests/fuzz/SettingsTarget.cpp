// Uses any bytes as a settings file: every reader reads it and every kind of rule rewrites it.

#include "Fuzz.h"

#include "base/Text.h"
#include "settings/AssumptionsFile.h"
#include "settings/HouseListFile.h"
#include "settings/LineSyntax.h"
#include "settings/LoanTypesFile.h"
#include "settings/NotesFile.h"
#include "settings/Rewrite.h"
#include "settings/TaxScheduleFile.h"
#include "settings/Windows1252.h"
#include "settings/YearSettingsFile.h"

#include <variant>

namespace {

using namespace Ledgrove;
using Fuzz::Require;
using Match = RewriteRule::Match;

const SettingsFile& AnyFile() {
    static const SettingsFile file("/folder");
    return file;
}

void ReadAll(const FileLines& lines) {
    TaxSchedule taxes;
    Module1::ReadTaxCats(lines, taxes);
    AssumptionSet assumptions;
    Module1::ReadAssumptions(lines, assumptions);
    const double kept = Module1::ReadYearSettings(lines).PremiumKept;
    Require(kept >= 0 && kept <= 1, "a setting is in its range");
    Require(ReadNotes(lines, std::chrono::year(2026) / 1 / 1).size() <= NotedKeys.size(), "a key has a note");
    LoanTypeList loanTypes;
    if (const auto fault = Module1::ReadLoanTypes(AnyFile(), lines, loanTypes))
        Require(Sentence(*fault).size() < 1000, "a sentence stays short");
    HouseList houses;
    if (const auto fault = Module1::ReadHomeList(AnyFile(), lines, houses))
        Require(Sentence(*fault).size() < 1000, "a sentence stays short");
    for (const std::string_view key : {Key::BuilderName, Key::LogoOption}) {
        if (const auto line = LastLineOf(lines, key)) {
            const std::string_view value = Trimmed(ValueOf(lines[*line].Text, key));
            ToIntegerDown(value);
            const auto back = EncodeWindows1252(DecodeWindows1252(value));
            Require(std::get_if<std::string>(&back) != nullptr && std::get<std::string>(back) == value,
                    "a value comes back as it was read");
        }
    }
}

/// The rewrite plans of the dialogs, one of each kind.
RewritePlan PlanOf(std::uint8_t choice) {
    switch (choice % 5) {
    case 0:
        return {{ReplaceOrAppend(Key::Feature1, "a"), ReplaceOrAppend(Key::Feature2, "b")}, {}};
    case 1:
        return {{DropLines(Key::HomeList), ReplaceOrAppend(Key::HomeSelectionDialog, "CLOSED")}, {}};
    case 2:
        return {{{std::string(Key::TaxCat), Match::ReplaceInTurn, {"TAXCAT=1,1", "TAXCAT=2,2"}, {}}}, {}};
    case 3:
        return {{ReplaceOnly(Key::LogoOption, "1")}, {}};
    default:
        return {{DropLines(Key::LoanType)}, {}};
    }
}

bool IsOwned(const RewritePlan& plan, std::string_view line) {
    return std::any_of(plan.Rules.begin(), plan.Rules.end(),
                       [&](const RewriteRule& rule) { return BelongsTo(line, rule.Key); });
}

std::string UnknownTexts(const RewritePlan& plan, const FileLines& lines) {
    std::string texts;
    for (const FileLine& line : lines) {
        if (!IsOwned(plan, line.Text))
            texts.append(line.Text).append("\n");
    }
    return texts;
}

void CheckRewrite(const RewritePlan& plan, const FileLines& lines) {
    const std::string once = RewrittenBytes(lines, plan);
    const FileLines after = SplitLines(once);
    Require(UnknownTexts(plan, after) == UnknownTexts(plan, lines), "unknown lines keep their bytes");
    Require(RewrittenBytes(after, plan) == once, "a second save changes nothing");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Fuzz::Pieces pieces(Fuzz::TextOf(data, size));
    const RewritePlan plan = PlanOf(pieces.Byte());
    const FileLines lines = SplitLines(pieces.Rest());
    std::string joined;
    for (const FileLine& line : lines)
        joined.append(line.Text).append(line.End);
    Require(joined == pieces.Rest(), "lines and line endings make up the file");
    ReadAll(lines);
    CheckRewrite(plan, lines);
    return 0;
}
