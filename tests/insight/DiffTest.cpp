#include "insight/Diff.h"

#include <cmath>
#include <numeric>

#include <gmock/gmock.h>

#include "insight/DiffFigures.h"
#include "insight/Explain.h"
#include "tests/insight/SampleComparisons.h"
#include "tests/insight/SimpleComparison.h"

namespace Ledgrove {
namespace {

using testing::DoubleEq;
using testing::ElementsAre;

Diff DiffOf(const Session& a, const Session& b) {
    const Insight insightA(a.Screen, a);
    const Insight insightB(b.Screen, b);
    EXPECT_EQ(insightA.Missing() + insightB.Missing(), "");
    return ComputeDiff(insightA, insightB);
}

std::vector<std::string_view> InputsOf(const Diff& diff) {
    std::vector<std::string_view> names;
    for (const DiffInput& input : diff.Inputs)
        names.push_back(input.Input);
    return names;
}

std::vector<double> PartsOf(const Diff& diff, std::string_view label) {
    const DiffFigure* const figure = diff.FigureOfLabel(label);
    EXPECT_TRUE(figure && figure->Parts) << label;
    return figure && figure->Parts ? *figure->Parts : std::vector<double>();
}

TEST(Diff, InputsThatDoNotInteractBringWhatTheyBringAlone) {
    const Session a = Testing::SimpleSession();
    Session b = a;
    b.Screen.ecGMHHome.Text = "$132,000"; // $6,000 / 120 = $50 a month
    b.Screen.ecGMHUtil.Text = "$0";       // saves $100 a month more
    const Diff diff = DiffOf(a, b);
    EXPECT_THAT(InputsOf(diff), ElementsAre("ecGMHHome", "ecGMHUtil"));
    const DiffFigure* const net = diff.MainFigure();
    ASSERT_TRUE(net);
    EXPECT_EQ(net->Figure, "Scenario.NetBeforeTax");
    EXPECT_EQ(net->Label, "lblNetCashMoTx");
    EXPECT_EQ(net->A, 50);
    EXPECT_EQ(net->B, 100);
    EXPECT_THAT(PartsOf(diff, "lblNetCashMoTx"), ElementsAre(-50, 100));
    EXPECT_THAT(PartsOf(diff, "lblGMHUtilMo"), ElementsAre(0, -100));
    EXPECT_EQ(diff.FigureOfLabel("lblStdPITI"), nullptr);
    EXPECT_EQ(diff.FigureOfLabel("lblGMHHome"), nullptr) << "a price is an input";
}

/// The mortgage is the price less its share that is paid down. The down payment first: $100,000 to $80,000,
/// then the price: to $160,000. The price first: to $200,000, then the down payment: to $160,000.
TEST(Diff, InputsThatInteractBringTheirAverageOverTheOrders) {
    Session a = Testing::SimpleSession();
    a.Screen.ecStdHome.Text = "$100,000";
    Session b = a;
    b.Screen.ecStdHome.Text = "$200,000";
    b.Screen.ecPctDown.Text = "20.00%";
    const Diff diff = DiffOf(a, b);
    EXPECT_THAT(InputsOf(diff), ElementsAre("downPayment", "ecStdHome"));
    EXPECT_THAT(PartsOf(diff, "lblStdMortgage"), ElementsAre((-20'000 - 40'000) / 2, (80'000 + 100'000) / 2));
}

/// 28 % of $60,000 are $1,400 a month and 36 % are $1,800, for a payment of $1,000. Neither 28 % of $45,000
/// ($1,050; 36 % are $1,350) nor a debt of $500 (which leaves $1,300) is too much alone; both leave $850.
TEST(Diff, YesAndNoCountAsOneAndZero) {
    const Session a = Testing::SimpleSession();
    Session b = a;
    b.Screen.ecIncome.Text = "$45,000";
    b.Screen.ecMonthlyDebt.Text = "$500";
    const Diff diff = DiffOf(a, b);
    const DiffFigure* const qualifies = diff.FigureOfLabel("lblStdQual");
    ASSERT_TRUE(qualifies);
    EXPECT_EQ(qualifies->Figure, "StdCase.Qualifies");
    EXPECT_EQ(qualifies->TextA + qualifies->TextB, "YES*NO");
    EXPECT_EQ(qualifies->Change(), -1);
    EXPECT_THAT(*qualifies->Parts, ElementsAre(-0.5, -0.5));
}

TEST(Diff, WhatBelongsTogetherIsOneInput) {
    const Session a = Testing::SimpleSession();
    Session b = a;
    b.Screen.optDownPayment = 1;
    b.Screen.ecFixedDown.Text = "$12,000";
    Testing::ChooseOptions(b, "FHA", "FHA EEM");
    b.Screen.chkDoTax0 = true;
    Testing::ChooseTerm(b, 20);
    const Diff diff = DiffOf(a, b);
    ASSERT_THAT(InputsOf(diff), ElementsAre("downPayment", "cboMortTerm", "mortgageOptions", "chkDoTax0"));
    EXPECT_EQ(diff.Inputs[0].A, "0.00%");
    EXPECT_EQ(diff.Inputs[0].B, "$12,000");
    EXPECT_EQ(diff.Inputs[1].B, "20 years");
    EXPECT_EQ(diff.Inputs[2].A, "Conventional / Conventional");
    EXPECT_EQ(diff.Inputs[2].B, "FHA / FHA EEM");
    EXPECT_EQ(diff.Inputs[3].B, "true");
}

TEST(Diff, ADownPaymentThatIsNotInForceDoesNotDiffer) {
    const Session a = Testing::SimpleSession();
    Session b = a;
    b.Screen.ecFixedDown.Text = "$12,000";
    EXPECT_TRUE(DiffOf(a, b).Inputs.empty());
}

TEST(Diff, AnInputThatNoFormulaUsesBringsNothing) {
    const Session a = Testing::SimpleSession();
    Session b = a;
    b.Screen.ecStdStr.Text = "1.00%";
    b.Screen.ecGMHUtil.Text = "$600";
    const Diff diff = DiffOf(a, b);
    EXPECT_THAT(InputsOf(diff), ElementsAre("ecGMHUtil", "ecStdStr"));
    EXPECT_THAT(PartsOf(diff, "lblUtilSavMo"), ElementsAre(50, 0));
}

TEST(Diff, OneInputBringsTheWholeChange) {
    const Session a = Testing::SampleSession();
    Session b = a;
    b.Screen.ecGMHRate.Text = "6.125%";
    for (const DiffFigure& figure : DiffOf(a, b).Figures)
        EXPECT_THAT(*figure.Parts, ElementsAre(figure.Change())) << figure.Label;
}

TEST(Diff, PartsAddUpToTheChange) {
    Testing::Random random(1);
    int figures = 0;
    for (int pair = 0; pair < 500; ++pair) {
        const Session a = Testing::RandomInsightSession(random);
        Session b = Testing::RandomInsightSession(random);
        static_cast<Rules&>(b) = a;
        const Insight insightA(a.Screen, a);
        const Insight insightB(b.Screen, b);
        if (!insightA.Missing().empty() || !insightB.Missing().empty())
            continue;
        const Diff diff = ComputeDiff(insightA, insightB);
        for (const DiffFigure& figure : diff.Figures) {
            ASSERT_TRUE(figure.Parts) << "pair " << pair << ", " << figure.Label;
            double largest = 1;
            for (const double part : *figure.Parts)
                largest = std::fmax(largest, std::fabs(part));
            EXPECT_NEAR(std::accumulate(figure.Parts->begin(), figure.Parts->end(), 0.0), figure.Change(),
                        largest * 1e-9)
                << "pair " << pair << ", " << figure.Label;
            ++figures;
        }
    }
    EXPECT_GT(figures, 5'000);
}

/// At 10^28 % a year a mortgage of 10^20 has a payment beyond single precision; at 0 % it has not.
TEST(Diff, OrdersThroughAComparisonThatCannotBeComputedDoNotCount) {
    Session a = Testing::SimpleSession();
    a.Screen.ecStdRate.Text = "10000000000000000000000000000%";
    Session b = Testing::SimpleSession();
    b.Screen.ecStdHome.Text = "$100000000000000000000";
    Session rateFirst = b;
    rateFirst.Screen.ecStdHome.Text = a.Screen.ecStdHome.Text;
    const Insight between(rateFirst.Screen, rateFirst);
    ASSERT_EQ(between.Missing(), "");
    const Diff diff = DiffOf(a, b);
    ASSERT_THAT(InputsOf(diff), ElementsAre("ecStdHome", "ecStdRate"));
    const DiffFigure& payment = *diff.FigureOfLabel("lblStdMortPayment");
    const auto after = static_cast<double>(between.Record().StdCase.MortPayment);
    EXPECT_THAT(*payment.Parts, ElementsAre(DoubleEq(payment.B - after), DoubleEq(after - payment.A)));
}

/// At that rate prices and down payment may only rise together.
TEST(Diff, WithoutAnyOrderThePartsAreUnknown) {
    Session a = Testing::SimpleSession();
    a.Screen.ecStdRate.Text = a.Screen.ecGMHRate.Text = "10000000000000000000000000000%";
    a.Screen.optDownPayment = 1;
    a.Screen.ecStdHome.Text = a.Screen.ecGMHHome.Text = a.Screen.ecFixedDown.Text = "$100,000";
    Session b = a;
    b.Screen.ecStdHome.Text = b.Screen.ecGMHHome.Text = b.Screen.ecFixedDown.Text = "$100000000000000000000";
    const Diff diff = DiffOf(a, b);
    const DiffFigure* const down = diff.FigureOfLabel("lblStdDown");
    ASSERT_TRUE(down);
    EXPECT_FALSE(down->Parts);
    EXPECT_THAT(DiffPartsSheet(diff, *down).Sentence,
                testing::HasSubstr("The parts of the change are unknown"));
}

TEST(Diff, EqualComparisonsHaveNoDifferences) {
    const Session a = Testing::SampleSession();
    const Diff diff = DiffOf(a, a);
    EXPECT_TRUE(diff.Inputs.empty());
    EXPECT_TRUE(diff.Figures.empty());
    EXPECT_EQ(diff.MainFigure(), nullptr);
    EXPECT_EQ(DiffInputsSheet(diff).Sentence, "Both comparisons have the same inputs.");
}

/// Every label that an explanation knows shows one of the figures, by the same name and with the same value.
void ExpectExplainedFigures(const Session& session) {
    const Insight insight(session.Screen, session);
    const Explanation explanation = ComputeExplanation(insight);
    const bool taxes = session.Screen.chkDoTax0;
    std::vector<std::string_view> firsts;
    std::vector<std::string_view> explained;
    for (const LabelFigure& figure : LabelFigures()) {
        const std::string_view label = LabelName(figure.First);
        firsts.push_back(label);
        const ExplainedFigure* const found = explanation.FigureOfLabel(label);
        ASSERT_TRUE(found) << label;
        EXPECT_EQ(found->Labels.front(), label);
        if (found->Figure.ends_with(".Margin"))
            continue;
        EXPECT_EQ(NameOf(figure, taxes, taxes), found->Figure);
        EXPECT_NEAR(figure.Value(insight.Record(), taxes), found->Value, std::fabs(found->Value) * 1e-7);
    }
    for (const ExplainedFigure& figure : explanation.Figures) {
        if (!figure.Labels.empty() && !figure.Figure.ends_with(".Cost"))
            explained.push_back(figure.Labels.front());
    }
    EXPECT_THAT(firsts, testing::UnorderedElementsAreArray(explained));
}

TEST(DiffFigures, AreThoseThatTheLabelsShow) {
    Session session = Testing::SampleSession();
    ExpectExplainedFigures(session);
    session.Screen.chkDoTax0 = false;
    ExpectExplainedFigures(session);
}

TEST(DiffFigures, TheNetHasItsOwnNameWhereOnlyOneIncludesTaxes) {
    const Session a = Testing::SampleSession();
    Session b = a;
    b.Screen.chkDoTax0 = false;
    EXPECT_EQ(DiffOf(a, b).FigureOfLabel("lblNetCashMoTx")->Figure, "Shown.Net");
}

TEST(DiffSheet, ThePartsLeadFromAToB) {
    const Session a = Testing::SimpleSession();
    Session b = a;
    b.Screen.ecIncome.Text = "$61,000"; // does not move the net
    b.Screen.ecGMHHome.Text = "$132,000";
    b.Screen.ecGMHUtil.Text = "$0";
    const Diff diff = DiffOf(a, b);
    const Sheet sheet = DiffPartsSheet(diff, *diff.MainFigure());
    std::vector<std::vector<std::string>> texts;
    for (const auto& row : sheet.Rows)
        texts.push_back({row[0].Text, row[3].Text, row[4].Text});
    EXPECT_THAT(texts, ElementsAre(ElementsAre("In A", "", "$50.00"),
                                   ElementsAre("Annual Income", "$0.00", "$50.00"),
                                   ElementsAre("Sticker Price, GREENMARK Home", "-$50.00", "$0.00"),
                                   ElementsAre("Annual Utility Cost, GREENMARK Home", "+$100.00", "$100.00"),
                                   ElementsAre("In B", "+$50.00", "$100.00")));
    EXPECT_EQ(sheet.Rows[1][0].Mark, CellMark::Idle);
    EXPECT_EQ(sheet.Sentence,
              "Net Monthly Cash Flow before Tax Savings goes from $50 to $100. Annual Utility "
              "Cost, GREENMARK Home contributes the most: +$100.00.");
}

TEST(DiffSheet, WhetherTheBuyerQualifiesIsSharedInPercent) {
    const Session a = Testing::SimpleSession();
    Session b = a;
    b.Screen.ecIncome.Text = "$45,000";
    b.Screen.ecMonthlyDebt.Text = "$500";
    const Diff diff = DiffOf(a, b);
    const Sheet sheet = DiffPartsSheet(diff, *diff.FigureOfLabel("lblStdQual"));
    EXPECT_EQ(sheet.Rows[0][4].Text, "100%");
    EXPECT_EQ(sheet.Rows[1][3].Text, "-50%");
    EXPECT_EQ(sheet.Rows[1][3].Number, -50);
    EXPECT_EQ(sheet.Rows[3][4].Text, "0%");
}

} // namespace
} // namespace Ledgrove
