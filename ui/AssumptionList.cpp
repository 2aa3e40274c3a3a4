#include "ui/AssumptionList.h"

#include <algorithm>
#include <array>
#include <string>

#include "engine/NumberText.h"
#include "insight/YearsWords.h"
#include "settings/LineSyntax.h"
#include "settings/NotesFile.h"
#include "settings/YearSettingsFile.h"
#include "ui/SettingFields.h"

namespace Ledgrove {

namespace {

using Keys = std::vector<std::string_view>;

struct NamedKey {
    std::string_view Key;
    const char* Words;
};

constexpr std::array<NamedKey, 12> recordKeys{{{Key::LoanType, "Qualifying ratios of the loan types"},
                                               {Key::PMIMult1, "PMI a year, less than 5% down"},
                                               {Key::PMIMult2, "PMI a year, less than 10% down"},
                                               {Key::PMIMult3, "PMI a year, less than 15% down"},
                                               {Key::PMIMult4, "PMI a year, less than 20% down"},
                                               {Key::RealEstateTax, "Real estate tax a year"},
                                               {Key::Insurance, "Home owner's insurance a year"},
                                               {Key::PVRate, "Present value of savings: rate"},
                                               {Key::PVTerm, "Present value of savings: term"},
                                               {Key::PVFlag, "Present value of savings uses"},
                                               {Key::YearsInHome, "Years in the home"},
                                               {Key::TaxCat, "Income tax rates"}}};

std::string Percent(double number) {
    return Module1::FormatPicture(number, "0.00##") + "%";
}

double Number(float single) {
    // At its shortest text, so that 0.0087 does not become 0.00870000012.
    return Module1::ReadNumber(Module1::ShortestText(single)).value_or(0);
}

std::string RatiosText(const LoanTypeList& loanTypes) {
    std::string text;
    for (const LoanType& type : loanTypes)
        text += (text.empty() ? "" : "; ") + type.Name + " " + RateText(Number(type.FrontRatio)) + " and " +
                RateText(Number(type.BackRatio));
    return text;
}

std::string BracketsText(const TaxSchedule& brackets) {
    std::string text;
    for (const TaxBracket& bracket : brackets)
        text += (text.empty() ? "" : "; ") + RateText(Number(bracket.Rate) / 100) +
                (bracket.HighEnd < 0 ? " above" : " to " + Module1::MoneyText(bracket.HighEnd));
    return text;
}

std::string PMIText(float multiplier) {
    return Percent(Number(multiplier) * 100) + " of the loan";
}

std::string RecordValue(std::string_view key, const Session& session) {
    const AssumptionSet& set = session.Assumptions;
    const std::pair<std::string_view, std::string> values[] = {
        {Key::LoanType, RatiosText(session.LoanTypes)},
        {Key::PMIMult1, PMIText(set.PMIMult1)},
        {Key::PMIMult2, PMIText(set.PMIMult2)},
        {Key::PMIMult3, PMIText(set.PMIMult3)},
        {Key::PMIMult4, PMIText(set.PMIMult4)},
        {Key::RealEstateTax, Percent(Number(set.RealEstateTaxPct)) + " of the price"},
        {Key::Insurance, Percent(Number(set.InsurancePct)) + " of the price"},
        {Key::PVRate, Percent(Number(set.PVRate) * 100)},
        {Key::PVTerm, Module1::ShortestText(set.PVTerm) + " years"},
        {Key::PVFlag, set.UsePVVars ? "its own rate and term" : "the mortgage's rate and term"},
        {Key::YearsInHome, std::to_string(set.YearsInHome)},
        {Key::TaxCat, BracketsText(session.TaxBrackets)}};
    for (const auto& [name, value] : values)
        if (name == key)
            return value;
    return {};
}

std::string Capitalized(std::string_view words) {
    std::string text(words);
    text.front() = static_cast<char>(text.front() - 'a' + 'A');
    return text;
}

std::string RemarkOf(const AssumptionNote& note, bool isTried) {
    if (isTried)
        return "your own, tried and not kept";
    if (!note.IsNoted)
        return "no source is noted";
    if (note.IsOwn)
        return "your own";
    return note.IsOld ? "older than two years" : "";
}

std::vector<SheetCell> RowOf(const AssumptionNote& note, const Session& session, const YearSettings& years) {
    const YearSetting* const setting = FindYearSetting(note.Key);
    const bool isTried = setting && years.*setting->Value != session.Years.*setting->Value;
    const bool isShipped = note.IsNoted && !note.IsOwn && !isTried;
    std::vector<SheetCell> cells;
    if (setting) {
        cells.push_back(TextCell(Capitalized(WordsOfSetting(note.Key))));
        cells.push_back(TextCell(ShownYearValue(*setting, years)));
    } else {
        const auto* const named = std::find_if(recordKeys.begin(), recordKeys.end(),
                                               [&note](const NamedKey& one) { return one.Key == note.Key; });
        cells.push_back(TextCell(named->Words));
        cells.push_back(TextCell(RecordValue(note.Key, session)));
    }
    cells.push_back(TextCell(isShipped ? note.Date : ""));
    cells.push_back(TextCell(isShipped ? note.Source : ""));
    cells.push_back(TextCell(RemarkOf(note, isTried)));
    return cells;
}

template <typename Range>
void AddKeys(Keys& keys, const Range& more) {
    for (const auto& key : more)
        if (std::find(keys.begin(), keys.end(), key) == keys.end())
            keys.push_back(key);
}

bool IsUsed(std::string_view key, const Session& session) {
    const bool isOfPV = key == Key::PVRate || key == Key::PVTerm;
    return !isOfPV || session.Assumptions.UsePVVars;
}

std::chrono::year_month_day Today() {
    return std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
}

} // namespace

Keys AllAssumptionKeys() {
    Keys keys;
    for (const NotedKey& key : NotedKeys)
        keys.push_back(key.Key);
    return keys;
}

Keys KeysUsedBy(InsightQuestion question) {
    if (question == InsightQuestion::Assumed)
        return AllAssumptionKeys();
    Keys keys;
    for (const NamedKey& key : recordKeys)
        keys.push_back(key.Key);
    const bool grows = question == InsightQuestion::InShort || question == InsightQuestion::YearByYear ||
                       question == InsightQuestion::EnergyPrices || question == InsightQuestion::Sale;
    if (grows)
        AddKeys(keys, FieldKeysOf(InsightQuestion::YearByYear));
    if (question == InsightQuestion::YearByYear || question == InsightQuestion::Sale)
        AddKeys(keys, FieldKeysOf(InsightQuestion::Sale));
    if (question == InsightQuestion::InShort || question == InsightQuestion::TaxSaving)
        AddKeys(keys, FieldKeysOf(InsightQuestion::TaxSaving));
    return keys;
}

Keys KeysUsedBy(const std::vector<InsightQuestion>& questions, const Session& session) {
    Keys used;
    for (const InsightQuestion question : questions)
        AddKeys(used, KeysUsedBy(question));
    Keys keys; // in the order of the notes
    for (const std::string_view key : AllAssumptionKeys())
        if (IsUsed(key, session) && std::find(used.begin(), used.end(), key) != used.end())
            keys.push_back(key);
    return keys;
}

Sheet AssumptionSheet(const Keys& keys, const Session& session, const YearSettings& years,
                      const FileLines& lines, std::chrono::year_month_day today) {
    Sheet sheet;
    sheet.Title = "Assumptions";
    sheet.Sentence =
        "The answers rest on these assumptions. What is your own has no date and no source here; "
        "check what is older than two years.";
    sheet.Heads = {"Assumption", "Value", "Date", "Source", "Remark"};
    sheet.Words = {1, 2, 3, 4};
    for (const AssumptionNote& note : ReadAllNotes(lines, today))
        if (std::find(keys.begin(), keys.end(), note.Key) != keys.end())
            sheet.Rows.push_back(RowOf(note, session, years));
    return sheet;
}

Sheet AssumptionSheet(const Keys& keys, const Session& session, const YearSettings& years) {
    const auto lines = SettingsFile(session.Folder).ReadLines();
    return AssumptionSheet(keys, session, years, lines ? *lines : FileLines(), Today());
}

} // namespace Ledgrove
