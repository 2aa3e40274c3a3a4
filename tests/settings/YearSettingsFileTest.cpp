#include "settings/YearSettingsFile.h"

#include "settings/SettingsCheck.h"
#include "settings/SettingsText.h"
#include "settings/ValueRules.h"

#include "TemporaryFolder.h"

#include <gmock/gmock.h>

namespace Ledgrove::Module1 {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class YearSettingsFileTest : public SettingsTest {
protected:
    YearSettings Load() const {
        YearSettings settings;
        EXPECT_EQ(LoadYearSettings(File(), settings), std::nullopt);
        return settings;
    }
    std::string Get(std::string_view key) const {
        const auto text = SettingText(File(), key);
        return text ? *text : "fault: " + Sentence(text.Fault());
    }
};

TEST_F(YearSettingsFileTest, ReadsEveryKeyInItsUnit) {
    Given("GROWTH_UTILITIES=3.25\r\nGROWTH_HOME=-2\r\nEXIT_APPRECIATION= 1.5%\r\nEXIT_PREMIUM_KEPT=40\r\n"
          "EXIT_SELLING_COST=5.5\r\nDEDUCTION_STANDARD=16100\r\nDEDUCTION_SALT_CAP=$10,000\r\n"
          "DEDUCTION_STATE_TAX=4000.50\r\nDEDUCTION_OTHER=250\r\nDEDUCTION_DEBT_CAP=1000000\r\n");
    EXPECT_EQ(Load(), (YearSettings{0.0325, -0.02, 0.015, 0.4, 0.055, 16100, 10000, 4000.5, 250, 1000000}));
}

TEST_F(YearSettingsFileTest, AFileOfAnOlderVersionGivesTheInitialValues) {
    Given("ASSUMPTION1=0.9\r\n");
    EXPECT_EQ(Load(), (YearSettings{0, 0, 0, 1, 0.06, 32200, 40400, 0, 0, 750000}));
    EXPECT_EQ(Get("EXIT_PREMIUM_KEPT"), "100");
    EXPECT_EQ(Get("EXIT_SELLING_COST"), "6");
    EXPECT_EQ(Get("DEDUCTION_SALT_CAP"), "40400");
}

TEST_F(YearSettingsFileTest, TheLastLineOfAKeyCounts) {
    Given("GROWTH_HOME=1\r\nGROWTH_HOME=2\r\n");
    EXPECT_EQ(Load().HomeGrowth, 0.02);
    Given("GROWTH_HOME=1\r\nGROWTH_HOME=x\r\n");
    EXPECT_EQ(Load().HomeGrowth, 0);
}

TEST_F(YearSettingsFileTest, AValueOutsideItsRangeIsReportedAndNotUsed) {
    for (const char* bad :
         {"GROWTH_UTILITIES=20.01", "GROWTH_HOME=-20.01", "EXIT_APPRECIATION=", "EXIT_PREMIUM_KEPT=101",
          "EXIT_SELLING_COST=6,5", "EXIT_SELLING_COST=-1", "DEDUCTION_STANDARD=-1",
          "DEDUCTION_DEBT_CAP=1000000001", "DEDUCTION_OTHER=ten"}) {
        Given(std::string(bad) + "\r\nPMI_MULT1=0.5\r\n");
        EXPECT_EQ(Load(), YearSettings()) << bad;
        EXPECT_EQ(CheckSettings(File()).size(), 1U) << bad;
    }
    Given("X=1\r\nEXIT_SELLING_COST=101\r\n");
    EXPECT_EQ(
        Sentence(CheckSettings(File()).at(0)),
        "Line 2 of Ledgrove.ini, \"EXIT_SELLING_COST=101\", cannot be used: it is not a percentage from 0 "
        "to 100. 6 is in force instead.");
    EXPECT_THAT(Get("EXIT_SELLING_COST"), HasSubstr("not a percentage from 0 to 100; 6 is in force"));
}

TEST_F(YearSettingsFileTest, GivesTheValueThatCanBeWrittenBack) {
    Given("DEDUCTION_STATE_TAX= $4,000.50\r\nGROWTH_UTILITIES=-1.25%\r\n");
    EXPECT_EQ(Get("DEDUCTION_STATE_TAX"), "4000.5");
    EXPECT_EQ(Get("GROWTH_UTILITIES"), "-1.25");
}

TEST_F(YearSettingsFileTest, SetTakesWhatTheReaderUses) {
    EXPECT_EQ(CheckSetRequest("GROWTH_UTILITIES", "-20"), std::nullopt);
    EXPECT_EQ(CheckSetRequest("EXIT_SELLING_COST", "5.5%"), std::nullopt);
    EXPECT_EQ(StoredValue("EXIT_SELLING_COST", " 5.5% "), "5.5");
    EXPECT_THAT(
        CheckSetRequest("GROWTH_HOME", "21").value_or(""),
        HasSubstr("\"21\" cannot be used for GROWTH_HOME. Give a percentage from -20 to 20, such as 0."));
    EXPECT_THAT(CheckSetRequest("DEDUCTION_STANDARD", "32,2").value_or(""),
                HasSubstr("Give an amount from $0 to $1,000,000,000, such as 32200."));
    EXPECT_THAT(CheckSetRequest("DEDUCTION_ST", "1").value_or(""), HasSubstr("is only the beginning of"));
}

TEST_F(YearSettingsFileTest, SavesOnlyItsKeys) {
    Given("EXIT_SELLING_COST=6.00\nOTHER=x\r\nPMI_MULT1=0.0087\rEXIT_SELLING_COST=7");
    const char* const shown[] = {"3.00%",   "0.00%",   "1.50%", "50%", "5.50%",
                                 "$16,100", "$10,000", "$0",    "$0",  "$750,000"};
    std::vector<YearSettingEntry> texts;
    for (std::size_t i = 0; i < YearSettingTable.size(); ++i)
        texts.push_back({&YearSettingTable[i], shown[i]});
    ASSERT_EQ(Save([&](SettingsDraft& draft) { return WriteYearSettings(draft, texts); }), std::nullopt);
    EXPECT_EQ(Bytes(), "EXIT_SELLING_COST=5.50\r\nOTHER=x\r\nPMI_MULT1=0.0087\rEXIT_SELLING_COST=5.50\r\n"
                       "GROWTH_UTILITIES=3.00\r\nGROWTH_HOME=0.00\r\nEXIT_APPRECIATION=1.50\r\n"
                       "EXIT_PREMIUM_KEPT=50\r\nDEDUCTION_STANDARD=16100\r\nDEDUCTION_SALT_CAP=10000\r\n"
                       "DEDUCTION_STATE_TAX=0\r\nDEDUCTION_OTHER=0\r\nDEDUCTION_DEBT_CAP=750000\r\n");
    EXPECT_EQ(Load(), (YearSettings{0.03, 0, 0.015, 0.5, 0.055, 16100, 10000, 0, 0, 750000}));
}

TEST_F(YearSettingsFileTest, LeavesTheOtherKeysAsTheyAre) {
    Given("GROWTH_HOME= 1.5%\nGROWTH_UTILITIES=0.00");
    const YearSettingEntry text{FindYearSetting("GROWTH_UTILITIES"), "2.50%"};
    ASSERT_EQ(Save([&](SettingsDraft& draft) { return WriteYearSettings(draft, {{text}}); }), std::nullopt);
    EXPECT_EQ(Bytes(), "GROWTH_HOME= 1.5%\nGROWTH_UTILITIES=2.50\r\n");
}

TEST(YearSettings, AreShownAsInAField) {
    YearSettings settings;
    settings.UtilityGrowth = 0.055;
    settings.HomeGrowth = -0.0125;
    settings.Appreciation = 0.01375;
    settings.StateTax = 4000.5;
    const auto shown = [&settings](std::string_view key) {
        return ShownYearValue(*FindYearSetting(key), settings);
    };
    EXPECT_EQ(shown("GROWTH_UTILITIES"), "5.50%");
    EXPECT_EQ(shown("GROWTH_HOME"), "-1.25%");
    EXPECT_EQ(shown("EXIT_APPRECIATION"), "1.375%");
    EXPECT_EQ(shown("EXIT_PREMIUM_KEPT"), "100.00%");
    EXPECT_EQ(shown("DEDUCTION_STANDARD"), "$32,200");
    EXPECT_EQ(shown("DEDUCTION_STATE_TAX"), "$4,000.50");
}

TEST(KnownKeys, NoneBeginsWithAnother) {
    for (const std::string_view one : KnownKeys()) {
        for (const std::string_view other : KnownKeys())
            EXPECT_TRUE(one == other || !one.starts_with(other)) << one << " " << other;
    }
}

} // namespace
} // namespace Ledgrove::Module1
