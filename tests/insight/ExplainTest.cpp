#include "insight/Explain.h"

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "engine/Figures.h"
#include "engine/ShowResults.h"
#include "insight/Expression.h"
#include "insight/OptionPairs.h"
#include "tests/insight/SampleComparisons.h"
#include "tests/insight/SimpleComparison.h"
#include "ui/InputWords.h"

namespace Ledgrove {
namespace {

Explanation ExplanationOf(const Session& session) {
    return ComputeExplanation(Insight(session.Screen, session));
}

const ExplainedFigure& FigureIn(const Explanation& explanation, std::string_view name) {
    static const ExplainedFigure none;
    const ExplainedFigure* const found = explanation.Find(name);
    EXPECT_TRUE(found) << name;
    return found ? *found : none;
}

/// The buyer of the sample with 10 % down on $200,000 and $206,000.
Session ExplainSession() {
    Session session = Testing::StartedSession();
    Testing::FillSample(session.Screen);
    return session;
}

// Checks of random comparisons.

void ExpectCalculation(const ExplainedFigure& figure, const Explanation& explanation) {
    const Expression expression(figure.Expression);
    double largest = std::fabs(figure.Value);
    const ExpressionValue result = expression.Evaluate([&](std::string_view name) -> std::optional<double> {
        const ExplainedFigure* const used = explanation.Find(name);
        // What is used comes before, so there are no cycles.
        if (!used || used >= &figure)
            return std::nullopt;
        largest = std::fmax(largest, std::fabs(used->Value));
        return used->Value;
    });
    EXPECT_EQ(result.Fault, "") << figure.Figure << " = " << figure.Expression;
    EXPECT_LE(std::fabs(result.Number - figure.Value), 6e-7 * largest)
        << figure.Figure << " = " << figure.Expression << ": " << figure.WithNumbers;
    EXPECT_EQ(figure.Values, expression.Names());
    EXPECT_NE(figure.InWords, "");
    EXPECT_EQ(figure.From, "");
    if (figure.Expression == "0") {
        EXPECT_NE(figure.Because, "") << figure.Figure;
    }
}

void ExpectLeaf(const ExplainedFigure& leaf) {
    EXPECT_NE(leaf.From, "") << leaf.Figure;
    EXPECT_TRUE(leaf.Values.empty());
    EXPECT_TRUE(leaf.Place.Control.empty() || leaf.Place.Key.empty());
    if (!leaf.Place.Control.empty()) {
        EXPECT_EQ(leaf.From, InputWords(leaf.Place.Control));
    }
}

/// Inputs and rates, which are in the list where something is computed from them, and two figures that no
/// rule uses.
bool IsGiven(std::string_view name) {
    constexpr std::string_view given[] = {"PctDown",    "FixedDown",        "AnnualIncome", "MonthlyDebt",
                                          "FrontRatio", "BackRatio",        "IntRate",      "MarginalTaxRate",
                                          "Stretch",    "ClosingCostAdjust"};
    return std::find(std::begin(given), std::end(given), name) != std::end(given);
}

void ExpectRecord(const Explanation& explanation, const Records& records) {
    for (const FigureEntry& entry : FigureTable()) {
        const ExplainedFigure* const figure = explanation.Find(entry.FullName);
        EXPECT_TRUE(figure || IsGiven(entry.Name)) << entry.FullName;
        if (!figure)
            continue;
        EXPECT_EQ(figure->Value, static_cast<double>(entry.Value(records))) << entry.FullName;
    }
}

bool IsAmount(std::string_view text) {
    return text.starts_with('$') || text.starts_with("-$") || text == "YES" || text == "*NO";
}

void ExpectLabels(const Explanation& explanation, const Session& session, const Results& results) {
    MainScreen screen = session.Screen;
    Module1::ShowResults(results, screen);
    for (const auto& [name, member] : ResultLabelTable()) {
        const ExplainedFigure* const figure = explanation.FigureOfLabel(name);
        const std::string& text = (screen.*member).Text;
        EXPECT_EQ(figure != nullptr, IsAmount(text) && name != "Label6") << name << " " << text;
        if (figure) {
            EXPECT_EQ(figure->Text, text) << name;
        }
    }
}

void ExpectSound(const Session& session) {
    const Insight insight(session.Screen, session);
    const Explanation explanation = ComputeExplanation(insight);
    for (const ExplainedFigure& figure : explanation.Figures) {
        EXPECT_EQ(explanation.Find(figure.Figure), &figure) << "twice";
        EXPECT_NE(figure.Caption, "");
        EXPECT_NE(figure.Text, "");
        figure.IsLeaf() ? ExpectLeaf(figure) : ExpectCalculation(figure, explanation);
    }
    ExpectRecord(explanation, insight.Record());
    ExpectLabels(explanation, session, insight.Record());
}

TEST(Explain, EveryChainLeadsToItsFigure) {
    Testing::Random random(20);
    for (int i = 0; i < 3'000 && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        ExpectSound(Testing::RandomInsightSession(random));
    }
}

TEST(Explain, AbsurdInputsAndFaultsAreExplainedToo) {
    Testing::Random random(21);
    int missing = 0;
    for (int i = 0; i < 3'000 && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        const Session session = Testing::RandomSession(random);
        ExpectSound(session);
        missing += Insight(session.Screen, session).Missing().empty() ? 0 : 1;
    }
    EXPECT_GT(missing, 100);
}

TEST(Explain, EveryPairOfOptionsWithEveryFault) {
    for (const OptionPair& pair : OptionPairs()) {
        for (std::size_t loanTypes = 0; loanTypes <= 7; ++loanTypes) {
            Session session = ExplainSession();
            Testing::ChooseOptions(session, pair.Base.Text, pair.Labelled.Text);
            session.LoanTypes.resize(loanTypes);
            ExpectSound(session);
            session.LoanTypes = Testing::ShippedLoanTypes();
            session.LoanTypes[loanTypes % 7].BackRatio = 0;
            ExpectSound(session);
        }
    }
}

TEST(Explain, TheMortgagePaymentIsASumInWordsAndNumbers) {
    const Explanation explanation = ExplanationOf(ExplainSession());
    const ExplainedFigure& piti = FigureIn(explanation, "GMHCase.PITI");
    EXPECT_EQ(piti.Caption, "Mortgage Payment, GREENMARK Home");
    EXPECT_EQ(piti.InWords, "principal and interest + taxes + insurance + PMI");
    // $185,400 at 6.5 % / 12 over 360 months is 1,171.86; 0.90 % and 0.65 % of $206,000 / 12; 0.0046 x
    // $185,400 / 12.
    EXPECT_EQ(piti.WithNumbers, "1,171.85 + 154.50 + 111.58 + 71.07");
    EXPECT_EQ(piti.Values, (std::vector<std::string>{"GMHCase.MortPayment", "GMHCase.TaxMonthly",
                                                     "GMHCase.InsMonthly", "GMHCase.PMIMonthly"}));
    EXPECT_EQ(piti.Labels, (std::vector<std::string_view>{"lblGMHPITI"}));
    EXPECT_EQ(explanation.FigureOfLabel("lblGMHPITI"), &piti);
    EXPECT_EQ(explanation.FigureOfLabel("lblTerm"), nullptr);
    EXPECT_EQ(explanation.Find("GMHCase.Nothing"), nullptr);
}

TEST(Explain, FinancialFunctionsAreSentences) {
    const Explanation explanation = ExplanationOf(ExplainSession());
    const ExplainedFigure& payment = FigureIn(explanation, "StdCase.MortPayment");
    EXPECT_EQ(payment.Expression, "PMT(StdCase.IntRate / 12, Term * 12, -StdCase.LoanAmount)");
    EXPECT_EQ(payment.InWords,
              "payment on mortgage amount over term × 12 months at interest rate ÷ 12 a month");
    EXPECT_EQ(payment.WithNumbers, "payment on 180,000.00 over 30 × 12 months at 6.5% ÷ 12 a month");
    EXPECT_EQ(
        FigureIn(explanation, "StdCase.MaxLoan").InWords,
        "present value of (maximum payment - taxes, insurance and PMI) a month over term × 12 months at "
        "interest rate ÷ 12 a month");
    EXPECT_EQ(
        FigureIn(explanation, "Scenario.TaxSavings").InWords,
        "(interest in the middle of the term of the GREENMARK home - interest in the middle of the term "
        "of the base home) × income tax rate");
}

TEST(Explain, LeavesSayWhereTheyComeFrom) {
    const Explanation explanation = ExplanationOf(ExplainSession());
    const ExplainedFigure& price = FigureIn(explanation, "StdCase.Cost");
    EXPECT_TRUE(price.IsLeaf());
    EXPECT_EQ(price.From, "Sticker Price, Base Home");
    EXPECT_EQ(price.Place.Control, "ecStdHome");
    EXPECT_EQ(price.Labels, (std::vector<std::string_view>{"lblStdHome", "lblHouseValueStd"}));
    EXPECT_EQ(FigureIn(explanation, "Scenario.PctDown").Text, "10.00%");
    const ExplainedFigure& multiplier = FigureIn(explanation, "PMI_MULT3");
    EXPECT_EQ(multiplier.From, "PMI_MULT3");
    EXPECT_EQ(multiplier.Place.Key, "PMI_MULT3");
    EXPECT_EQ(multiplier.Text, "0.0046");
    EXPECT_EQ(FigureIn(explanation, "ASSUMPTION1").Text, "0.9%");
    EXPECT_EQ(FigureIn(explanation, "StdCase.FrontRatio").From, "LOANTYPE 1, Conventional");
    const ExplainedFigure& bracket = FigureIn(explanation, "Scenario.MarginalTaxRate");
    EXPECT_EQ(bracket.From, "TAXCAT 2, annual income above $57,000 up to $133,000");
    EXPECT_EQ(bracket.Because, "An income of $72,000 falls into tax bracket 2");
    EXPECT_EQ(bracket.Place.Key, "TAXCAT");
    // The percentage is in force, so nothing leads to the fixed amount.
    EXPECT_EQ(explanation.Find("Scenario.FixedDown"), nullptr);
}

std::string BecauseOfPMI(Session session, const char* percent) {
    session.Screen.ecPctDown.Text = percent;
    return FigureIn(ExplanationOf(session), "StdCase.PMIMonthly").Because;
}

TEST(Explain, NamesTheBandOfPMI) {
    Session session = ExplainSession();
    EXPECT_EQ(BecauseOfPMI(session, "0.00%"), "0.00 % down falls below 5 %: PMI_MULT1");
    EXPECT_EQ(BecauseOfPMI(session, "5.00%"), "5.00 % down falls below 10 %: PMI_MULT2");
    EXPECT_EQ(BecauseOfPMI(session, "10.00%"), "10.00 % down falls below 15 %: PMI_MULT3");
    EXPECT_EQ(BecauseOfPMI(session, "14.9999%"), "14.9999 % down falls below 15 %: PMI_MULT3");
    EXPECT_EQ(BecauseOfPMI(session, "19.99%"), "19.99 % down falls below 20 %: PMI_MULT4");
    EXPECT_EQ(BecauseOfPMI(session, "20.00%"), "20.00 % down is not below 20 %: no PMI");
    session.Screen.optDownPayment = 1;
    session.Screen.ecFixedDown.Text = "$29,000";
    EXPECT_EQ(BecauseOfPMI(session, ""),
              "$29,000 is 14.50 % of the base home's price, which falls below 15 %: PMI_MULT3");
}

TEST(Explain, SaysWhichPriceTheDownPaymentIsTakenOf) {
    Session session = ExplainSession();
    Testing::ChooseOptions(session, "FHA", "FHA EEM");
    // $700 a year for 30 years at 6.5 %: 58.33 x 158.21 = $9,229, more than $6,000 and less than $10,000.
    EXPECT_EQ(FigureIn(ExplanationOf(session), "GMHCase.DownPayment").Because,
              "Savings worth $9,229 pay for the price difference of $6,000: the percentage is taken of the "
              "base home's price");
    session.Screen.ecGMHHome.Text = "$210,000";
    const Explanation explanation = ExplanationOf(session);
    EXPECT_EQ(
        FigureIn(explanation, "GMHCase.DownPayment").Because,
        "Savings worth $9,229 do not pay for the price difference of $10,000: the percentage is taken of "
        "the home's own price");
    EXPECT_EQ(FigureIn(explanation, "GMHCase.RatioPayment").Because,
              "Savings worth $9,229 do not pay for the price difference of $10,000: the ratios of the plain "
              "option count. The front-end ratio allows less"); // 31 % of $6,000, and 43 % less $350
    EXPECT_EQ(FigureIn(explanation, "LOANTYPE4.FrontRatio").From, "LOANTYPE 4, FHA");
    EXPECT_EQ(FigureIn(explanation, "LOANTYPE4.FrontRatio").Text, "31%");
    EXPECT_EQ(FigureIn(ExplanationOf(ExplainSession()), "GMHCase.DownPayment").Because,
              "The percentage is taken of the home's own price");
}

TEST(Explain, SaysWhetherTheSavingsCountAsIncome) {
    Session session = ExplainSession();
    Testing::ChooseOptions(session, "Conventional", "Fannie Mae EEM");
    // The savings are worth $9,229 as above. $72,000 / 12 + 58.33 = $6,058 of income, of which 38 % less $350
    // of debt is less than the whole $6,000 of the front end.
    EXPECT_EQ(
        FigureIn(ExplanationOf(session), "GMHCase.MaxPayment").Because,
        "Savings worth $9,229 pay for the price difference of $6,000, so the savings count as income. The "
        "back-end ratio allows less");
    session.Screen.ecGMHHome.Text = "$210,000";
    // 30 % of $6,000 is $1,800, and 38 % less $350 is $1,930.
    EXPECT_EQ(
        FigureIn(ExplanationOf(session), "GMHCase.MaxPayment").Because,
        "Savings worth $9,229 do not pay for the price difference of $10,000, so the savings do not count "
        "as income. The front-end ratio allows less");
    session.Screen.ecGMHHome.Text = "$199,000";
    EXPECT_EQ(FigureIn(ExplanationOf(session), "GMHCase.MaxPayment").Because,
              "The GREENMARK home does not cost more than the base home, so the savings count as income. The "
              "back-end ratio allows less");
}

/// Both ratios of VA are 41 %, so without debts they decide the same.
TEST(Explain, SaysThatBothRatiosDecide) {
    Session session = ExplainSession();
    Testing::ChooseOptions(session, "VA", "VA");
    session.Screen.ecMonthlyDebt.Text = "$0";
    const Explanation explanation = ExplanationOf(session);
    EXPECT_EQ(FigureIn(explanation, "StdCase.MaxPayment").Because, "Both ratios allow the same");
    EXPECT_EQ(FigureIn(explanation, "StdCase.IncomeByRatios").Because,
              "Both ratios require the same income in whole dollars");
}

TEST(Explain, TheAllowanceStopsAtItsLimits) {
    Session session = ExplainSession();
    Testing::ChooseOptions(session, "FHA", "FHA EEM");
    const auto allowance = [&session](const char* price) {
        session.Screen.ecStdHome.Text = price;
        return FigureIn(ExplanationOf(session), "Scenario.EEMAllowance");
    };
    EXPECT_EQ(allowance("$60,000").Value, 4'000); // 5 % is $3,000
    EXPECT_EQ(allowance("$60,000").Because,
              "5 % of the base home's price is below the least allowance of the option");
    EXPECT_EQ(allowance("$100,000").Value, 5'000);
    EXPECT_EQ(allowance("$200,000").Value, 8'000); // 5 % is $10,000
}

TEST(Explain, WholeDollarsDecideWhoQualifies) {
    Session session = Testing::SimpleSession();
    for (LoanType& loanType : session.LoanTypes)
        loanType.FrontRatio = loanType.BackRatio = 0.25F;
    // $60,000 x 2.5 = $150,000 less the base home's $120,000.
    const Explanation explanation = ExplanationOf(session);
    const ExplainedFigure& base = FigureIn(explanation, "StdCase.Margin");
    EXPECT_EQ(base.Value, 30'000);
    EXPECT_EQ(base.Text, "YES");
    EXPECT_EQ(base.Because,
              "The whole dollars as shown decide: a mortgage of $120,000 is less than the largest "
              "loan of $150,000: YES");
    // $0.40 of room, which whole dollars do not show: $48,000.16 x 2.5 = $120,000.40.
    session.Screen.ecIncome.Text = "$48,000.16";
    const ExplainedFigure close = FigureIn(ExplanationOf(session), "StdCase.Margin");
    EXPECT_NEAR(close.Value, 0.40, 0.01);
    EXPECT_EQ(close.Text, "*NO");
    EXPECT_EQ(close.Because, "The whole dollars as shown decide: a mortgage of $120,000 is not less than the "
                             "largest loan of $120,000: *NO");
}

TEST(Explain, AFaultHasItsReason) {
    Session session = ExplainSession();
    Testing::ChooseOptions(session, "VA", "VA EEM");
    session.LoanTypes.resize(6);
    const Explanation explanation = ExplanationOf(session);
    const ExplainedFigure& payment = FigureIn(explanation, "GMHCase.PITI");
    EXPECT_EQ(payment.Expression, "0");
    EXPECT_EQ(payment.Because,
              "The settings file has no loan type for the mortgage option of the GREENMARK home");
    EXPECT_NE(FigureIn(explanation, "StdCase.PITI").Expression, "0");
    session.Screen.ecStdHome.Text = "";
    EXPECT_EQ(FigureIn(ExplanationOf(session), "StdCase.PITI").Because, "The home has no price");
}

TEST(Explain, TaxesChangeWhatTheLabelsShow) {
    Session session = ExplainSession();
    session.Assumptions.YearsInHome = 31;
    Explanation explanation = ExplanationOf(session);
    EXPECT_EQ(explanation.FigureOfLabel("lblNetCashMo2")->Figure, "Scenario.NetMonthlyCashFlow");
    EXPECT_EQ(FigureIn(explanation, "Scenario.TaxSavings").Because,
              "31 years in the home are more than the term: three quarters of the tax savings count");
    session.Screen.chkDoTax0 = false;
    explanation = ExplanationOf(session);
    EXPECT_EQ(explanation.FigureOfLabel("lblNetCashMo2")->Figure, "Scenario.NetBeforeTax");
    EXPECT_EQ(FigureIn(explanation, "Scenario.ShownTaxSavings").Because, "Taxes are not included");
}

TEST(Explain, TheSheetDerivesOneFigure) {
    const Explanation explanation = ExplanationOf(ExplainSession());
    const Sheet sheet = ExplainSheet(explanation, "StdCase.LoanAmount");
    ASSERT_EQ(sheet.Rows.size(), 4U);
    EXPECT_EQ(sheet.Heads,
              (std::vector<std::string>{"No.", "Figure", "Formula", "With Numbers", "Value", "Why"}));
    const char* const expected[][6] = {
        {"[1]", "Sticker Price, Base Home", "Sticker Price, Base Home", "", "$200,000.00", ""},
        {"[2]", "% Down", "% Down, Down Payment", "", "10%", ""},
        {"[3]", "Down Payment, Base Home", "% down [2] × price [1]", "10% × 200,000.00", "$20,000.00",
         "The percentage is taken of the home's own price"},
        {"[4]", "Mortgage Amount, Base Home", "price [1] - down payment [3]", "200,000.00 - 20,000.00",
         "$180,000.00", ""}};
    for (std::size_t row = 0; row < sheet.Rows.size(); ++row) {
        ASSERT_EQ(sheet.Rows[row].size(), 6U);
        for (std::size_t column = 0; column < 6; ++column)
            EXPECT_EQ(sheet.Rows[row][column].Text, expected[row][column]);
    }
    EXPECT_TRUE(ExplainSheet(explanation, "nothing").Rows.empty());
    EXPECT_EQ(ExplainSheet(explanation).Rows.size(), explanation.Figures.size());
}

} // namespace
} // namespace Ledgrove
