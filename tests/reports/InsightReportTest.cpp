#include "reports/InsightReport.h"

#include "engine/Recalculate.h"
#include "reports/ReportChoices.h"
#include "tests/engine/TestSession.h"
#include "tests/reports/FixedMeasure.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

// The answers on every paper: nothing is torn, cut off or lost.
namespace Ledgrove {
namespace {

using namespace Testing;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr const char* continuedHeading = " Insight for Ledgrove (continued)";

std::vector<InsightQuestion> AllQuestions() {
    std::vector<InsightQuestion> questions;
    for (const QuestionRow& row : InsightQuestions)
        questions.push_back(row.Id);
    return questions;
}

class InsightReportTest : public testing::TestWithParam<ReportPaper> {
protected:
    InsightReportTest() { Module1::Recalculate(m_session, m_host); }

    void Write(const InsightRequest& request) {
        m_report = MakeInsightReport(m_session, request);
        m_document.Geometry = GeometryOf(GetParam());
        m_document.Footer = "||Page %d";
        m_document.FooterFont = {"Arial", 8};
        m_document.Start();
        modPrint::WriteInsight(m_document, m_report);
        m_document.End();
    }

    std::vector<std::string> PageTexts(std::size_t page) const {
        auto texts = TextsOf(m_document.Page(page));
        EXPECT_EQ(texts.back(), "Page " + std::to_string(page));
        texts.pop_back();
        return texts;
    }

    std::vector<std::string> AllTexts() const {
        std::vector<std::string> texts;
        for (std::size_t page = 1; page <= m_document.PageCount(); ++page)
            for (std::string& text : PageTexts(page))
                texts.push_back(std::move(text));
        return texts;
    }

    bool IsBanner(const std::string& text) const {
        return std::ranges::any_of(m_report.Sections, [&](const InsightSection& section) {
            return text == "  " + section.Question;
        });
    }

    Session m_session = SampleSession();
    ScriptedHost m_host;
    FixedMeasure m_measure{8};
    PrintDocument m_document{m_measure};
    InsightReport m_report;
};

TEST_P(InsightReportTest, EveryQuestionIsASectionAndABookmark) {
    Write({AllQuestions()});
    std::vector<std::string> words;
    for (const QuestionRow& row : InsightQuestions)
        words.emplace_back(row.Words);
    std::vector<std::string> bookmarks;
    for (const Bookmark& bookmark : m_document.Bookmarks())
        bookmarks.push_back(bookmark.Title);
    EXPECT_EQ(bookmarks, words);
    EXPECT_EQ(words.front(), "In short");
}

TEST_P(InsightReportTest, NothingLeavesTheMargins) {
    Write({AllQuestions()});
    const PageGeometry& page = m_document.Geometry;
    const Twips right = page.PageWidth - page.MarginRight;
    const Twips bottom = page.PageHeight - page.MarginBottom;
    for (std::size_t number = 1; number <= m_document.PageCount(); ++number) {
        auto runs = ItemsOf<TextRun>(m_document.Page(number));
        runs.pop_back(); // the footer
        for (const TextRun& run : runs) {
            EXPECT_GE(run.X, page.MarginLeft) << run.Text;
            EXPECT_LE(run.X + run.Width, right) << run.Text;
            EXPECT_LE(run.Baseline, bottom) << run.Text;
        }
        for (const PlacedChart& chart : ItemsOf<PlacedChart>(m_document.Page(number))) {
            EXPECT_LE(chart.Box.X2, right);
            EXPECT_LE(chart.Box.Y2, bottom);
        }
    }
}

TEST_P(InsightReportTest, NoPageEndsWithABannerOrAHead) {
    Write({AllQuestions()});
    for (std::size_t page = 1; page <= m_document.PageCount(); ++page) {
        auto runs = ItemsOf<TextRun>(m_document.Page(page));
        runs.pop_back(); // the footer
        ASSERT_FALSE(runs.empty());
        EXPECT_FALSE(IsBanner(runs.back().Text)) << page;
        EXPECT_FALSE(runs.back().Style.Bold) << runs.back().Text; // title bars and heads are
        const bool beginsWell = page == 1 || runs.front().Text == continuedHeading || runs.front().Style.Bold;
        EXPECT_TRUE(beginsWell) << runs.front().Text;
    }
}

TEST_P(InsightReportTest, EveryFurtherPageBeginsWithTheHeading) {
    for (const auto& questions : {AllQuestions(), {InsightQuestion::YearByYear}}) {
        Write({questions});
        ASSERT_GT(m_document.PageCount(), 1U);
        for (std::size_t page = 2; page <= m_document.PageCount(); ++page)
            EXPECT_EQ(PageTexts(page).front(), continuedHeading) << page;
        EXPECT_EQ(std::ranges::count(PageTexts(1), continuedHeading), 0);
    }
}

TEST_P(InsightReportTest, TheYearsBeginBelowTheirCurve) {
    Write({{InsightQuestion::YearByYear}});
    ASSERT_FALSE(ItemsOf<PlacedChart>(m_document.Page(1)).empty());
    const Twips half = m_document.Geometry.PageHeight / 2;
    const auto runs = ItemsOf<TextRun>(m_document.Page(1));
    EXPECT_THAT(PageTexts(1), Contains("Year by year")); // the table's title
    // In portrait, the first page is not left half empty.
    if (GetParam().Orientation == PageOrientation::Portrait) {
        EXPECT_GT((runs.end() - 2)->Baseline, half * 3 / 2); // the last is the footer
    }
}

TEST_P(InsightReportTest, NoNoteIsTorn) {
    Sheet sheet;
    sheet.Title = "Rows";
    sheet.Heads = {"Row", "Figure"};
    for (int word = 1; word <= 60; ++word)
        sheet.Note += "word" + std::to_string(word) + " ";
    sheet.Note.pop_back();
    m_document.Geometry = GeometryOf(GetParam());
    // Each row moves the note on, so that some of them would tear it.
    while (sheet.Rows.size() < 60) {
        sheet.Rows.push_back({TextCell("row"), TextCell("1")});
        m_document.Start();
        InsightReport report;
        report.Sections.push_back({"Question", sheet, {}});
        modPrint::WriteInsight(m_document, report);
        for (std::size_t page = 1; page <= m_document.PageCount(); ++page) {
            const auto has = [texts = TextsOf(m_document.Page(page))](const std::string& word) {
                return std::ranges::any_of(
                    texts, [&word](const std::string& text) { return text.find(word) != std::string::npos; });
            };
            EXPECT_EQ(has("word1 "), has("word60")) << sheet.Rows.size();
        }
    }
}

TEST_P(InsightReportTest, EveryFigureOfEveryTableIsThere) {
    Write({AllQuestions()});
    const auto texts = AllTexts();
    const std::multiset<std::string> printed(texts.begin(), texts.end());
    std::multiset<std::string> wanted;
    for (const InsightSection& section : m_report.Sections)
        for (const auto& row : section.Answer.Rows)
            for (const SheetCell& cell : row)
                if (cell.Number && cell.Mark != CellMark::Best)
                    wanted.insert(cell.Text);
    ASSERT_GT(wanted.size(), 100U);
    for (const std::string& text : std::set(wanted.begin(), wanted.end()))
        EXPECT_GE(printed.count(text), wanted.count(text)) << text;
}

TEST_P(InsightReportTest, ALongTableHasItsHeadsOnEachPageAndNoLoneRow) {
    Write({{InsightQuestion::WhereFrom}}); // all figures
    ASSERT_GT(m_document.PageCount(), 2U);
    std::size_t rows = 0;
    for (std::size_t page = 1; page <= m_document.PageCount(); ++page) {
        const auto texts = PageTexts(page);
        if (std::ranges::count(texts, "Assumptions") > 0 && std::ranges::count(texts, "Explanation") == 0)
            break; // what is assumed follows
        EXPECT_THAT(texts, Contains("Explanation")) << page;
        EXPECT_THAT(texts, Contains("With Numbers")) << page;
        const auto here = std::ranges::count_if(texts, [](const std::string& text) {
            return text.size() <= 6 && text.starts_with("[") && text.ends_with("]");
        });
        EXPECT_GE(here, 2) << page;
        rows += static_cast<std::size_t>(here);
    }
    EXPECT_GE(rows, m_report.Sections.front().Answer.Rows.size());
}

TEST_P(InsightReportTest, AFigureOfItsOwnIsDerivedAlone) {
    Write({{InsightQuestion::WhereFrom}, "StdCase.DownPayment"});
    const auto& rows = m_report.Sections.front().Answer.Rows;
    // The down payment comes from the percentage and the price.
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows.back()[1].Text, "Down Payment, Base Home");
    EXPECT_EQ(m_report.Sections.size(), 2U);
}

TEST_P(InsightReportTest, PicturesAreDrawnAndNotFiles) {
    Write({AllQuestions()});
    std::vector<ChartKind> kinds;
    for (std::size_t page = 1; page <= m_document.PageCount(); ++page)
        for (const PlacedChart& chart : ItemsOf<PlacedChart>(m_document.Page(page)))
            kinds.push_back(chart.Figures->Kind);
    EXPECT_THAT(kinds, ElementsAre(ChartKind::Sensitivity, ChartKind::NetMap, ChartKind::Curves,
                                   ChartKind::Curves, ChartKind::Curves));
}

TEST_P(InsightReportTest, AMapIsAboveItsTable) {
    Write({{InsightQuestion::InShort, InsightQuestion::PriceAndSavings}});
    for (std::size_t page = 1; page <= m_document.PageCount(); ++page) {
        const auto texts = PageTexts(page);
        EXPECT_EQ(std::ranges::count(texts, "Price difference and savings"),
                  static_cast<std::ptrdiff_t>(ItemsOf<PlacedChart>(m_document.Page(page)).size()));
    }
}

TEST_P(InsightReportTest, TheAssumptionsOfTheAnswersAreAtTheEnd) {
    m_session.Assumptions.UsePVVars = false;
    Write({{InsightQuestion::HowFar, InsightQuestion::TaxSaving}});
    ASSERT_EQ(m_report.Sections.size(), 3U);
    const InsightSection& last = m_report.Sections.back();
    EXPECT_EQ(last.Question, "What is assumed");
    std::vector<std::string> names;
    for (const auto& row : last.Answer.Rows)
        names.push_back(row.front().Text);
    EXPECT_THAT(names, Contains("Standard deduction"));
    EXPECT_THAT(names, Contains("Income tax rates"));
    EXPECT_THAT(names, Not(Contains("Cost of selling, of the price")));
    EXPECT_THAT(names, Not(Contains("Present value of savings: rate"))); // the mortgage's is in force
    EXPECT_THAT(AllTexts(), Contains("Standard deduction"));
}

TEST_P(InsightReportTest, TriedSettingsArePrintedWithTheirAnswer) {
    InsightRequest request{{InsightQuestion::YearByYear}};
    request.Years = m_session.Years;
    request.Years->UtilityGrowth = 0.03;
    request.Year = 2;
    Write(request);
    EXPECT_EQ(m_report.Sections.front().Answer.Rows.front().front().Text, "13");
    EXPECT_THAT(m_report.Sections.front().Answer.Note, HasSubstr("utility bills rise by 3% a year"));
    EXPECT_THAT(m_report.Sections.front().Answer.Note, HasSubstr("The expected savings on the Summary tab"));
    const auto& rows = m_report.Sections.back().Answer.Rows;
    const auto growth = std::ranges::find_if(
        rows, [](const auto& row) { return row.front().Text == "Growth of utility bills, a year"; });
    ASSERT_NE(growth, rows.end());
    EXPECT_EQ((*growth)[1].Text, "3.00%");
    EXPECT_EQ(growth->back().Text, "your own, tried and not kept");
}

TEST_P(InsightReportTest, TheNamesAreInTheTitle) {
    m_session.Header.HomeBuyer = "Pat Doe";
    m_session.Header.BuilderName = "Acme Homes";
    Write({{InsightQuestion::InShort}});
    EXPECT_EQ(PageTexts(1).front(), "Insight for Ledgrove");
    EXPECT_THAT(PageTexts(1), Contains("Prepared For: Pat Doe"));
    EXPECT_EQ(m_document.PdfTitle, "Insight for Pat Doe, prepared by Acme Homes");
    EXPECT_EQ(m_document.Author, "Acme Homes");
}

TEST_P(InsightReportTest, WithoutPricesThereIsAReason) {
    m_session.Screen.ecStdHome.Text = "";
    Module1::Recalculate(m_session, m_host);
    const InsightReport report = MakeInsightReport(m_session, {AllQuestions()});
    EXPECT_EQ(report.Missing, "Enter the price of the base home.");
    EXPECT_TRUE(report.Sections.empty());
}

std::vector<ReportPaper> AllPapers() {
    std::vector<ReportPaper> papers;
    for (const PaperSize size : {PaperSize::Letter, PaperSize::A4, PaperSize::Legal})
        for (const PageOrientation orientation : {PageOrientation::Portrait, PageOrientation::Landscape})
            papers.push_back({size, orientation});
    return papers;
}

INSTANTIATE_TEST_SUITE_P(EachPaper, InsightReportTest, testing::ValuesIn(AllPapers()), [](const auto& paper) {
    std::string name = NamesOf(paper.param);
    std::ranges::replace(name, ' ', '_');
    return name;
});

TEST(InsightQuestionsTest, EachQuestionButThatAboutAssumptionsNamesItsView) {
    for (const QuestionRow& row : InsightQuestions)
        EXPECT_EQ(row.View.empty(), row.Id == InsightQuestion::Assumed) << row.Words;
}

} // namespace
} // namespace Ledgrove
