#include "app/batch/ResultNames.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "ui/InputWords.h"
#include "ui/ResultSheets.h"

namespace Ledgrove {

namespace {

std::string UnitText(FigureUnit unit) {
    switch (unit) {
    case FigureUnit::Dollars:
        return "dollars";
    case FigureUnit::DollarsPerMonth:
        return "dollars per month";
    case FigureUnit::DollarsPerYear:
        return "dollars per year";
    case FigureUnit::Fraction:
        return "fraction";
    case FigureUnit::FractionPerYear:
        return "fraction per year";
    }
    return {};
}

/// Captions that depend on the result, and texts outside the result sheets.
constexpr std::pair<LabelMember, std::string_view> labelWords[] = {
    {&MainScreen::lbladditionalmortgagetext, "Mortgage Savings (below 0: Additional Mortgage)"},
    {&MainScreen::lblutilitysavingstext, "Utility Savings (below 0: Additional Utilities)"},
    {&MainScreen::lbltaxsavingstext, "Tax Savings (below 0: Additional Taxes)"},
    {&MainScreen::lblTaxSavmo2Text, "Tax Savings (below 0: Additional Taxes)"},
    {&MainScreen::lblnetcashflowtext, "Net Monthly Cash Flow"},
    {&MainScreen::lblYrsIn, "Expected Savings After the years in the home"},
    {&MainScreen::lblTerm, "Expected Savings After 30 Years"},
    {&MainScreen::lblPV, "PV of Savings"},
    {&MainScreen::Label6, "sentence: what the monthly cash flow buys today"},
    {&MainScreen::lblfeature1, "first feature to buy, from FEATURE1"},
    {&MainScreen::lblfeature2, "second feature to buy, from FEATURE2"},
    {&MainScreen::lblPVNote, "note on PV of Savings, shown with a Fannie Mae EEM"},
};

std::string WordsOf(LabelMember label) {
    for (const auto& [member, words] : labelWords)
        if (member == label)
            return std::string(words);
    return {};
}

/// What the result sheets say about a label: caption and column.
std::string LabelMeaning(LabelMember label) {
    for (const SheetKind kind :
         {SheetKind::CashFlow, SheetKind::Purchase, SheetKind::HouseValues, SheetKind::Affordability,
          SheetKind::SummaryHomes, SheetKind::SummarySavings}) {
        const ResultSheet& sheet = SheetOf(kind);
        for (const SheetRow& row : sheet.Rows) {
            if (label == row.CaptionLabel)
                return "caption: " + WordsOf(label);
            if (label != row.First && label != row.Second)
                continue;
            std::string caption = row.CaptionLabel ? WordsOf(row.CaptionLabel) : std::string(row.Caption);
            if (row.First)
                caption += ", " + std::string(sheet.Heads[label == row.First ? 0 : 1]);
            return row.Meaning.empty() ? caption : caption + ": " + std::string(row.Meaning);
        }
    }
    return WordsOf(label);
}

class NameList {
public:
    std::vector<ResultName> All() {
        AddFields();
        AddLabels();
        AddFigures(FigureRecord::Scenario, "Scenario");
        AddPart("Scenario", "DownAsPercent", "true or false", "whether the percentage applies",
                ResultPart::DownAsPercent);
        AddPart("Scenario", "YearsInHome", "years", "expected years in the home", ResultPart::YearsInHome);
        AddPart("Scenario", "EEM notice flag", "true or false", "whether the notice on an EEM is still due",
                ResultPart::EEMNoticeFlag);
        AddFigures(FigureRecord::StdCase, "StdCase");
        AddFigures(FigureRecord::GMHCase, "GMHCase");
        m_names.push_back(
            {"messages", "", "messages", "texts", "what the program said", ResultPart::Messages});
        m_names.push_back(
            {"dataCheck", "", "dataCheck", "text", "missing and implausible inputs", ResultPart::DataCheck});
        return std::move(m_names);
    }

private:
    void AddFields() {
        for (const auto& [name, member] : FieldTable()) {
            // The remaining fields are not visible and only repeat the term and the rates.
            if (member == &MainScreen::ecRate)
                break;
            AddField(std::string(name), member);
        }
        for (const auto& [name, member] : PickListTable())
            AddField(std::string(name), member);
        AddField("optDownPayment", ResultPart::DownOption);
        AddField("chkDoTax0", ResultPart::TaxBox);
    }

    template <typename Value>
    void AddField(const std::string& name, Value value) {
        m_names.push_back({"fields", name, name, "as shown", std::string(InputWords(name)), value});
    }

    void AddLabels() {
        for (const auto& [name, member] : ResultLabelTable())
            m_names.push_back(
                {"labels", std::string(name), std::string(name), "as shown", LabelMeaning(member), member});
    }

    void AddFigures(FigureRecord record, const std::string& member) {
        for (const FigureEntry& figure : FiguresOf(record))
            m_names.push_back({member, std::string(figure.Name), std::string(figure.FullName),
                               UnitText(figure.Unit), std::string(figure.Meaning), &figure});
    }

    void AddPart(const std::string& member, const std::string& key, const std::string& unit,
                 const std::string& meaning, ResultPart part) {
        m_names.push_back({member, key, member + "." + key, unit, meaning, part});
    }

    std::vector<ResultName> m_names;
};

} // namespace

const std::vector<ResultName>& ResultNames() {
    static const std::vector<ResultName> names = NameList().All();
    return names;
}

const ResultName* FindResultName(std::string_view name) {
    const auto& names = ResultNames();
    const auto found = std::find_if(names.begin(), names.end(), [name](const ResultName& one) {
        return one.Name == name || one.Heading() == name;
    });
    return found == names.end() ? nullptr : &*found;
}

std::string ReadResultNames(std::string_view list, ChosenNames& chosen) {
    while (!list.empty()) {
        const std::size_t comma = list.find(',');
        const std::string_view name = Trimmed(list.substr(0, comma));
        list = comma == std::string_view::npos ? std::string_view() : list.substr(comma + 1);
        const ResultName* const found = FindResultName(name);
        if (!found)
            return Quoted(name) +
                   " is not the name of a result. \"ledgrove-cli compare --list-names\" lists all of them.";
        if (std::find(chosen.begin(), chosen.end(), found) != chosen.end())
            return "The result " + Quoted(name) + " is named twice. Leave one of them out.";
        chosen.push_back(found);
    }
    return chosen.empty() ? "Name at least one result, such as StdCase.PITI." : "";
}

ShownLabels LabelsFor(const ChosenNames& names) {
    ShownLabels shown{names.empty(), names.empty(), names.empty()};
    for (const ResultName* const name : names) {
        const auto* const label = std::get_if<LabelMember>(&name->Value);
        if (!label)
            continue;
        const ShownLabels group = Module1::GroupOf(*label);
        shown.Affordability = shown.Affordability || group.Affordability;
        shown.Qualification = shown.Qualification || group.Qualification;
        shown.CashFlow = shown.CashFlow || group.CashFlow;
    }
    return shown;
}

std::string ResultNameTable() {
    std::size_t nameWidth = 0;
    std::size_t unitWidth = 0;
    for (const ResultName& name : ResultNames()) {
        nameWidth = std::max(nameWidth, name.Name.size());
        unitWidth = std::max(unitWidth, name.Unit.size());
    }
    std::string table;
    for (const ResultName& name : ResultNames())
        table += name.Name + std::string(nameWidth + 2 - name.Name.size(), ' ') + name.Unit +
                 std::string(unitWidth + 2 - name.Unit.size(), ' ') + name.Meaning + '\n';
    return table;
}

} // namespace Ledgrove
