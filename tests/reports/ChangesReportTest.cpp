#include "reports/ChangesReport.h"

#include "reports/ReportChoices.h"
#include "tests/insight/SimpleComparison.h"
#include "tests/reports/FixedMeasure.h"

#include <gmock/gmock.h>

#include <algorithm>

// What changed on every paper: everything is there, and nothing is torn or cut off.
namespace Ledgrove {
namespace {

using namespace Testing;
using testing::Contains;
using testing::ElementsAre;

/// The texts of all cells but those of the first column, which may break.
std::vector<std::string> AmountsOf(const Sheet& sheet) {
    std::vector<std::string> amounts;
    for (const auto& row : sheet.Rows)
        for (const SheetCell& cell : row)
            if (&cell != &row.front() && !cell.Text.empty())
                amounts.push_back(cell.Text);
    return amounts;
}

class ChangesReportTest : public testing::TestWithParam<ReportPaper> {
protected:
    ChangesReportTest() {
        m_b.Screen.ecIncome.Text = "$30,000";
        m_b.Screen.ecGMHHome.Text = "$132,000"; // $50 a month
    }

    void Write(const std::string& figure = "") {
        m_answer = CompareSides({"\"Before\"", &m_a}, {"the screen", &m_b}, figure);
        m_document.Geometry = GeometryOf(GetParam());
        m_document.Footer = "||Page %d";
        m_document.FooterFont = {"Arial", 8};
        m_document.Start();
        modPrint::WriteChanges(m_document, MakeChangesReport(m_a, m_answer, 0));
        m_document.End();
    }

    std::vector<std::string> AllTexts() const {
        std::vector<std::string> texts;
        for (std::size_t page = 1; page <= m_document.PageCount(); ++page)
            for (std::string& text : TextsOf(m_document.Page(page)))
                texts.push_back(std::move(text));
        return texts;
    }

    std::vector<PlacedChart> Charts() const {
        std::vector<PlacedChart> charts;
        for (std::size_t page = 1; page <= m_document.PageCount(); ++page)
            for (const PlacedChart& chart : ItemsOf<PlacedChart>(m_document.Page(page)))
                charts.push_back(chart);
        return charts;
    }

    std::vector<std::string> Bookmarks() const {
        std::vector<std::string> titles;
        for (const Bookmark& bookmark : m_document.Bookmarks())
            titles.push_back(bookmark.Title);
        return titles;
    }

    Session m_a = SimpleSession();
    Session m_b = SimpleSession();
    ChangesAnswer m_answer;
    FixedMeasure m_measure{8};
    PrintDocument m_document{m_measure};
};

TEST_P(ChangesReportTest, TheSentenceTablesAndPictureAreThere) {
    Write();
    EXPECT_THAT(Bookmarks(), ElementsAre("Inputs that differ", "Figures that moved",
                                         "Parts of the change: Net Monthly Cash Flow before Tax Savings"));
    std::string all;
    for (const std::string& text : AllTexts())
        all += text + ' ';
    EXPECT_NE(all.find("the monthly net goes from $50 to $0;"), std::string::npos) << all;
    const auto texts = AllTexts();
    for (const Sheet* sheet : {&m_answer.Inputs, &m_answer.Figures, &m_answer.Parts})
        for (const std::string& amount : AmountsOf(*sheet))
            EXPECT_THAT(texts, Contains(amount)) << sheet->Title;
    ASSERT_EQ(Charts().size(), 1U);
    EXPECT_EQ(*Charts().front().Figures, *m_answer.Picture);
}

TEST_P(ChangesReportTest, NothingLeavesTheMargins) {
    Write();
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
    }
    for (const PlacedChart& chart : Charts()) {
        EXPECT_LE(chart.Box.X2, right);
        EXPECT_LE(chart.Box.Y2, bottom);
    }
}

TEST_P(ChangesReportTest, NoPageEndsWithABannerOrAHead) {
    Write();
    for (std::size_t page = 1; page <= m_document.PageCount(); ++page) {
        auto runs = ItemsOf<TextRun>(m_document.Page(page));
        runs.pop_back(); // the footer
        ASSERT_FALSE(runs.empty());
        EXPECT_FALSE(runs.back().Text.starts_with("  ")) << runs.back().Text;
        EXPECT_FALSE(runs.back().Style.Bold) << runs.back().Text; // title bars and heads are
    }
}

TEST_P(ChangesReportTest, WhoQualifiesHasNoPicture) {
    Write("StdCase.Qualifies");
    EXPECT_THAT(Bookmarks(), Contains("Parts of the change: Buyer Qualifies?, Base Home"));
    EXPECT_TRUE(Charts().empty());
}

TEST_P(ChangesReportTest, WithoutFiguresThereAreOnlyTheInputs) {
    m_b = m_a;
    m_b.Screen.ecStdStr.Text = "$1,000"; // no formula uses it
    Write();
    EXPECT_THAT(Bookmarks(), ElementsAre("Inputs that differ"));
    EXPECT_EQ(m_document.PageCount(), 1U);
}
INSTANTIATE_TEST_SUITE_P(EachPaper, ChangesReportTest,
                         testing::Values(ReportPaper{PaperSize::Letter, PageOrientation::Portrait},
                                         ReportPaper{PaperSize::Letter, PageOrientation::Landscape},
                                         ReportPaper{PaperSize::A4, PageOrientation::Portrait},
                                         ReportPaper{PaperSize::Legal, PageOrientation::Landscape}),
                         [](const auto& paper) {
                             std::string name = NamesOf(paper.param);
                             std::ranges::replace(name, ' ', '_');
                             return name;
                         });

} // namespace
} // namespace Ledgrove
