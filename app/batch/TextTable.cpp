#include "app/batch/TextTable.h"

#include <algorithm>
#include <array>

#include "engine/NumberText.h"

namespace Ledgrove {

namespace {

constexpr std::size_t captionWidth = 32;
constexpr std::size_t columnWidth = 18;

void AppendLeft(std::string& out, std::string_view text, std::size_t width) {
    out.append(text);
    out.append(text.size() < width ? width - text.size() : 1, ' ');
}

void AppendRight(std::string& out, std::string_view text, std::size_t width) {
    out.append(text.size() < width ? width - text.size() : 1, ' ');
    out.append(text);
}

void AppendRow(std::string& out, std::string_view caption, std::string_view first,
               std::string_view second = {}) {
    AppendLeft(out, caption, captionWidth);
    AppendRight(out, first, columnWidth);
    if (!second.empty())
        AppendRight(out, second, columnWidth);
    out += '\n';
}

struct Row {
    std::string_view Caption;
    std::string_view First;
    std::string_view Second;
};

void AppendRows(std::string& out, std::string_view heading, std::initializer_list<Row> rows) {
    out.append("\n").append(heading).append("\n");
    for (const Row& row : rows)
        AppendRow(out, row.Caption, row.First, row.Second);
}

void AppendBuyer(std::string& out, const MainScreen& s) {
    const bool percent = s.optDownPayment == 0;
    AppendRow(out, "Annual Income", s.ecIncome.Text);
    AppendRow(out, "Monthly Debt", s.ecMonthlyDebt.Text);
    AppendRow(out, percent ? "% Down" : "Fixed $ Down", percent ? s.ecPctDown.Text : s.ecFixedDown.Text);
    AppendRow(out, "Term", s.cboMortTerm.Text());
}

void AppendHomes(std::string& out, const Session& session) {
    const MainScreen& s = session.Screen;
    out += '\n';
    AppendRow(out, "", "Base Home", "GREENMARK Home");
    AppendRow(out, "Annual Utility Cost", s.ecStdUtil.Text, s.ecGMHUtil.Text);
    AppendRow(out, "Interest Rate", s.ecStdRate.Text, s.ecGMHRate.Text);
    AppendRow(out, "Mortgage Option", s.cboStdMortOption.Text(), s.cboGMHMortOption.Text());
    AppendRows(
        out, "Summary",
        {{"Sticker Price", s.lblStdHome.Text, s.lblGMHHome.Text},
         {"Down Payment", s.lblStdDown.Text, s.lblgmhDown.Text},
         {"Mortgage Amount", s.lblStdMortgage.Text, s.lblgmhMortgage.Text},
         {"Mortgage Payment", s.lblStdPITI.Text, s.lblGMHPITI.Text},
         {"Monthly Utility Bills", s.lblStdUtilMo.Text, s.lblGMHUtilMo.Text},
         {"Net Monthly Payment", s.lblStdPITIU.Text, s.lblGMHPITIU.Text},
         {"Net Monthly Cash Flow", s.lblNetCashMo2.Text, ""},
         {"Savings After " +
              Module1::FormatPicture(static_cast<double>(session.Assumptions.YearsInHome), "#0") + " Years",
          s.lblExpYrPre.Text, ""},
         {"Savings After 30 Years", s.lbl30YrPre.Text, ""},
         {s.lblPV.Text, s.lblPVofSavings.Text, ""}});
}

void AppendCashFlow(std::string& out, const MainScreen& s) {
    out += '\n';
    AppendRow(out, "Cash Flow", "Monthly", "Yearly");
    AppendRow(out, s.lbladditionalmortgagetext.Text, s.lblAddMortMo.Text, s.lblAddMortYr.Text);
    AppendRow(out, s.lblutilitysavingstext.Text, s.lblUtilSavMo.Text, s.lblUtilSavYr.Text);
    AppendRow(out, s.lbltaxsavingstext.Text, s.lblTaxSavMo.Text, s.lblTaxSavYr.Text);
    AppendRow(out, s.lblnetcashflowtext.Text, s.lblNetCashMo.Text, s.lblNetCashYr.Text);
}

void AppendMoreHome(std::string& out, const Session& session) {
    const MainScreen& s = session.Screen;
    AppendRows(out, "More Home",
               {{"A Monthly Net Cash Flow of", s.lblNetCashMoTx.Text, ""},
                {"buys today", s.lblExtrasTx.Text, ""},
                {"Price Difference", Module1::MoneyText(session.Scenario.PriceDifference), ""},
                {"Extra Cash Today", Module1::MoneyText(session.Scenario.ExtraCashToday), ""}});
}

void AppendAffordability(std::string& out, const Session& session) {
    const MainScreen& s = session.Screen;
    AppendRows(out, "Affordability",
               {{"Mortgage Payment (P+I)", s.lblStdMortPayment.Text, s.lblGMHMortPayment.Text},
                {"Maximum Loan Value", s.lblStdMaxHome.Text, s.lblGMHMaxHome.Text},
                {"Maximum Payment", s.lblStdInc.Text, s.lblGMHInc.Text},
                {"Maximum Home", Module1::MoneyText(session.StdCase.MaxHome),
                 Module1::MoneyText(session.GMHCase.MaxHome)},
                {"Buyer Qualifies?", s.lblStdQual.Text, s.lblGMHQual.Text}});
}

void AppendMessageText(std::string& out, std::string text) {
    std::replace(text.begin(), text.end(), '\r', '\n');
    while (!text.empty() && text.back() == '\n')
        text.pop_back();
    out.append("\n").append(text).append("\n");
}

} // namespace

std::string ResultTable(const Comparison& comparison) {
    const Session& session = comparison.State();
    std::string out;
    AppendBuyer(out, session.Screen);
    AppendHomes(out, session);
    AppendCashFlow(out, session.Screen);
    AppendMoreHome(out, session);
    AppendAffordability(out, session);
    for (const Message& message : comparison.Messages())
        AppendMessageText(out, message.Text);
    if (const std::string check = comparison.DataCheck(); !check.empty())
        AppendMessageText(out, check);
    return out;
}

std::string RefusalText(const Refusal& refusal) {
    std::string text = "Line " + std::to_string(refusal.Line) + ": ";
    if (!refusal.Control.empty())
        text += refusal.Control + " \"" + refusal.Value + "\": ";
    return text + refusal.Message + "\n";
}

} // namespace Ledgrove
