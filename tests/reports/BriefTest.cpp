#include "reports/Brief.h"

#include "engine/Recalculate.h"
#include "reports/ReportChoices.h"
#include "tests/engine/TestSession.h"
#include "tests/reports/FixedMeasure.h"

#include <gmock/gmock.h>

#include <set>

// The buyer's brief on every paper: one page, nothing cut off.
namespace Ledgrove {
namespace {

using namespace Testing;
using testing::Contains;
using testing::HasSubstr;

class BriefTest : public testing::TestWithParam<ReportPaper> {
protected:
    BriefTest() { Module1::Recalculate(m_session, m_host); }

    void Write() { Write(MakeBrief(m_session, 1, "11/22/2026")); }
    void Write(const Brief& brief) {
        m_document.Geometry = GeometryOf(GetParam());
        m_document.FontName = "Arial";
        m_document.Footer = "||Page %d";
        m_document.Start();
        modPrint::WriteBrief(m_document, brief);
        m_document.End();
    }

    const PrintPage& Page() const { return m_document.Page(1); }

    Session m_session = SampleSession();
    ScriptedHost m_host;
    FixedMeasure m_measure{8};
    PrintDocument m_document{m_measure};
};

TEST_P(BriefTest, IsOnePageWithinItsMargins) {
    Write();
    ASSERT_EQ(m_document.PageCount(), 1U);
    const PageGeometry page = GeometryOf(GetParam());
    for (const TextRun& run : ItemsOf<TextRun>(Page())) {
        EXPECT_GE(run.X, page.MarginLeft) << run.Text;
        EXPECT_LE(run.X + run.Width, page.PageWidth - page.MarginRight) << run.Text;
        EXPECT_LE(run.Y + m_measure.LineHeight(run.Style), page.PageHeight - page.MarginBottom) << run.Text;
    }
    for (const PlacedChart& chart : ItemsOf<PlacedChart>(Page()))
        EXPECT_LE(chart.Box.X2, page.PageWidth - page.MarginRight);
}

TEST_P(BriefTest, HasTwoSizesOfTypeAndNoBanners) {
    Write();
    std::set<int> sizes;
    for (const TextRun& run : ItemsOf<TextRun>(Page())) {
        sizes.insert(run.Style.FontSize);
        EXPECT_EQ(run.Style.Colour, PrintBlack) << run.Text;
    }
    for (const PlacedChart& chart : ItemsOf<PlacedChart>(Page()))
        sizes.insert(chart.Style.FontSize);
    EXPECT_EQ(sizes.size(), 2U);
    for (const FilledRectangle& rectangle : ItemsOf<FilledRectangle>(Page()))
        EXPECT_LE(rectangle.Box.Y2 - rectangle.Box.Y1, 20) << "more than a rule";
    EXPECT_EQ(ItemsOf<PlacedChart>(Page()).size(), 2U);
}

TEST_P(BriefTest, NamesOfAnyLengthLeaveOnePage) {
    for (const std::string& name : {std::string(5000, 'x'), std::string(200, ' ') + "é", [] {
                                        std::string words;
                                        for (int i = 0; i < 400; ++i)
                                            words += "größere Häuser ";
                                        return words;
                                    }()}) {
        m_session.Header.BuilderName = name;
        m_session.Header.HomeBuyer = name;
        Write();
        EXPECT_EQ(m_document.PageCount(), 1U) << name.substr(0, 20);
        for (const TextRun& run : ItemsOf<TextRun>(Page()))
            EXPECT_TRUE(run.Text.empty() || (static_cast<unsigned char>(run.Text[0]) & 0xC0U) != 0x80U)
                << "a name is cut within a character";
    }
}

TEST_P(BriefTest, ManyLongSentencesLeaveOnePage) {
    Brief brief = MakeBrief(m_session, 0, "11/22/2026");
    const std::string sentence = "The buyer would qualify for the GREENMARK home with a down payment of "
                                 "$9,999,999 ($9,999,999 more), a price of $9,999,999 ($9,999,999 less), an "
                                 "income of $9,999,999 ($9,999,999 more), a monthly debt of $999,999.";
    brief.Sentences.assign(7, sentence);
    Write(brief);
    EXPECT_EQ(m_document.PageCount(), 1U);
    EXPECT_THAT(TextsOf(Page()), Contains(HasSubstr("Because actual home energy costs")));
}

TEST(BriefContents, WithoutPricesThereIsNone) {
    Session session = SampleSession();
    session.Screen.ecStdHome.Text = "";
    EXPECT_EQ(MakeBrief(session, 0, "").Missing, "Enter the price of the base home.");
}

TEST(BriefContents, TheCurveNamesTheYearsInTheHome) {
    Session session = SampleSession();
    ScriptedHost host;
    Module1::Recalculate(session, host);
    const Brief brief = MakeBrief(session, 0, "");
    const std::string years =
        std::to_string(session.Assumptions.YearsInHome) + " years: " + brief.Figures[8].GMH;
    const auto& marks = brief.Savings->Curves.Marks;
    EXPECT_TRUE(std::ranges::any_of(marks, [&](const CurveMark& mark) { return mark.Text == years; }));
}

INSTANTIATE_TEST_SUITE_P(Papers, BriefTest,
                         testing::Values(ReportPaper{PaperSize::Letter, PageOrientation::Portrait},
                                         ReportPaper{PaperSize::A4, PageOrientation::Portrait},
                                         ReportPaper{PaperSize::Legal, PageOrientation::Portrait},
                                         ReportPaper{PaperSize::Letter, PageOrientation::Landscape},
                                         ReportPaper{PaperSize::A4, PageOrientation::Landscape}));

} // namespace
} // namespace Ledgrove
