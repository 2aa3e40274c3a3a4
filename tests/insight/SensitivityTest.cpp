#include "insight/Sensitivity.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "tests/insight/SimpleComparison.h"

namespace Ledgrove {
namespace {

Sensitivity SensitivityOf(const Session& session, double by = 10) {
    const Insight insight(session.Screen, session);
    EXPECT_EQ(insight.Missing(), "");
    return ComputeSensitivity(insight, by);
}

const SensitivityRow& RowNamed(const Sensitivity& sensitivity, std::string_view name) {
    return *std::find_if(sensitivity.Rows.begin(), sensitivity.Rows.end(),
                         [name](const SensitivityRow& row) { return row.Input == name; });
}

void ExpectTexts(const SensitivityRow& row, const char* low, const char* high) {
    ASSERT_TRUE(row.Low && row.High) << row.Input;
    EXPECT_EQ(row.Low->Values.front().Text, low) << row.Input;
    EXPECT_EQ(row.High->Values.front().Text, high) << row.Input;
}

void ExpectNumbers(const SensitivityRow& row, double low, double high) {
    ASSERT_TRUE(row.Low && row.High) << row.Input;
    EXPECT_FALSE(row.Low->Values.front().IsText);
    EXPECT_DOUBLE_EQ(row.Low->Values.front().Number, low) << row.Input;
    EXPECT_DOUBLE_EQ(row.High->Values.front().Number, high) << row.Input;
}

TEST(Sensitivity, ScalesTheDifferencesByTheLabelledHome) {
    const Sensitivity result = SensitivityOf(Testing::SimpleSession());
    // $6,000 -+ 10 % above $120,000, which costs $45 or $55 a month of the $100 saved.
    const SensitivityRow& upgrade = RowNamed(result, "upgrade");
    ExpectTexts(upgrade, "$125,400", "$126,600");
    EXPECT_FLOAT_EQ(upgrade.Low->ShownNet, 55);
    EXPECT_FLOAT_EQ(upgrade.High->ShownNet, 45);
    // $1,200 -+ 10 % below $2,400: $90 or $110 a month less $50.
    const SensitivityRow& savings = RowNamed(result, "savings");
    ExpectTexts(savings, "$1,320", "$1,080");
    EXPECT_FLOAT_EQ(savings.Low->ShownNet, 40);
    EXPECT_FLOAT_EQ(savings.High->ShownNet, 60);
    EXPECT_FLOAT_EQ(savings.Low->PVSavings, 90 * 120);
}

TEST(Sensitivity, MovesZerosByASmallAmount) {
    Session session = Testing::SimpleSession();
    session.Screen.ecGMHHome.Text = "$120,000";
    const Sensitivity result = SensitivityOf(session);
    ExpectTexts(RowNamed(result, "down"), "0.00%", "1.00%");
    ExpectTexts(RowNamed(result, "debt"), "$0", "$100");
    ExpectTexts(RowNamed(result, "upgrade"), "$118,800", "$121,200");
    session.Screen.optDownPayment = 1;
    session.Screen.ecFixedDown.Text = "$0";
    ExpectTexts(RowNamed(SensitivityOf(session), "down"), "$0", "$1,200");
}

TEST(Sensitivity, PutsValuesIntoTheStepsAndRanges) {
    Session session = Testing::SimpleSession();
    session.Screen.ecIncome.Text = "$134,225"; // x 0.9 = 120,802.5, x 1.1 = 147,647.5
    session.Screen.ecPctDown.Text = "97.00%";
    session.Screen.ecStdRate.Text = "0.500%";
    const Sensitivity result = SensitivityOf(session);
    ExpectTexts(RowNamed(result, "income"), "$120,803", "$147,648");
    ExpectTexts(RowNamed(result, "down"), "87.30%", "100.00%");
    const SensitivityRow& rates = RowNamed(result, "rates");
    ASSERT_TRUE(rates.Low && rates.Low->IsList && rates.Low->Values.size() == 2);
    EXPECT_EQ(rates.Low->Values[0].Text, "0.001%");
    EXPECT_EQ(rates.Low->Values[1].Text, "0.000%"); // its range begins at the value now
    EXPECT_EQ(rates.High->Values[0].Text, "1.500%");
    EXPECT_EQ(rates.High->Values[1].Text, "1.000%");
}

TEST(Sensitivity, TakesTheNextTermsOfTheList) {
    const SensitivityRow term = RowNamed(SensitivityOf(Testing::SimpleSession()), "term");
    EXPECT_FALSE(term.Low);
    ASSERT_TRUE(term.High);
    EXPECT_EQ(term.High->Values.front().Text, "15 years");
    // Over 180 months the $6,000 cost $33.33.
    EXPECT_NEAR(static_cast<double>(term.High->ShownNet), 100 - 6'000 / 180.0, 1e-3);
    // The side that is missing counts as the $50 now.
    EXPECT_NEAR(term.NetMove, 50 - 6'000 / 180.0, 1e-3);
}

TEST(Sensitivity, ScalesAssumptionsAsTheSettingsFileHasThem) {
    Session session = Testing::SimpleSession();
    session.Assumptions.RealEstateTaxPct = 1.5F;
    session.Assumptions.InsurancePct = 0.35F;
    session.Assumptions.PMIMult1 = 0.0104F;
    session.Assumptions.YearsInHome = 1;
    const Sensitivity result = SensitivityOf(session, 20);
    ExpectNumbers(RowNamed(result, "propertyTax"), 1.2, 1.8);
    ExpectNumbers(RowNamed(result, "insurance"), 0.28, 0.42);
    ExpectNumbers(RowNamed(result, "pmi"), 0.00832, 0.01248);
    EXPECT_EQ(RowNamed(result, "pmi").Low->Values.size(), 4U);
    ExpectNumbers(RowNamed(result, "yearsInHome"), 0, 3);
    // 1.2 % and 0.35 % of the difference of $6,000, and PMI of 1.04 % on it, besides $50 of principal.
    EXPECT_NEAR(static_cast<double>(RowNamed(result, "propertyTax").Low->ShownNet),
                100 - 50 - 6'000 * (0.012 + 0.0035 + 0.0104) / 12, 1e-2);
}

TEST(Sensitivity, PutsTheLargestMoveFirst) {
    const Sensitivity result = SensitivityOf(Testing::SimpleSession());
    // Savings move the net by $20, the term by $16.67, the upgrade by $10; a rate of 1 % on the $6,000 by
    // less.
    EXPECT_EQ(result.Rows[0].Input, "savings");
    EXPECT_EQ(result.Rows[1].Input, "term");
    EXPECT_EQ(result.Rows[2].Input, "upgrade");
    // What moves nothing stands by name.
    std::vector<std::string_view> last;
    for (const SensitivityRow& row : result.Rows) {
        if (row.NetMove == 0)
            last.push_back(row.Input);
    }
    EXPECT_TRUE(std::is_sorted(last.begin(), last.end()));
    EXPECT_EQ(last.back(), result.Rows.back().Input);
    EXPECT_GE(last.size(), 5U);
}

TEST(Sensitivity, SaysWhatMattersMost) {
    const Session session = Testing::SimpleSession();
    const Insight insight(session.Screen, session);
    const Sheet sheet = SensitivitySheet(insight, ComputeSensitivity(insight, 10));
    EXPECT_TRUE(
        sheet.Sentence.starts_with("The result depends most on the yearly energy savings: the monthly "
                                   "net goes from $40 to $60."))
        << sheet.Sentence;
    EXPECT_EQ(sheet.Rows.back().front().Mark, CellMark::Idle);
}

/// The row is about the difference, not about the price or bill that brings it.
TEST(Sensitivity, ShowsDifferencesUnderTheirName) {
    Session session = Testing::SimpleSession();
    const auto valuesOf = [&session](const std::string& caption) {
        const Insight insight(session.Screen, session);
        for (const auto& row : SensitivitySheet(insight, ComputeSensitivity(insight, 10)).Rows)
            if (row.front().Text == caption)
                return row[1].Text + " " + row[3].Text;
        return std::string();
    };
    EXPECT_EQ(valuesOf("Price difference"), "$5,400 $6,600");
    EXPECT_EQ(valuesOf("Yearly energy savings"), "$1,080 $1,320");
    session.Screen.ecGMHUtil.Text = "$3,000"; // $600 more
    EXPECT_EQ(valuesOf("Yearly energy savings"), "-$540 -$660");
}

TEST(Sensitivity, AStepThatIsTooSmallIsNotCalledIdle) {
    Session session = Testing::SimpleSession();
    session.Screen.ecGMHHome.Text = "$120,001";
    session.Screen.ecGMHUtil.Text = "$2,399";
    const Insight insight(session.Screen, session);
    const std::string sentence = SensitivitySheet(insight, ComputeSensitivity(insight, 10)).Sentence;
    // 10 % of $1 is less than the step of $1. Nothing else moves $0.08 a month by as much as a dollar.
    EXPECT_TRUE(sentence.starts_with("No input moves the monthly net by a dollar; ")) << sentence;
    EXPECT_TRUE(sentence.ends_with(
        " For the yearly energy savings and the price difference, the step is too small to show."))
        << sentence;
    EXPECT_EQ(sentence.find("energy savings"), sentence.rfind("energy savings")) << sentence;
}

} // namespace
} // namespace Ledgrove
