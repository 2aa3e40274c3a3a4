#include "reports/ChangesReport.h"

#include "reports/SectionParts.h"
#include "reports/SheetTable.h"
#include "reports/modPrint.h"

#include <functional>
#include <memory>
#include <utility>

namespace Ledgrove {

ChangesReport MakeChangesReport(const Session& session, ChangesAnswer answer, int logoOption) {
    return {session.Header, session.EmblemFile(), LogoPicture(session, logoOption), std::move(answer)};
}

} // namespace Ledgrove

namespace Ledgrove::modPrint {

namespace {

constexpr std::string_view continuedHeading = " What changed? (continued)";
constexpr Twips sentenceGap = 120;

void WriteSentence(PrintDocument& document, const std::string& sentence, int font) {
    BeginSectionBody(document);
    document.TextAlign = 0;
    document.FontBold = false;
    document.FontSize = font;
    document.Paragraph(sentence);
    document.CurrentY += sentenceGap;
}

struct Section {
    std::string Banner;
    const Sheet& Table;
    std::shared_ptr<const ChartFigures> Picture = {};
};

void WriteBody(PrintDocument& document, const Section& section) {
    constexpr int sentenceFont = 10;
    constexpr int chartFont = 9;
    constexpr Twips widestChart = 10800; // as on letter paper in portrait
    constexpr Twips aroundBars = 1300;   // title and scale
    constexpr Twips rowHeight = 380;
    document.Paragraph("");
    WriteBanner(document, "  " + section.Banner);
    WriteSentence(document, section.Table.Sentence, sentenceFont);
    if (section.Picture) {
        document.FontSize = chartFont;
        document.Chart(section.Picture, widestChart,
                       aroundBars + rowHeight * static_cast<Twips>(section.Picture->Categories.size()));
        document.CurrentY += 2 * sentenceGap;
    }
    WriteSheetTable(document, section.Table);
}

/// On a new page if only that holds the whole section.
void WriteSection(PrintDocument& document, const Section& section) {
    const auto write = [&section](PrintDocument& on) { WriteBody(on, section); };
    const Twips height = document.HeightOf(write);
    const bool fitsHere = height <= document.Room();
    if (!fitsHere) {
        document.NewPage();
        WriteContinuedHeading(document, continuedHeading);
    }
    document.KeepTables = fitsHere || height <= document.Room();
    write(document);
    document.KeepTables = true;
}

} // namespace

void WriteChanges(PrintDocument& document, const ChangesReport& report) {
    constexpr int answerFont = 12;
    const ChangesAnswer& answer = report.Answer;
    WriteTitleBlock(document, {"What changed?", "What changed", report.Names, report.Emblem, report.Logo});
    document.Paragraph("");
    WriteSentence(document, answer.Sentence, answerFont);
    WriteSection(document, {std::string(answer.Inputs.Title), answer.Inputs});
    if (answer.Figures.Rows.empty())
        return;
    WriteSection(document, {std::string(answer.Figures.Title), answer.Figures});
    Section parts{std::string(answer.Parts.Title) + ": " + answer.Caption, answer.Parts};
    if (answer.Picture)
        parts.Picture = std::make_shared<const ChartFigures>(*answer.Picture);
    WriteSection(document, parts);
}

} // namespace Ledgrove::modPrint
