#include "ui/TriedSettings.h"

#include "insight/Years.h"
#include "tests/insight/SimpleComparison.h"
#include "tests/settings/TemporaryFolder.h"
#include "ui/InsightAnswers.h"

#include <gmock/gmock.h>

// What is tried in the Insight window, kept and given up.
namespace Ledgrove {
namespace {

using testing::HasSubstr;

class TriedSettingsTest : public SettingsTest {
protected:
    TriedSettingsTest() {
        Given("GROWTH_UTILITIES=1.00\r\nGROWTH_HOME=0.50\r\nPMI_MULT1=0.5\r\n");
        m_session.Folder = Folder();
        m_settings.Reload();
    }

    const YearSetting& Growth() const { return *FindYearSetting("GROWTH_UTILITIES"); }
    InsightAnswer Answer(InsightQuestion question) { return AnswerOf({question}, m_session, m_settings); }

    Session m_session = Testing::SimpleSession();
    TriedSettings m_settings{m_session};
};

TEST_F(TriedSettingsTest, ATriedValueHoldsAndIsNotKept) {
    EXPECT_EQ(m_settings.Try("GROWTH_UTILITIES", "2.5%"), "");
    EXPECT_EQ(m_settings.InForce().UtilityGrowth, 0.025);
    EXPECT_TRUE(m_settings.IsTried(Growth()));
    EXPECT_EQ(m_session.Years.UtilityGrowth, 0.01);
    EXPECT_THAT(Bytes(), HasSubstr("GROWTH_UTILITIES=1.00\r\n"));
}

TEST_F(TriedSettingsTest, ARefusedTextLeavesTheValueInForce) {
    m_settings.Try("GROWTH_UTILITIES", "2");
    EXPECT_EQ(m_settings.Try("GROWTH_UTILITIES", "21"),
              "\"21\" is not a percentage from -20 to 20; 2.00% stays in force.");
    EXPECT_EQ(m_settings.Try("DEDUCTION_OTHER", "ten"),
              "\"ten\" is not an amount from $0 to $1,000,000,000; $0 stays in force.");
    EXPECT_EQ(m_settings.InForce().UtilityGrowth, 0.02);
}

TEST_F(TriedSettingsTest, DollarsAreRoundedAsTheAnswersSayThem) {
    EXPECT_EQ(m_settings.Try("DEDUCTION_DEBT_CAP", "$1,000,000.50"), "");
    EXPECT_EQ(m_settings.InForce().DebtCap, 1'000'001);
    EXPECT_EQ(ShownYearValue(*FindYearSetting("DEDUCTION_DEBT_CAP"), m_settings.InForce()), "$1,000,001");
}

TEST_F(TriedSettingsTest, TheKeptValueIsNotTried) {
    m_settings.Try("GROWTH_UTILITIES", "2");
    m_settings.Try("GROWTH_UTILITIES", "1.00%");
    EXPECT_FALSE(m_settings.IsTried(Growth()));
}

TEST_F(TriedSettingsTest, KeepWritesOnlyWhatIsTried) {
    m_settings.Try("GROWTH_UTILITIES", "2.5");
    m_settings.Try("GROWTH_HOME", "3");
    ASSERT_EQ(m_settings.Keep({"GROWTH_UTILITIES"}), std::nullopt);
    EXPECT_EQ(Bytes(), "GROWTH_UTILITIES=2.50\r\nGROWTH_HOME=0.50\r\nPMI_MULT1=0.5\r\n");
    EXPECT_EQ(m_session.Years.UtilityGrowth, 0.025);
    EXPECT_FALSE(m_settings.IsTried(Growth()));
    EXPECT_TRUE(m_settings.IsTried(*FindYearSetting("GROWTH_HOME")));
}

TEST_F(TriedSettingsTest, AFailedSaveLeavesTheValuesTried) {
    m_settings.Try("GROWTH_UTILITIES", "2.5");
    const std::string before = Bytes();
    std::filesystem::create_directories(File().TemporaryPath() / "in the way");
    EXPECT_NE(m_settings.Keep({"GROWTH_UTILITIES"}), std::nullopt);
    EXPECT_EQ(Bytes(), before);
    EXPECT_EQ(m_settings.InForce().UtilityGrowth, 0.025);
    EXPECT_EQ(m_session.Years.UtilityGrowth, 0.01);
}

TEST_F(TriedSettingsTest, ForgetGoesBackToTheKeptValue) {
    m_settings.Try("GROWTH_UTILITIES", "2.5");
    m_settings.Forget({"GROWTH_UTILITIES"});
    EXPECT_EQ(m_settings.InForce().UtilityGrowth, 0.01);
}

TEST_F(TriedSettingsTest, AnEditorsChangeIsSeenWithTheNextReload) {
    Given("GROWTH_UTILITIES=4.00\r\n");
    m_settings.Reload();
    EXPECT_EQ(m_settings.InForce().UtilityGrowth, 0.04);
    EXPECT_EQ(m_settings.InForce().HomeGrowth, 0);
}

TEST_F(TriedSettingsTest, TheGrowthOfAnAnswerMovesTheYears) {
    m_session.Years.UtilityGrowth = 0;
    m_session.Years.HomeGrowth = 0;
    // $1,200 a year are saved on bills and $600 cost more; with 10 % the second year saves $120 more.
    EXPECT_EQ(Answer(InsightQuestion::YearByYear).Table.Rows[1][2].Text, "$1,200");
    m_settings.Try("GROWTH_UTILITIES", "10");
    EXPECT_EQ(Answer(InsightQuestion::YearByYear).Table.Rows[1][2].Text, "$1,320");
    EXPECT_EQ(Answer(InsightQuestion::EnergyPrices).Fields.front().Text, "10.00%");
}

TEST_F(TriedSettingsTest, QuestionsHaveTheFieldsThatTheyUse) {
    const auto keys = [this](InsightQuestion question) {
        std::vector<std::string> list;
        for (const SettingField& field : Answer(question).Fields)
            list.emplace_back(field.Key);
        return list;
    };
    using testing::ElementsAre;
    EXPECT_THAT(keys(InsightQuestion::YearByYear), ElementsAre("GROWTH_UTILITIES", "GROWTH_HOME"));
    EXPECT_THAT(keys(InsightQuestion::EnergyPrices), ElementsAre("GROWTH_UTILITIES"));
    EXPECT_THAT(keys(InsightQuestion::TaxSaving),
                ElementsAre("DEDUCTION_STANDARD", "DEDUCTION_STATE_TAX", "DEDUCTION_OTHER",
                            "DEDUCTION_SALT_CAP", "DEDUCTION_DEBT_CAP"));
    EXPECT_THAT(keys(InsightQuestion::Sale),
                ElementsAre("EXIT_APPRECIATION", "EXIT_PREMIUM_KEPT", "EXIT_SELLING_COST"));
    EXPECT_THAT(keys(InsightQuestion::HowFar), testing::IsEmpty());
}

TEST_F(TriedSettingsTest, TheStandardDeductionHasAButtonForEachFilingStatus) {
    const SettingField field = Answer(InsightQuestion::TaxSaving).Fields.front();
    std::vector<std::string> texts;
    for (const SettingChoice& choice : field.Choices) {
        texts.push_back(choice.Text);
        EXPECT_EQ(m_settings.Try(field.Key, choice.Text), "");
    }
    EXPECT_THAT(texts, testing::ElementsAre("$16,100", "$32,200", "$24,150"));
    EXPECT_EQ(m_settings.InForce().StandardDeduction, 24'150);
}

TEST_F(TriedSettingsTest, TheSliderGoesFrom0To10PercentInTenths) {
    m_settings.Try("GROWTH_UTILITIES", "3.5");
    SettingField field = Answer(InsightQuestion::EnergyPrices).Fields.front();
    ASSERT_EQ(field.Slider.size(), 101U);
    EXPECT_EQ(field.SliderAt, 35);
    EXPECT_EQ(field.Slider[35], "3.50%");
    EXPECT_EQ(field.Slider.back(), "10.00%");
    m_settings.Try("GROWTH_UTILITIES", "-5");
    field = Answer(InsightQuestion::EnergyPrices).Fields.front();
    EXPECT_EQ(field.SliderAt, 0);
}

TEST_F(TriedSettingsTest, OtherAnswersSayWhatIsTried) {
    EXPECT_EQ(Answer(InsightQuestion::InShort).Table.Note, "");
    m_settings.Try("GROWTH_UTILITIES", "3");
    EXPECT_EQ(Answer(InsightQuestion::InShort).Table.Note,
              "Tried and not kept: growth of utility bills, a year 3.00%.");
    EXPECT_EQ(Answer(InsightQuestion::HowFar).Table.Note, "");
}

} // namespace
} // namespace Ledgrove
