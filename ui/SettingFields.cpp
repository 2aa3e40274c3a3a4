#include "ui/SettingFields.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "insight/TaxCheck.h"
#include "settings/LineSyntax.h"
#include "ui/AssumptionList.h"

namespace Ledgrove {

namespace {

struct FieldWords {
    std::string_view Key;
    std::string_view Caption;
    std::string_view Words;
};

constexpr std::array<FieldWords, YearSettingTable.size()> fieldWords{
    {{Key::GrowthUtilities, "Utility bills &grow by", "growth of utility bills, a year"},
     {Key::GrowthHome, "Property tax and &insurance grow by", "growth of property tax and insurance, a year"},
     {Key::ExitAppreciation, "Home prices &rise by", "growth of home prices, a year"},
     {Key::ExitPremiumKept, "Price &difference kept", "share of the price difference that a sale keeps"},
     {Key::ExitSellingCost, "Se&lling cost", "cost of selling, of the price"},
     {Key::DeductionStandard, "Standard &deduction", "standard deduction"},
     {Key::DeductionSaltCap, "State and local tax c&ap", "most that is deductible for state and local taxes"},
     {Key::DeductionStateTax, "State income ta&x", "state income tax, a year"},
     {Key::DeductionOther, "Othe&r deductions", "other deductions, a year"},
     {Key::DeductionDebtCap, "&Loan cap", "largest loan whose interest is deductible"}}};

const FieldWords& WordsAt(std::string_view key) {
    return *std::find_if(fieldWords.begin(), fieldWords.end(),
                         [key](const FieldWords& words) { return words.Key == key; });
}

/// The growth of the utility bills from 0 to 10 % in tenths.
void AddSlider(SettingField& field, double growth) {
    constexpr int places = 100;
    constexpr double perPlace = 0.001;
    for (int place = 0; place <= places; ++place) {
        YearSettings settings;
        settings.UtilityGrowth = place * perPlace;
        field.Slider.push_back(ShownYearValue(*FindYearSetting(field.Key), settings));
    }
    field.SliderAt = std::clamp(static_cast<int>(std::lround(growth / perPlace)), 0, places);
}

void AddFilingStatuses(SettingField& field) {
    constexpr std::array captions{"Si&ngle", "&Joint", "Head &of household"};
    static_assert(captions.size() == FilingStatuses.size());
    for (std::size_t i = 0; i < captions.size(); ++i) {
        const std::string text = DollarText(FilingStatuses[i].Deduction);
        field.Choices.push_back({captions[i] + (" " + text), text});
    }
}

} // namespace

std::vector<std::string_view> FieldKeysOf(InsightQuestion question) {
    switch (question) {
    case InsightQuestion::YearByYear:
        return {Key::GrowthUtilities, Key::GrowthHome};
    case InsightQuestion::EnergyPrices:
        return {Key::GrowthUtilities};
    case InsightQuestion::TaxSaving:
        return {Key::DeductionStandard, Key::DeductionStateTax, Key::DeductionOther, Key::DeductionSaltCap,
                Key::DeductionDebtCap};
    case InsightQuestion::Sale:
        return {Key::ExitAppreciation, Key::ExitPremiumKept, Key::ExitSellingCost};
    default:
        return {};
    }
}

std::vector<SettingField> FieldsOf(InsightQuestion question, const TriedSettings& settings) {
    const YearSettings inForce = settings.InForce();
    std::vector<SettingField> fields;
    for (const std::string_view key : FieldKeysOf(question)) {
        const YearSetting& setting = *FindYearSetting(key);
        const FieldWords& words = WordsAt(key);
        SettingField& field = fields.emplace_back();
        field.Key = key;
        field.Caption = words.Caption;
        field.Name = words.Words;
        field.Text = ShownYearValue(setting, inForce);
        field.IsTried = settings.IsTried(setting);
        if (question == InsightQuestion::EnergyPrices)
            AddSlider(field, inForce.UtilityGrowth);
        if (key == Key::DeductionStandard)
            AddFilingStatuses(field);
    }
    return fields;
}

std::string_view WordsOfSetting(std::string_view key) {
    return WordsAt(key).Words;
}

std::string TriedElsewhere(InsightQuestion question, const TriedSettings& settings) {
    const auto own = FieldKeysOf(question);
    const auto used = KeysUsedBy(question);
    const YearSettings inForce = settings.InForce();
    std::string list;
    for (const YearSetting& setting : YearSettingTable) {
        const bool isOwn = std::find(own.begin(), own.end(), setting.Key) != own.end();
        const bool isUsed = std::find(used.begin(), used.end(), setting.Key) != used.end();
        if (!isOwn && isUsed && settings.IsTried(setting))
            list.append(list.empty() ? "" : "; ")
                .append(WordsOfSetting(setting.Key))
                .append(" ")
                .append(ShownYearValue(setting, inForce));
    }
    return list.empty() ? "" : "Tried and not kept: " + list + ".";
}

} // namespace Ledgrove
