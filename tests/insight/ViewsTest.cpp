#include "insight/Views.h"

#include <gtest/gtest.h>

#include "tests/engine/RandomComparisons.h"
#include "tests/insight/SimpleComparison.h"

namespace Ledgrove {
namespace {

TEST(InsightViews, ComputeEachViewOnce) {
    const Session session = Testing::SimpleSession();
    const Insight insight(session.Screen, session);
    InsightViews views(insight, 10);
    EXPECT_EQ(&views.BreakevenView(), &views.BreakevenView());
    EXPECT_EQ(&views.QualifyView(), &views.QualifyView());
    EXPECT_EQ(&views.OptionsView(), &views.OptionsView());
    EXPECT_EQ(&views.SensitivityView(), &views.SensitivityView());
    EXPECT_EQ(&views.MapView(), &views.MapView());
    EXPECT_EQ(&views.YearsView(), &views.YearsView());
    EXPECT_EQ(&views.EnergyView(), &views.EnergyView());
    EXPECT_EQ(&views.TaxView(), &views.TaxView());
    EXPECT_EQ(&views.ExitView(), &views.ExitView());
}

void ExpectWholeTable(const Sheet& sheet) {
    EXPECT_NE(sheet.Sentence, "") << sheet.Title;
    EXPECT_FALSE(sheet.Rows.empty()) << sheet.Title;
    for (const auto& row : sheet.Rows)
        EXPECT_EQ(row.size(), sheet.Heads.size()) << sheet.Title;
}

/// Texts that are not numbers, negative amounts, the largest singles, ratios of 0 and missing loan types.
TEST(InsightViews, AnswerOddComparisons) {
    Testing::Random random(99);
    int answered = 0;
    for (int round = 0; round < 400; ++round) {
        const Session session = Testing::RandomSession(random);
        const Insight insight(session.Screen, session);
        if (!insight.Missing().empty())
            continue;
        InsightViews views(insight, random.Between(1, 100));
        ExpectWholeTable(BreakevenSheet(insight, views.BreakevenView()));
        ExpectWholeTable(QualifySheet(views.QualifyView()));
        ExpectWholeTable(OptionsSheet(views.OptionsView()));
        ExpectWholeTable(SensitivitySheet(insight, views.SensitivityView()));
        ExpectWholeTable(MapSheet(views.MapView()));
        ExpectWholeTable(YearsSheet(views.YearsView()));
        ExpectWholeTable(YearMonthsSheet(views.YearsView(), 30));
        ExpectWholeTable(EnergySheet(views.EnergyView()));
        ExpectWholeTable(TaxCheckSheet(views.TaxView()));
        ExpectWholeTable(ExitSheet(insight, views.ExitView()));
        ++answered;
    }
    EXPECT_GT(answered, 200);
}

TEST(InsightViews, APriceWithoutSingleDollarsHasNoLimit) {
    Session session = Testing::SimpleSession();
    session.Screen.ecGMHHome.Text = "99999999999999999999999999999999999999";
    const Insight insight(session.Screen, session);
    ASSERT_EQ(insight.Missing(), "");
    InsightViews views(insight, 10);
    EXPECT_FALSE(views.BreakevenView().Price);
    EXPECT_FALSE(views.QualifyView().GMH.Price);
    EXPECT_TRUE(views.BreakevenView().Bill);
}

/// With a negative ratio the payment rises and falls with the income, which no search can be sure about.
TEST(InsightViews, SenselessRatiosHaveNoAnswer) {
    Session session = Testing::SimpleSession();
    for (LoanType& loanType : session.LoanTypes)
        loanType.FrontRatio = -0.25F;
    const Insight insight(session.Screen, session);
    ASSERT_EQ(insight.Missing(), "");
    EXPECT_FALSE(ComputeQualification(insight).Std.Income);
}

} // namespace
} // namespace Ledgrove
