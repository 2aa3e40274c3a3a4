#include "reports/SectionParts.h"
#include "reports/modPrint.h"

#include "engine/NumberText.h"
#include "ui/ResultSheets.h"

// The sections that the user can select for the report.
namespace Ledgrove::modPrint {

namespace {

std::string Money(const Label& label) {
    return Pictured(label.Text, MoneyPicture);
}

/// The caption in the report: its own text for the report, or the text of the label.
std::string Caption(const SheetRow& row, const MainScreen& screen) {
    if (!row.ReportCaption.empty())
        return std::string(row.ReportCaption);
    return row.CaptionLabel ? CellText((screen.*row.CaptionLabel).Text) : std::string(row.Caption);
}

/// A row of two figures, with "NONE" if the base home has no figure.
std::string TwoFigures(const SheetRow& row, const MainScreen& screen) {
    return Row(
        {Caption(row, screen), row.First ? Money(screen.*row.First) : "NONE", Money(screen.*row.Second)});
}

std::string OneFigure(const SheetRow& row, const MainScreen& screen) {
    return Row({Caption(row, screen), Money(screen.*row.Second)});
}

/// The sheet's rows of this weight, including rows that the screen hides.
std::string RowsOf(SheetKind kind, RowWeight weight, const MainScreen& screen) {
    std::string rows;
    for (const SheetRow& row : SheetOf(kind).Rows) {
        if (row.Weight == weight)
            rows += TwoFigures(row, screen);
    }
    return rows;
}

void WriteHeads(PrintDocument& document, SheetKind kind) {
    const auto& heads = SheetOf(kind).Heads;
    std::string header("|");
    document.AddTable(ThreeColumns, header.append(heads[0]).append("|").append(heads[1]), "");
}

} // namespace

void WriteCashFlow(PrintDocument& document, const ReportContent& content) {
    const MainScreen& screen = content.State.Screen;
    BeginSectionBody(document);
    document.BeginTable();
    WriteTitleBar(document, "GREENMARK - More Value For Less Cost");
    WriteHeads(document, SheetKind::CashFlow);
    document.FontBold = false;
    // The last row stays empty for spacing.
    document.AddTable(ThreeColumns, "", RowsOf(SheetKind::CashFlow, RowWeight::Plain, screen) + ";");
    document.FontBold = true;
    document.AddTable(ThreeColumns, "", RowsOf(SheetKind::CashFlow, RowWeight::Total, screen));
    document.EndTable();
    document.Paragraph("");
}

void WriteSummary(PrintDocument& document, const ReportContent& content) {
    constexpr std::string_view wideSecond = "1440|>3780|>2340;";
    const MainScreen& screen = content.State.Screen;
    BeginSectionBody(document);
    document.BeginTable();
    WriteTitleBar(document, "Summary");
    WriteHeads(document, SheetKind::SummaryHomes);
    document.FontBold = false;
    document.AddTable(ThreeColumns, "", RowsOf(SheetKind::SummaryHomes, RowWeight::Plain, screen));
    document.FontBold = true;
    document.AddTable(ThreeColumns, "", RowsOf(SheetKind::SummaryHomes, RowWeight::Total, screen));
    const auto savings = SheetOf(SheetKind::SummarySavings).Rows;
    document.AddTable(wideSecond, "", OneFigure(savings.front(), screen));
    document.FontBold = false;
    std::string rows;
    for (const SheetRow& row : savings.subspan(1))
        rows += OneFigure(row, screen);
    document.AddTable(wideSecond, "", rows);
    if (screen.lblPVNote.Visible)
        WriteNote(document, screen.lblPVNote.Text);
    document.EndTable();
    document.Paragraph("");
}

void WriteBuyMoreHome(PrintDocument& document, const ReportContent& content) {
    const MainScreen& screen = content.State.Screen;
    BeginSectionBody(document);
    document.BeginTable();
    WriteTitleBar(document, "Buy More Home");
    document.FontBold = false;
    // The first row stays empty for spacing.
    std::string rows(";");
    for (const SheetRow& row : SheetOf(SheetKind::Purchase).Rows)
        rows += Row({Caption(row, screen), Money(screen.*row.Second), ""});
    document.AddTable("3860|>1100|<2600;", "",
                      rows + ";For the same monthly cost, consider these:|Option 1|" +
                          Money(screen.lblfeature1) + "; |Option 2|" + Money(screen.lblfeature2) + ";;");
    document.EndTable();
    document.Paragraph("");
}

void WriteAffordability(PrintDocument& document, const ReportContent& content) {
    const MainScreen& screen = content.State.Screen;
    BeginSectionBody(document);
    document.BeginTable();
    WriteTitleBar(document, "GREENMARK Qualified Homes are Affordable");
    WriteHeads(document, SheetKind::Affordability);
    document.FontBold = false;
    document.AddTable(ThreeColumns, "",
                      RowsOf(SheetKind::Affordability, RowWeight::Plain, screen) +
                          RowsOf(SheetKind::Affordability, RowWeight::Total, screen));
    WriteNote(document,
              "*Ledgrove only provides estimates & does not account for LTV - check with your bank");
    document.EndTable();
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
}

void WritePVVariables(PrintDocument& document, const AssumptionsScreen& dialog) {
    document.AllowBreak();
    document.AddTable("7560;", "", "Variables used to calculate the PV of the energy savings");
    document.AddTable("1880|^1340|^4340;", "",
                      "Rate|" + CellText(dialog.ecPV_Rate.Text) + "|;Term|" +
                          CellText(dialog.ecPV_Term.Text) + "|;;");
}

void WriteMultipliers(PrintDocument& document, const AssumptionsScreen& dialog) {
    document.AllowBreak();
    std::string steps;
    for (std::size_t row = 0; row < PMIRowCount; ++row)
        steps += std::string(PctDown_LessThan[row]) + "|" + CellText(dialog.PMI_Multiplier[row].Text) + "| ;";
    document.AddTable(">2500|>2500|2560;", "If Percent Down is less than:|Use PMI Multiplier:|", steps + ";");
}

void WriteRatios(PrintDocument& document, const AssumptionsScreen& dialog) {
    constexpr std::string_view format = "2880|^2340|^2340;";
    document.AllowBreak();
    document.FontBold = true;
    document.AddTable(format, "Mortgage|Front End Ratio|Back End Ratio", "");
    document.FontBold = false;
    std::string rows;
    for (std::size_t row = 0; row < dialog.RatioRows; ++row)
        rows += Row({CellText(dialog.lblLoanType[row]), CellText(dialog.FER[row].Text),
                     CellText(dialog.BER[row].Text)});
    document.AddTable(format, "", rows);
}

/// Opens the section's table with its title bar and first rows.
void BeginAssumptions(PrintDocument& document, const ReportContent& content) {
    BeginSectionBody(document);
    document.BeginTable();
    WriteTitleBar(document, "Financial Assumptions");
    document.FontBold = false;
    WriteAssumedValues(document, content);
}

} // namespace

void WriteFirstAssumptions(PrintDocument& document, const ReportContent& content) {
    BeginAssumptions(document, content);
    document.EndTable();
}

void WriteFinancialAssumptions(PrintDocument& document, const ReportContent& content) {
    BeginAssumptions(document, content);
    if (content.Assumptions.optUsePVVars)
        WritePVVariables(document, content.Assumptions);
    WriteMultipliers(document, content.Assumptions);
    WriteRatios(document, content.Assumptions);
    document.EndTable();
    document.Paragraph("");
}

} // namespace Ledgrove::modPrint
