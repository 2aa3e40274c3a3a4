#include "ui/ChangesAnswer.h"

#include "tests/insight/SimpleComparison.h"

#include <gmock/gmock.h>

namespace Ledgrove {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Column(const Sheet& sheet, std::size_t column) {
    std::vector<std::string> texts;
    for (const auto& row : sheet.Rows)
        texts.push_back(row[column].Text);
    return texts;
}

/// The net is $50 a month: bills of $1,200 less save $100, and a price of $6,000 more costs $50.
class ChangesAnswerTest : public testing::Test {
protected:
    ChangesAnswer Answer(const std::string& figure = "") const {
        return CompareSides({"A", &m_a}, {"B", &m_b}, figure);
    }

    Session m_a = Testing::SimpleSession();
    Session m_b = Testing::SimpleSession();
};

TEST_F(ChangesAnswerTest, TheSentenceSaysWhereMostOfTheChangeComesFrom) {
    // $10,440 / 120 = $87 a month of the $100 saved; $7,440 / 120 = $62, and $60 / 12 = $5 saved more.
    m_a.Screen.ecGMHHome.Text = "$130,440";
    m_b.Screen.ecGMHHome.Text = "$127,440";
    m_b.Screen.ecGMHUtil.Text = "$1,140";
    const ChangesAnswer answer = Answer();
    EXPECT_EQ(answer.Missing, "");
    EXPECT_EQ(answer.Sentence, "From A to B the monthly net goes from $13 to $43; most of it comes from the "
                               "price, GREENMARK home.");
    EXPECT_THAT(Column(answer.Inputs, 0),
                ElementsAre("Sticker Price, GREENMARK Home", "Annual Utility Cost, GREENMARK Home"));
    EXPECT_THAT(answer.Inputs.Heads, ElementsAre("Input", "From", "To"));
    EXPECT_THAT(Column(answer.Inputs, 1), ElementsAre("$130,440", "$1,200"));
    EXPECT_THAT(Column(answer.Inputs, 2), ElementsAre("$127,440", "$1,140"));
}

TEST_F(ChangesAnswerTest, AnInputThatWorksAgainstTheChangeIsNotItsSource) {
    m_b.Screen.ecGMHHome.Text = "$132,000"; // -$50
    m_b.Screen.ecGMHUtil.Text = "$900";     // +$25
    m_b.Screen.ecStdUtil.Text = "$2,880";   // +$40
    EXPECT_EQ(Answer().Sentence, "From A to B the monthly net goes from $50 to $65; the utility bill, base "
                                 "home, moves it most (+$40), and others work against it.");
}

TEST_F(ChangesAnswerTest, TheLargestPartNeedNotBeMostOfTheChange) {
    m_b.Screen.ecGMHHome.Text = "$124,680"; // $1,320 / 120 = +$11
    m_b.Screen.ecStdHome.Text = "$121,200"; // $1,200 / 120 = +$10
    m_b.Screen.ecGMHUtil.Text = "$1,080";   // $120 / 12 = +$10
    EXPECT_EQ(Answer().Sentence, "From A to B the monthly net goes from $50 to $81; the largest part comes "
                                 "from the price, GREENMARK home.");
}

TEST_F(ChangesAnswerTest, OneInputBringsAllOfTheChange) {
    m_b.Screen.ecGMHHome.Text = "$132,000";
    m_b.Screen.ecIncome.Text = "$61,000";
    EXPECT_EQ(Answer().Sentence, "From A to B the monthly net goes from $50 to $0; all of it comes from the "
                                 "price, GREENMARK home.");
}

TEST_F(ChangesAnswerTest, AnUnchangedNetIsSaid) {
    m_b.Screen.ecIncome.Text = "$30,000";
    const ChangesAnswer answer = Answer();
    EXPECT_EQ(answer.Sentence, "From A to B the monthly net stays at $50; other figures move.");
    EXPECT_FALSE(answer.Figures.Rows.empty());
    EXPECT_EQ(answer.Caption, "Maximum Payment, Base Home");
}

TEST_F(ChangesAnswerTest, UnchangedFiguresAreSaid) {
    m_b.Screen.ecStdStr.Text = "$1,000"; // no formula uses it
    const ChangesAnswer answer = Answer();
    EXPECT_EQ(answer.Sentence, "From A to B one input differs, but no figure moves.");
    EXPECT_EQ(answer.Inputs.Rows.size(), 1U);
    EXPECT_THAT(answer.Figures.Rows, IsEmpty());
    EXPECT_THAT(answer.Parts.Rows, IsEmpty());
    EXPECT_EQ(answer.Picture, std::nullopt);
}

TEST_F(ChangesAnswerTest, EqualComparisonsDoNotDiffer) {
    const ChangesAnswer answer = Answer();
    EXPECT_EQ(answer.Sentence, "Nothing differs between A and B.");
    EXPECT_THAT(answer.Inputs.Rows, IsEmpty());
    EXPECT_THAT(answer.Figures.Rows, IsEmpty());
}

TEST_F(ChangesAnswerTest, WhatIsMissingIsSaidInOneSentence) {
    m_b.Screen.ecGMHHome.Text = "";
    EXPECT_EQ(Answer().Missing, "B lacks the price of the GREENMARK home, so it has no figures to compare.");
    EXPECT_THAT(Answer().Inputs.Heads, IsEmpty());
    m_b.Screen.ecStdHome.Text = "$0";
    EXPECT_EQ(Answer().Missing, "B lacks the prices of both homes, so it has no figures to compare.");
    m_a.Screen.ecStdHome.Text = "";
    EXPECT_EQ(CompareSides({"the screen", &m_a}, {"B", &m_b}, "").Missing,
              "The screen lacks the price of the base home, so it has no figures to compare.");
}

TEST_F(ChangesAnswerTest, AnotherFaultIsSaidToo) {
    m_b.LoanTypes.clear();
    const ChangesAnswer answer = CompareSides({"\"x\"", &m_b}, {"\"y\"", &m_a}, "");
    EXPECT_EQ(answer.Missing, "\"x\" cannot be compared: the settings file has no loan type for the mortgage "
                              "option of the base home.");
}

TEST_F(ChangesAnswerTest, ThePartsAreThoseOfTheFigure) {
    m_b.Screen.ecGMHHome.Text = "$132,000";
    const ChangesAnswer net = Answer();
    EXPECT_EQ(net.Names[net.Chosen], "Scenario.NetBeforeTax");
    EXPECT_EQ(net.Caption, net.Figures.Rows[net.Chosen].front().Text);
    EXPECT_EQ(net.Names.size(), net.Figures.Rows.size());
    // $12,000 / 120 = $100 of principal against $50.
    const ChangesAnswer payment = Answer("GMHCase.PITI");
    EXPECT_EQ(payment.Names[payment.Chosen], "GMHCase.PITI");
    EXPECT_THAT(Column(payment.Parts, 0), ElementsAre("From A", "Sticker Price, GREENMARK Home", "To B"));
    EXPECT_THAT(Column(payment.Parts, 4), ElementsAre("$1,050.00", "$1,100.00", "$1,100.00"));
    ASSERT_TRUE(payment.Picture);
    EXPECT_THAT(payment.Picture->Categories, ElementsAre("From A", "Sticker Price, GREENMARK Home", "To B"));
}

TEST_F(ChangesAnswerTest, LongNamesAreShortInTables) {
    m_b.Screen.ecGMHHome.Text = "$132,000";
    const std::string name = '"' + std::string(60, 'x') + '"';
    const ChangesAnswer answer = CompareSides({name, &m_a}, {"B", &m_b}, "");
    EXPECT_EQ(answer.Parts.Rows.front().front().Text, "From " + std::string(39, 'x') + "…");
    EXPECT_EQ(answer.Sentence.find("From " + name + " to B"), 0U);
}

/// The label of a loss shows the amount under another caption.
TEST_F(ChangesAnswerTest, ALossHasItsSign) {
    m_b.Screen.ecGMHHome.Text = "$144,000"; // $200 a month more, of which $100 are saved
    const ChangesAnswer answer = Answer("Shown.NetCashFlow");
    EXPECT_THAT(answer.Figures.Rows[answer.Chosen][1].Text, "$50");
    EXPECT_THAT(answer.Figures.Rows[answer.Chosen][2].Text, "-$100");
    EXPECT_EQ(answer.Figures.Rows[answer.Chosen][2].Number, -100);
}

} // namespace
} // namespace Ledgrove
