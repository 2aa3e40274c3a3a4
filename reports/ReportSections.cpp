#include "reports/SectionParts.h"
#include "reports/modPrint.h"

#include "engine/NumberText.h"

// The sections of the report that can be chosen.
namespace Ledgrove::modPrint {

namespace {

std::string Money(const Label& label) {
    return Pictured(label.Text, MoneyPicture);
}

std::string CaptionRow(const Label& caption, const Label& first, const Label& second) {
    return Row({CellText(caption.Text), Money(first), Money(second)});
}

std::string LabelRow(std::string_view caption, const Label& base, const Label& labelled) {
    return Row({caption, Money(base), Money(labelled)});
}

} // namespace

void WriteCashFlow(PrintDocument& document, const ReportContent& content) {
    const MainScreen& screen = content.State.Screen;
    BeginSectionBody(document);
    WriteTitleBar(document, "GREENMARK - More Value For Less Cost");
    document.AddTable(ThreeColumns, "|Monthly|Yearly", "");
    document.FontBold = false;
    document.AddTable(ThreeColumns, "",
                      CaptionRow(screen.lbladditionalmortgagetext, screen.lblAddMortMo, screen.lblAddMortYr) +
                          CaptionRow(screen.lblutilitysavingstext, screen.lblUtilSavMo, screen.lblUtilSavYr) +
                          CaptionRow(screen.lbltaxsavingstext, screen.lblTaxSavMo, screen.lblTaxSavYr) + ";");
    document.FontBold = true;
    document.AddTable(ThreeColumns, "",
                      CaptionRow(screen.lblnetcashflowtext, screen.lblNetCashMo, screen.lblNetCashYr));
    document.Paragraph("");
}

void WriteSummary(PrintDocument& document, const ReportContent& content) {
    constexpr std::string_view wideSecond = "1440|>3780|>2340;";
    const MainScreen& screen = content.State.Screen;
    BeginSectionBody(document);
    WriteTitleBar(document, "Summary");
    document.AddTable(ThreeColumns, "|Base Home|GREENMARK Home", "");
    document.FontBold = false;
    document.AddTable(ThreeColumns, "",
                      LabelRow("Sticker Price", screen.lblStdHome, screen.lblGMHHome) +
                          LabelRow("Down Payment", screen.lblStdDown, screen.lblgmhDown) +
                          LabelRow("Mortgage Amount", screen.lblStdMortgage, screen.lblgmhMortgage) +
                          LabelRow("Mortgage Payment", screen.lblStdPITI, screen.lblGMHPITI) +
                          LabelRow("Monthly Utility Bills", screen.lblStdUtilMo, screen.lblGMHUtilMo) +
                          Row({CellText(screen.lblTaxSavmo2Text.Text), "NONE", Money(screen.lbltaxsavmo2)}));
    document.FontBold = true;
    document.AddTable(ThreeColumns, "",
                      LabelRow("Net Monthly Payment", screen.lblStdPITIU, screen.lblGMHPITIU));
    document.AddTable(wideSecond, "", Row({"Net Monthly Cash Flow", Money(screen.lblNetCashMo2)}));
    document.FontBold = false;
    document.AddTable(wideSecond, "",
                      Row({CellText(screen.lblYrsIn.Text), Money(screen.lblExpYrPre)}) +
                          Row({CellText(screen.lblTerm.Text), Money(screen.lbl30YrPre)}) +
                          Row({CellText(screen.lblPV.Text), Money(screen.lblPVofSavings)}));
    if (screen.lblPVNote.Visible)
        WriteNote(document, screen.lblPVNote.Text);
    document.Paragraph("");
}

void WriteBuyMoreHome(PrintDocument& document, const ReportContent& content) {
    const MainScreen& screen = content.State.Screen;
    BeginSectionBody(document);
    WriteTitleBar(document, "Buy More Home");
    document.FontBold = false;
    // The first row stays empty for spacing.
    document.AddTable("3860|>1100|<2600;", "",
                      ";A Monthly Net Cash Flow of|" + Money(screen.lblNetCashMoTx) +
                          "|;Can Purchase Options up to|" + Money(screen.lblExtrasTx) +
                          "|;;For the same monthly cost, consider these:|Option 1|" +
                          Money(screen.lblfeature1) + "; |Option 2|" + Money(screen.lblfeature2) + ";;");
    document.Paragraph("");
}

void WriteAffordability(PrintDocument& document, const ReportContent& content) {
    const MainScreen& screen = content.State.Screen;
    BeginSectionBody(document);
    WriteTitleBar(document, "GREENMARK Qualified Homes are Affordable");
    document.AddTable(ThreeColumns, "|Base Home|GREENMARK Home", "");
    document.FontBold = false;
    document.AddTable(ThreeColumns, "",
                      LabelRow("Mortgage Amount", screen.lblStdMort, screen.lblGMHMort) +
                          LabelRow("Down Payment", screen.lblstddown2, screen.lblgmhdown2) +
                          LabelRow("Mortgage Payment", screen.lblStdMortPayment, screen.lblGMHMortPayment) +
                          LabelRow("Maximum Loan Value", screen.lblStdMaxHome, screen.lblGMHMaxHome) +
                          LabelRow("Maximum Payment", screen.lblStdInc, screen.lblGMHInc) +
                          LabelRow("Buyer Qualifies", screen.lblStdQual, screen.lblGMHQual));
    WriteNote(document,
              "*Ledgrove only provides estimates & does not account for LTV - check with your bank");
}

namespace {

void WriteAssumedValues(PrintDocument& document, const ReportContent& content) {
    const AssumptionsScreen& dialog = content.Assumptions;
    const std::string upgrade = Module1::FormatPicture(content.State.Scenario.PriceDifference, MoneyPicture);
    document.AddTable("3060|>2000|2500", "",
                      ";Real Estate Taxes (% of price/year)|" + CellText(dialog.ecRealEstateTaxPct.Text) +
                          "|;Homeowner's Insurance (% of price/year)|" +
                          CellText(dialog.ecInsurancePct.Text) + "|;Anticipated Years in Home|" +
                          CellText(dialog.ecYrsInHome.Text) +
                          "|;Calculated Value of Energy Efficiency Upgrade|" + upgrade + "|;;");
    if (!dialog.optUsePVVars)
        return;
    document.AddTable("7560;", "", "Variables used to calculate the PV of the energy savings");
    document.AddTable("1880|^1340|^4340;", "",
                      "Rate|" + CellText(dialog.ecPV_Rate.Text) + "|;Term|" +
                          CellText(dialog.ecPV_Term.Text) + "|;;");
}

void WriteMultipliers(PrintDocument& document, const AssumptionsScreen& dialog) {
    std::string steps;
    for (std::size_t row = 0; row < PMIRowCount; ++row)
        steps += std::string(PctDown_LessThan[row]) + "|" + CellText(dialog.PMI_Multiplier[row].Text) + "| ;";
    document.AddTable(">2500|>2500|2560;", "If Percent Down is less than:|Use PMI Multiplier:|", steps + ";");
}

void WriteRatios(PrintDocument& document, const AssumptionsScreen& dialog) {
    constexpr std::string_view format = "2880|^2340|^2340;";
    document.FontBold = true;
    document.AddTable(format, "Mortgage|Front End Ratio|Back End Ratio", "");
    document.FontBold = false;
    std::string rows;
    for (std::size_t row = 0; row < dialog.RatioRows; ++row)
        rows += Row({CellText(dialog.lblLoanType[row]), CellText(dialog.FER[row].Text),
                     CellText(dialog.BER[row].Text)});
    document.AddTable(format, "", rows);
}

} // namespace

void WriteFinancialAssumptions(PrintDocument& document, const ReportContent& content) {
    BeginSectionBody(document);
    WriteTitleBar(document, "Financial Assumptions");
    document.FontBold = false;
    WriteAssumedValues(document, content);
    WriteMultipliers(document, content.Assumptions);
    WriteRatios(document, content.Assumptions);
    document.Paragraph("");
}

} // namespace Ledgrove::modPrint
