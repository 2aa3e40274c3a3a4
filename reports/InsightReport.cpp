#include "reports/InsightReport.h"

#include "reports/SectionParts.h"
#include "reports/SheetTable.h"
#include "reports/modPrint.h"
#include "ui/AssumptionList.h"

#include <algorithm>
#include <utility>

namespace Ledgrove {

namespace {

std::string WordsOf(InsightQuestion question) {
    const auto row = std::find_if(InsightQuestions.begin(), InsightQuestions.end(),
                                  [question](const QuestionRow& one) { return one.Id == question; });
    return std::string(row->Words);
}

InsightSection SectionOf(InsightQuestion question, InsightAnswer answer, bool allFigures) {
    InsightSection section{WordsOf(question), std::move(answer.Table), {}};
    if (answer.Picture)
        section.Picture = std::make_shared<const ChartFigures>(std::move(*answer.Picture));
    if (answer.Chain && allFigures)
        section.Answer = ExplainSheet(*answer.Chain);
    return section;
}

std::vector<InsightAsk> AsksOf(const InsightRequest& request) {
    std::vector<InsightAsk> asks;
    for (const InsightQuestion question : request.Questions)
        asks.push_back({question, request.Figure.value_or(""), request.Year});
    return asks;
}

} // namespace

InsightReport MakeInsightReport(const Session& session, const InsightRequest& request) {
    const YearSettings years = request.Years.value_or(session.Years);
    auto list = AnswersOf(AsksOf(request), session, years, request.By);
    InsightReport report{std::move(list.Missing),
                         session.Header,
                         session.EmblemFile(),
                         LogoPicture(session, request.LogoOption),
                         {}};
    for (std::size_t at = 0; at < list.Answers.size(); ++at)
        report.Sections.push_back(
            SectionOf(request.Questions[at], std::move(list.Answers[at]), !request.Figure));
    const bool hasAll = std::ranges::count(request.Questions, InsightQuestion::Assumed) > 0;
    if (report.Missing.empty() && !hasAll)
        report.Sections.push_back({WordsOf(InsightQuestion::Assumed),
                                   AssumptionSheet(KeysUsedBy(request.Questions, session), session, years),
                                   {}});
    return report;
}

} // namespace Ledgrove

namespace Ledgrove::modPrint {

namespace {

constexpr std::string_view continuedHeading = " Insight for Ledgrove (continued)";
constexpr int sentenceFont = 10;
constexpr int chartFont = 9;
constexpr Twips sentenceGap = 120;
constexpr Twips widestChart = 10800; ///< as on letter paper in portrait

void BeginSentences(PrintDocument& document) {
    BeginSectionBody(document);
    document.TextAlign = 0;
    document.FontBold = false;
    document.FontSize = sentenceFont;
}

/// A table of one column is a list of sentences.
bool IsList(const InsightSection& section) {
    return section.Answer.Heads.size() == 1;
}

void WriteSentences(PrintDocument& document, const InsightSection& section) {
    BeginSentences(document);
    if (!IsList(section))
        document.Paragraph(section.Answer.Sentence);
    else
        for (const auto& row : section.Answer.Rows) {
            document.Paragraph(row.front().Text);
            document.CurrentY += sentenceGap;
        }
    document.CurrentY += sentenceGap;
}

/// A map fills half a page and curves a quarter, so that the table has room below.
Twips ChartHeight(const ChartFigures& chart, Twips page) {
    constexpr Twips aroundBars = 1300; ///< title, legend and scale
    constexpr Twips rowHeight = 380;
    constexpr Twips leastCurves = 3200;
    if (chart.Kind == ChartKind::NetMap)
        return page / 2;
    if (chart.Kind == ChartKind::Curves)
        return std::max(leastCurves, page / 4);
    return aroundBars + rowHeight * static_cast<Twips>(std::max<std::size_t>(chart.Categories.size(), 1));
}

/// Everything above the table.
void WriteTop(PrintDocument& document, const InsightSection& section, Twips page) {
    document.Paragraph("");
    WriteBanner(document, "  " + section.Question);
    WriteSentences(document, section);
    if (!section.Picture)
        return;
    document.FontSize = chartFont;
    document.Chart(section.Picture, widestChart, ChartHeight(*section.Picture, page));
    document.CurrentY += 2 * sentenceGap;
}

/// A note that does not fit goes on the next page as a whole.
void WriteNoteBelow(PrintDocument& document, const std::string& note) {
    const auto write = [&note](PrintDocument& target) {
        BeginSentences(target);
        target.Paragraph(note);
    };
    if (document.HeightOf(write) > document.Room())
        document.NewPage();
    write(document);
    document.CurrentY += sentenceGap;
}

/// `page` is what a page offers, in twips.
void WriteWhole(PrintDocument& document, const InsightSection& section, Twips page) {
    WriteTop(document, section, page);
    if (!IsList(section))
        WriteSheetTable(document, section.Answer);
    if (!section.Answer.Note.empty())
        WriteNoteBelow(document, section.Answer.Note);
}

/// Only curves are above tables that may be as long as a page.
bool MayTearTable(const InsightSection& section) {
    return !section.Picture || section.Picture->Kind == ChartKind::Curves;
}

/// What must not be torn off: the top, and the first two rows of a table that begins below it.
InsightSection BeginningOf(const InsightSection& section) {
    InsightSection beginning = section;
    auto& rows = beginning.Answer.Rows;
    const std::size_t kept = MayTearTable(section) ? 2 : 0;
    if (!IsList(section) && rows.size() > kept)
        rows.resize(kept);
    return beginning;
}

void WriteSection(PrintDocument& document, const InsightSection& section, bool isFirst) {
    const Twips page = document.PageRoom();
    const auto heightOf = [&document, page](const InsightSection& what) {
        return document.HeightOf([&](PrintDocument& trial) { WriteWhole(trial, what, page); });
    };
    const Twips height = heightOf(section);
    const bool fitsHere = height <= document.Room();
    const bool fitsOnePage = fitsHere || (!isFirst && height <= page);
    const bool isLow = !isFirst && document.Room() < page / 2;
    const bool moves =
        !fitsHere && (fitsOnePage || isLow || heightOf(BeginningOf(section)) > document.Room());
    if (moves)
        document.NewPage();
    document.KeepTables = fitsOnePage || !MayTearTable(section);
    WriteWhole(document, section, page);
    document.KeepTables = true;
}

} // namespace

void WriteInsight(PrintDocument& document, const InsightReport& report) {
    WriteTitleBlock(document, {"Insight for Ledgrove", "Insight", report.Names, report.Emblem, report.Logo});
    document.Heading = [](PrintDocument& page) { WriteContinuedHeading(page, continuedHeading); };
    for (const InsightSection& section : report.Sections)
        WriteSection(document, section, &section == &report.Sections.front());
    document.Heading = nullptr;
}

} // namespace Ledgrove::modPrint
