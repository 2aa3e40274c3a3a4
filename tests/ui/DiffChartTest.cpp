#include "ui/DiffChart.h"

#include "tests/insight/SimpleComparison.h"

#include <gmock/gmock.h>

namespace Ledgrove {
namespace {

using testing::ElementsAre;

/// $6,000 more of price costs $50 a month, no utility bill saves $100, and the income does not move the net.
class DiffChartTest : public testing::Test {
protected:
    DiffChartTest() {
        m_b.Screen.ecIncome.Text = "$30,000";
        m_b.Screen.ecGMHHome.Text = "$132,000";
        m_b.Screen.ecGMHUtil.Text = "$0";
        m_diff = ComputeDiff(Insight(m_a.Screen, m_a), Insight(m_b.Screen, m_b));
    }

    std::optional<ChartFigures> ChartOf(std::string_view label) const {
        const DiffFigure* const figure = m_diff.FigureOfLabel(label);
        EXPECT_TRUE(figure) << label;
        return figure ? MakeWaterfall(m_diff, *figure) : std::nullopt;
    }

    Session m_a = Testing::SimpleSession();
    Session m_b = Testing::SimpleSession();
    Diff m_diff;
};

TEST_F(DiffChartTest, TheBarsLeadFromAToB) {
    const auto chart = ChartOf("lblNetCashMoTx");
    ASSERT_TRUE(chart);
    EXPECT_EQ(chart->Kind, ChartKind::Waterfall);
    EXPECT_EQ(chart->Title, "What Changes the Net Monthly Cash Flow before Tax Savings");
    EXPECT_THAT(chart->Categories, ElementsAre("In A", "Sticker Price, GREENMARK Home",
                                               "Annual Utility Cost, GREENMARK Home", "In B"));
    EXPECT_THAT(chart->Series[0].Values, ElementsAre(50, 50, 0, 100));
    EXPECT_THAT(chart->Series[1].Values, ElementsAre(50, 0, 100, 100));
    EXPECT_THAT(chart->Series[1].Texts, ElementsAre("$50.00", "-$50.00", "+$100.00", "$100.00"));
    EXPECT_EQ(chart->Numbers, "In A: $50.00. Sticker Price, GREENMARK Home: -$50.00. Annual Utility Cost, "
                              "GREENMARK Home: +$100.00. In B: $100.00.");
    EXPECT_NE(chart->Sentence, "");
}

TEST_F(DiffChartTest, TheScaleHoldsEveryBar) {
    const auto chart = ChartOf("lblGMHPITI");
    ASSERT_TRUE(chart);
    // From $1,050 to $1,100 a month: the bars would be invisible on a scale from 0.
    EXPECT_LT(chart->Lowest, 1'050);
    EXPECT_GT(chart->Lowest, 1'000);
    EXPECT_GT(chart->Highest, 1'100);
    EXPECT_FALSE(chart->Ticks.empty());
}

/// The utility bills fall from $100 to $0, the maximum payment from $1,400 to $700: both scales show 0.
TEST_F(DiffChartTest, TheScaleBeginsAtZeroWhereTheBarsAreNear) {
    for (const std::string_view label : {"lblGMHUtilMo", "lblGMHInc"}) {
        const auto chart = ChartOf(label);
        ASSERT_TRUE(chart);
        EXPECT_LE(chart->Lowest, 0) << label;
        EXPECT_GT(chart->Lowest, -100) << label;
    }
}

TEST_F(DiffChartTest, WhoQualifiesIsNotAnAmount) {
    EXPECT_FALSE(ChartOf("lblStdQual"));
}

TEST_F(DiffChartTest, WithoutPartsThereIsNoChart) {
    DiffFigure figure = *m_diff.FigureOfLabel("lblNetCashMoTx");
    figure.Parts.reset();
    EXPECT_FALSE(MakeWaterfall(m_diff, figure));
}

} // namespace
} // namespace Ledgrove
