#include "engine/MainScreen.h"

#include <algorithm>

namespace Ledgrove {

namespace {

#define LEDGROVE_CONTROL(name)                                                                               \
    { #name, &MainScreen::name }

constexpr ControlEntry<Field> fields[] = {
    LEDGROVE_CONTROL(ecIncome),    LEDGROVE_CONTROL(ecMonthlyDebt), LEDGROVE_CONTROL(ecPctDown),
    LEDGROVE_CONTROL(ecFixedDown), LEDGROVE_CONTROL(ecStdHome),     LEDGROVE_CONTROL(ecGMHHome),
    LEDGROVE_CONTROL(ecStdUtil),   LEDGROVE_CONTROL(ecGMHUtil),     LEDGROVE_CONTROL(ecStdRate),
    LEDGROVE_CONTROL(ecGMHRate),   LEDGROVE_CONTROL(ecStdStr),      LEDGROVE_CONTROL(ecGMHStr),
    LEDGROVE_CONTROL(ecRate),      LEDGROVE_CONTROL(ecSaveRate),    LEDGROVE_CONTROL(ecGMHTerm),
};

constexpr ControlEntry<PickList> pickLists[] = {
    LEDGROVE_CONTROL(cboMortTerm),
    LEDGROVE_CONTROL(cboStdMortOption),
    LEDGROVE_CONTROL(cboGMHMortOption),
};

constexpr ControlEntry<Label> labels[] = {
    LEDGROVE_CONTROL(lblStdPITI),
    LEDGROVE_CONTROL(lblStdMortPayment),
    LEDGROVE_CONTROL(lblStdUtilMo),
    LEDGROVE_CONTROL(lblStdHome),
    LEDGROVE_CONTROL(lblStdDown),
    LEDGROVE_CONTROL(lblstddown2),
    LEDGROVE_CONTROL(lblStdMortgage),
    LEDGROVE_CONTROL(lblStdMort),
    LEDGROVE_CONTROL(lblStdInc),
    LEDGROVE_CONTROL(lblStdMaxHome),
    LEDGROVE_CONTROL(lblStdQual),
    LEDGROVE_CONTROL(lblGMHPITI),
    LEDGROVE_CONTROL(lblGMHMortPayment),
    LEDGROVE_CONTROL(lblGMHUtilMo),
    LEDGROVE_CONTROL(lblGMHHome),
    LEDGROVE_CONTROL(lblgmhDown),
    LEDGROVE_CONTROL(lblgmhdown2),
    LEDGROVE_CONTROL(lblgmhMortgage),
    LEDGROVE_CONTROL(lblGMHMort),
    LEDGROVE_CONTROL(lblGMHInc),
    LEDGROVE_CONTROL(lblGMHMaxHome),
    LEDGROVE_CONTROL(lblGMHQual),
    LEDGROVE_CONTROL(lbladditionalmortgagetext),
    LEDGROVE_CONTROL(lblAddMortMo),
    LEDGROVE_CONTROL(lblAddMortYr),
    LEDGROVE_CONTROL(lblutilitysavingstext),
    LEDGROVE_CONTROL(lblUtilSavMo),
    LEDGROVE_CONTROL(lblUtilSavYr),
    LEDGROVE_CONTROL(lbltaxsavingstext),
    LEDGROVE_CONTROL(lblTaxSavMo),
    LEDGROVE_CONTROL(lblTaxSavYr),
    LEDGROVE_CONTROL(lblTaxSavmo2Text),
    LEDGROVE_CONTROL(lbltaxsavmo2),
    LEDGROVE_CONTROL(lblnetcashflowtext),
    LEDGROVE_CONTROL(lblNetCashMo),
    LEDGROVE_CONTROL(lblNetCashYr),
    LEDGROVE_CONTROL(lblStdPITIU),
    LEDGROVE_CONTROL(lblGMHPITIU),
    LEDGROVE_CONTROL(lblMonthlyHCStd),
    LEDGROVE_CONTROL(lblMonthlyHCGM),
    LEDGROVE_CONTROL(lblHouseValueStd),
    LEDGROVE_CONTROL(lblNetCashMoTx),
    LEDGROVE_CONTROL(lblExtrasTx),
    LEDGROVE_CONTROL(lblHouseValueGM),
    LEDGROVE_CONTROL(Label6),
    LEDGROVE_CONTROL(lblfeature1),
    LEDGROVE_CONTROL(lblfeature2),
    LEDGROVE_CONTROL(lblNetCashMo2),
    LEDGROVE_CONTROL(lblExpYrPre),
    LEDGROVE_CONTROL(lbl30YrPre),
    LEDGROVE_CONTROL(lblTerm),
    LEDGROVE_CONTROL(lblYrsIn),
    LEDGROVE_CONTROL(lblPV),
    LEDGROVE_CONTROL(lblPVNote),
    LEDGROVE_CONTROL(lblPVofSavings),
    LEDGROVE_CONTROL(lblHomeName),
};

#undef LEDGROVE_CONTROL

constexpr PickItem terms[] = {{"10 years", 10}, {"15 years", 15}, {"20 years", 20}, {"25 years", 25},
                              {"30 years", 30}, {"35 years", 35}, {"40 years", 40}};

constexpr PickItem Item(std::string_view text, MortgageOption option) {
    return {text, CodeOf(option)};
}

constexpr PickItem baseOptions[] = {Item("Conventional", MortgageOption::Conventional),
                                    Item("FHA", MortgageOption::FHA), Item("VA", MortgageOption::VA)};
constexpr PickItem conventionalOptions[] = {Item("Conventional", MortgageOption::Conventional),
                                            Item("Fannie Mae EEM", MortgageOption::FannieMaeEEM),
                                            Item("Freddie Mac EEM", MortgageOption::FreddieMacEEM)};
constexpr PickItem fhaOptions[] = {Item("FHA", MortgageOption::FHA), Item("FHA EEM", MortgageOption::FHAEEM)};
constexpr PickItem vaOptions[] = {Item("VA", MortgageOption::VA), Item("VA EEM", MortgageOption::VAEEM)};

} // namespace

int PickList::IndexOf(std::string_view text) const {
    const auto found =
        std::find_if(Items.begin(), Items.end(), [&](const PickItem& item) { return item.Text == text; });
    return found == Items.end() ? -1 : static_cast<int>(found - Items.begin());
}

std::span<const ControlEntry<Field>> FieldTable() {
    return fields;
}

std::span<const ControlEntry<PickList>> PickListTable() {
    return pickLists;
}

std::span<const ControlEntry<Label>> LabelTable() {
    return labels;
}

std::string_view LabelName(Label MainScreen::*label) {
    return std::find_if(std::begin(labels), std::end(labels),
                        [label](const ControlEntry<Label>& entry) { return entry.Member == label; })
        ->Name;
}

std::span<const ControlEntry<Label>> ResultLabelTable() {
    return std::span(labels).first(std::size(labels) - 1);
}

std::span<const PickItem> TermItems() {
    return terms;
}

std::span<const PickItem> BaseOptionItems() {
    return baseOptions;
}

std::span<const PickItem> LabelledOptionItems(std::optional<MortgageOption> base) {
    if (base == MortgageOption::Conventional)
        return conventionalOptions;
    if (base == MortgageOption::FHA)
        return fhaOptions;
    if (base == MortgageOption::VA)
        return vaOptions;
    return {};
}

} // namespace Ledgrove
