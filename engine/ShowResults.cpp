#include "engine/ShowResults.h"

#include "engine/NumberText.h"

#include <algorithm>
#include <iterator>

namespace Ledgrove::Module1 {

namespace {

struct HomeLabels {
    Label &PITI, &MortPayment, &UtilMonthly, &Price, &Down, &Down2, &Mortgage, &Mort, &MaxPayment, &MaxLoan;
};

void ShowHome(const HomeCase& home, const HomeLabels& labels) {
    MoneyText(home.PITI, labels.PITI.Text);
    MoneyText(home.MortPayment, labels.MortPayment.Text);
    MoneyText(home.UtilMonthly, labels.UtilMonthly.Text);
    MoneyText(home.Cost, labels.Price.Text);
    MoneyText(home.DownPayment, labels.Down.Text);
    labels.Down2.Text = labels.Down.Text;
    MoneyText(home.LoanAmount, labels.Mortgage.Text);
    labels.Mort.Text = labels.Mortgage.Text;
    MoneyText(home.MaxPayment, labels.MaxPayment.Text);
    MoneyText(home.MaxLoan, labels.MaxLoan.Text);
}

float YearOf(double monthly) {
    return static_cast<float>(monthly * 12);
}

void ShowAmount(Label& label, float amount) {
    MoneyText(amount, label.Text);
    label.Colour = amount < 0 ? TextColour::Red : TextColour::Normal;
}

struct CashFlowLine {
    Label &Caption, &Monthly, &Annual;
    const char *WhenSaved, *WhenPaid; ///< the captions for a value >= 0 and for a value < 0
};

void ShowLine(const CashFlowLine& line, float value) {
    line.Caption.Text = value < 0 ? line.WhenPaid : line.WhenSaved;
    ShowAmount(line.Monthly, value);
    ShowAmount(line.Annual, YearOf(static_cast<double>(value)));
}

float Sum(float a, float b) {
    return static_cast<float>(static_cast<double>(a) + static_cast<double>(b));
}

void ShowCashFlowPanel(MainScreen& screen, const Scenario& scenario) {
    const float tax = scenario.ShownTaxSavings;
    ShowLine({screen.lbladditionalmortgagetext, screen.lblAddMortMo, screen.lblAddMortYr, "Mortgage Savings",
              "Additional Mortgage"},
             scenario.MortgageSavings);
    ShowLine({screen.lblutilitysavingstext, screen.lblUtilSavMo, screen.lblUtilSavYr, "Utility Savings",
              "Additional Utilities"},
             scenario.UtilitySavings);
    ShowLine(
        {screen.lbltaxsavingstext, screen.lblTaxSavMo, screen.lblTaxSavYr, "Tax Savings", "Additional Taxes"},
        tax);

    const double net = static_cast<double>(tax) + static_cast<double>(scenario.UtilitySavings) +
                       static_cast<double>(scenario.MortgageSavings);
    screen.lblnetcashflowtext.Text = "Net Monthly Cash Flow";
    ShowAmount(screen.lblNetCashMo, static_cast<float>(net));
    ShowAmount(screen.lblNetCashYr, YearOf(net));
}

void ShowMoreHomePanel(MainScreen& screen, const Results& results, bool withTaxes) {
    const Scenario& scenario = results.Scenario;
    const float monthly = withTaxes ? scenario.NetMonthlyCashFlow : scenario.NetBeforeTax;
    const float today = withTaxes ? scenario.PVNetCashFlow : scenario.PVNetBeforeTax;
    // Intended: both homes show the same monthly housing budget.
    MoneyText(results.StdCase.PITIU, screen.lblMonthlyHCStd.Text);
    MoneyText(results.StdCase.PITIU, screen.lblMonthlyHCGM.Text);
    MoneyText(results.StdCase.Cost, screen.lblHouseValueStd.Text);
    MoneyText(monthly, screen.lblNetCashMoTx.Text);
    MoneyText(today, screen.lblExtrasTx.Text);
    MoneyText(Sum(today, results.GMHCase.Cost), screen.lblHouseValueGM.Text);
    std::string& sentence = screen.Label6.Text;
    sentence = screen.lblNetCashMoTx.Text;
    sentence += " more per month";
    sentence += " = ";
    sentence += screen.lblExtrasTx.Text;
    sentence += " more today";
}

void ShowSummaryPanel(MainScreen& screen, const Results& results, bool withTaxes) {
    const Scenario& scenario = results.Scenario;
    const float tax = scenario.ShownTaxSavings;
    screen.lblTaxSavmo2Text.Text = tax < 0 ? "Additional Taxes" : "Tax Savings";
    ShowAmount(screen.lbltaxsavmo2, tax);
    screen.lblTaxSavmo2Text.Visible = screen.lbltaxsavmo2.Visible = withTaxes;

    // The tax savings are subtracted from the labelled home's payment, so that the two payments differ by the
    // cash flow.
    MoneyText(results.StdCase.PITIU, screen.lblStdPITIU.Text);
    MoneyText(Sum(results.GMHCase.PITIU, -tax), screen.lblGMHPITIU.Text);
    MoneyText(withTaxes ? scenario.NetMonthlyCashFlow : scenario.NetBeforeTax, screen.lblNetCashMo2.Text);

    MoneyText(scenario.SavingsAfterYearsInHome, screen.lblExpYrPre.Text);
    // Intended: the colour depends on the savings after 7 years, not on those after the years in the home.
    screen.lblExpYrPre.Colour = scenario.SavingsAfter7Years < 0 ? TextColour::Red : TextColour::Normal;
    MoneyText(scenario.SavingsAfter30Years, screen.lbl30YrPre.Text);
    screen.lblTerm.Text = "30 Years";
    screen.lblYrsIn.Text = " Expected Savings After:   ";
    screen.lblYrsIn.Text += FormatPicture(static_cast<double>(results.Scenario.YearsInHome), "#0");
    screen.lblYrsIn.Text += " Years";

    const bool fannieMae = screen.cboGMHMortOption.Option() == MortgageOption::FannieMaeEEM;
    screen.lblPV.Text = fannieMae ? "* PV of Savings" : "PV of Savings";
    screen.lblPVNote.Text = "* Fannie Mae refers to this as the Energy Savings Value";
    screen.lblPVNote.Visible = fannieMae;
    ShowAmount(screen.lblPVofSavings, results.GMHCase.PVSavings);
}

} // namespace

void ShowResults(const Results& results, MainScreen& screen, const ShownLabels& shown) {
    if (shown.Affordability)
        ShowAffordabilityResults(results, screen);
    if (shown.Qualification)
        ShowQualification(results, screen);
    if (shown.CashFlow)
        ShowCashFlowResults(results, screen);
}

ShownLabels GroupOf(Label MainScreen::*label) {
    using S = MainScreen;
    constexpr Label S::*ofHomes[] = {
        &S::lblStdPITI,  &S::lblStdMortPayment, &S::lblStdUtilMo, &S::lblStdHome, &S::lblStdDown,
        &S::lblstddown2, &S::lblStdMortgage,    &S::lblStdMort,   &S::lblStdInc,  &S::lblStdMaxHome,
        &S::lblGMHPITI,  &S::lblGMHMortPayment, &S::lblGMHUtilMo, &S::lblGMHHome, &S::lblgmhDown,
        &S::lblgmhdown2, &S::lblgmhMortgage,    &S::lblGMHMort,   &S::lblGMHInc,  &S::lblGMHMaxHome};
    const bool isOfHomes = std::find(std::begin(ofHomes), std::end(ofHomes), label) != std::end(ofHomes);
    const bool isQualification = label == &S::lblStdQual || label == &S::lblGMHQual;
    return {isOfHomes, isQualification, !isOfHomes && !isQualification};
}

void ShowAffordabilityResults(const Results& results, MainScreen& s) {
    ShowHome(results.StdCase, {s.lblStdPITI, s.lblStdMortPayment, s.lblStdUtilMo, s.lblStdHome, s.lblStdDown,
                               s.lblstddown2, s.lblStdMortgage, s.lblStdMort, s.lblStdInc, s.lblStdMaxHome});
    ShowHome(results.GMHCase, {s.lblGMHPITI, s.lblGMHMortPayment, s.lblGMHUtilMo, s.lblGMHHome, s.lblgmhDown,
                               s.lblgmhdown2, s.lblgmhMortgage, s.lblGMHMort, s.lblGMHInc, s.lblGMHMaxHome});
}

void ShowQualification(const Results& results, MainScreen& screen) {
    const auto text = [](bool qualifies) { return qualifies ? "YES" : "*NO"; };
    screen.lblStdQual.Text = text(results.StdQualifies);
    screen.lblGMHQual.Text = text(results.GMHQualifies);
}

void ShowCashFlowResults(const Results& results, MainScreen& screen) {
    ShowCashFlowPanel(screen, results.Scenario);
    ShowMoreHomePanel(screen, results, screen.chkDoTax0);
    ShowSummaryPanel(screen, results, screen.chkDoTax0);
}

} // namespace Ledgrove::Module1
