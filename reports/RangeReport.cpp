#include "reports/RangeReport.h"

#include "engine/NumberText.h"
#include "reports/SectionParts.h"
#include "reports/SheetTable.h"
#include "reports/modPrint.h"

namespace Ledgrove {

namespace {

std::string OrNothing(const std::string& text) {
    return text.empty() ? "$0" : text;
}

std::string DownPaymentWords(const MainScreen& screen) {
    if (screen.optDownPayment == 0)
        return (screen.ecPctDown.Text.empty() ? "0%" : screen.ecPctDown.Text) + " down";
    return OrNothing(screen.ecFixedDown.Text) + " down";
}

/// The field of the base home's rate has no "%" until it is entered.
std::string PercentOf(const Field& rate) {
    return rate.Text + (rate.Text.ends_with('%') ? "" : "%");
}

std::string RateWords(const MainScreen& screen) {
    const std::string base = PercentOf(screen.ecStdRate);
    const std::string labelled = PercentOf(screen.ecGMHRate);
    const bool isSame = Module1::ParseFieldValue(base, 1) == Module1::ParseFieldValue(labelled, 1);
    return isSame ? labelled : base + " (base home) and " + labelled + " (GREENMARK home)";
}

std::string BuyerSentence(const MainScreen& screen) {
    return "For an income of " + OrNothing(screen.ecIncome.Text) + " a year, a debt of " +
           OrNothing(screen.ecMonthlyDebt.Text) + " a month, " + DownPaymentWords(screen) + ", over " +
           std::string(screen.cboMortTerm.Text()) + " at " + RateWords(screen) + ". Income tax is " +
           (screen.chkDoTax0 ? "included." : "not included.");
}

} // namespace

RangeReport MakeRangeReport(const Session& session, const Range& range, int logoOption) {
    return {session.Header, session.EmblemFile(), LogoPicture(session, logoOption),
            BuyerSentence(session.Screen), RangeSheet(range)};
}

} // namespace Ledgrove

namespace Ledgrove::modPrint {

void WriteRange(PrintDocument& document, const RangeReport& report) {
    constexpr int sentenceFont = 10;
    constexpr Twips sentenceGap = 120;
    WriteTitleBlock(document,
                    {"House Range for Ledgrove", "House range", report.Names, report.Emblem, report.Logo});
    document.Paragraph("");
    BeginSectionBody(document);
    document.TextAlign = 0;
    document.FontBold = false;
    document.FontSize = sentenceFont;
    document.Paragraph(report.Buyer);
    document.Paragraph(report.Houses.Sentence);
    document.Paragraph(report.Houses.Note);
    document.CurrentY += sentenceGap;
    if (report.Houses.Rows.empty())
        return;
    // The table begins below the title although it might fit on a page of its own.
    document.KeepTables = false;
    WriteSheetTable(document, report.Houses);
    document.KeepTables = true;
}

} // namespace Ledgrove::modPrint
