#include "settings/AssumptionsFile.h"
#include "settings/HeaderSettings.h"
#include "settings/HouseListFile.h"
#include "settings/LoanTypesFile.h"
#include "settings/TaxScheduleFile.h"
#include "settings/YearSettingsFile.h"

#include "TemporaryFolder.h"

#include <array>
#include <set>

namespace Ledgrove::Module1 {
namespace {

/// The shipped settings file, copied so that no test can change it.
class ShippedSettingsTest : public SettingsTest {
protected:
    ShippedSettingsTest() {
        std::filesystem::copy_file(std::filesystem::path(LEDGROVE_SOURCE_DIR) / "data/Ledgrove.ini",
                                   File().Path());
    }
};

TEST_F(ShippedSettingsTest, EveryLineEndsInCrLf) {
    const auto lines = File().ReadLines();
    ASSERT_TRUE(lines);
    ASSERT_FALSE(lines->empty());
    for (const FileLine& line : *lines) {
        EXPECT_EQ(line.End, "\r\n") << line.Text;
        EXPECT_FALSE(line.Text.empty());
    }
}

TEST_F(ShippedSettingsTest, HeaderAndFeatures) {
    EXPECT_EQ(*GetBuilderName(File()), "");
    EXPECT_EQ(*GetLogoFile(File()), "");
    EXPECT_EQ(*GetLogoOption(File()), 0);
    EXPECT_EQ(*GetHelpFile(File()), "LEDGROVE.HLP");
    FeatureTexts features;
    ASSERT_EQ(GetFeatures(File(), features), std::nullopt);
    EXPECT_EQ(features.Feature1, "Finished basement");
    EXPECT_EQ(features.Feature2, "Larger deck");
}

TEST_F(ShippedSettingsTest, LoanTypesAreInTheOrderOfThePickLists) {
    struct Expected {
        const char* Name;
        float Front;
        float Back;
        bool IsEEM;
    };
    constexpr std::array<Expected, 7> expected = {{{"Conventional", 0.280f, 0.360f, false},
                                                   {"Fannie Mae EEM", 0.300f, 0.380f, true},
                                                   {"Freddie Mac EEM", 0.300f, 0.380f, true},
                                                   {"FHA", 0.310f, 0.430f, false},
                                                   {"FHA EEM", 0.330f, 0.450f, true},
                                                   {"VA", 0.410f, 0.410f, false},
                                                   {"VA EEM", 0.410f, 0.410f, true}}};
    LoanTypeList loanTypes;
    ASSERT_EQ(LoadLoanTypes(File(), loanTypes), std::nullopt);
    ASSERT_EQ(loanTypes.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(loanTypes[i].Number, static_cast<int>(i) + 1);
        EXPECT_EQ(loanTypes[i].Name, expected[i].Name);
        EXPECT_EQ(loanTypes[i].FrontRatio, expected[i].Front);
        EXPECT_EQ(loanTypes[i].BackRatio, expected[i].Back);
        EXPECT_EQ(loanTypes[i].IsEEM, expected[i].IsEEM);
        EXPECT_EQ(loanTypes[i].Text3 + loanTypes[i].Text6 + loanTypes[i].Text7 + loanTypes[i].Text8, "");
    }
}

TEST_F(ShippedSettingsTest, TaxBrackets) {
    constexpr std::array<TaxBracket, 6> expected = {{{-1, 57000, 10},
                                                     {57000, 133000, 12},
                                                     {133000, 243600, 22},
                                                     {243600, 435750, 24},
                                                     {435750, 544650, 32},
                                                     {544650, -1, 35}}};
    TaxSchedule schedule;
    ASSERT_EQ(LoadTaxCats(File(), schedule), std::nullopt);
    ASSERT_EQ(schedule.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(schedule[i].LowEnd, expected[i].LowEnd);
        EXPECT_EQ(schedule[i].HighEnd, expected[i].HighEnd);
        EXPECT_EQ(schedule[i].Rate, expected[i].Rate);
    }
}

TEST_F(ShippedSettingsTest, Assumptions) {
    AssumptionSet assumptions;
    ASSERT_EQ(LoadAssumptions(File(), assumptions), std::nullopt);
    EXPECT_EQ(assumptions.RealEstateTaxPct, 0.90f);
    EXPECT_EQ(assumptions.InsurancePct, 0.65f);
    EXPECT_EQ(assumptions.PVRate, 0.0624f);
    EXPECT_EQ(assumptions.PVTerm, 30.0f);
    EXPECT_FALSE(assumptions.UsePVVars);
    EXPECT_EQ(assumptions.YearsInHome, 7);
    EXPECT_EQ(assumptions.PMIMult1, 0.0087f);
    EXPECT_EQ(assumptions.PMIMult2, 0.0066f);
    EXPECT_EQ(assumptions.PMIMult3, 0.0046f);
    EXPECT_EQ(assumptions.PMIMult4, 0.0023f);
}

TEST_F(ShippedSettingsTest, SettingsOfTheYears) {
    const auto lines = File().ReadLines();
    ASSERT_TRUE(lines);
    for (const YearSetting& setting : YearSettingTable)
        EXPECT_TRUE(LastLineOf(*lines, setting.Key)) << setting.Key;
    EXPECT_EQ(ReadYearSettings(*lines), YearSettings());
}

TEST_F(ShippedSettingsTest, ThreeSampleHousesWhoseLabelledHomeCostsMoreAndUsesLess) {
    HouseList houses;
    ASSERT_EQ(LoadHomeList(File(), houses), std::nullopt);
    ASSERT_EQ(houses.size(), 3u);
    std::set<std::string> names;
    for (const House& house : houses) {
        names.insert(house.Name);
        EXPECT_GT(house.StdCost, 0.0f);
        EXPECT_GT(house.GMHCost, house.StdCost);
        EXPECT_LT(house.GMHCost,
                  house.StdCost * 1.1f); // a difference above 10 % would cause a data check note
        EXPECT_GT(house.StdUtil, house.GMHUtil);
        EXPECT_GT(house.GMHUtil, 0.0f);
    }
    EXPECT_EQ(names.size(), 3u);
}

TEST_F(ShippedSettingsTest, SavingTheListsUnchangedKeepsTheFile) {
    const std::string before = Bytes();
    HouseList houses;
    ASSERT_EQ(LoadHomeList(File(), houses), std::nullopt);
    LoanTypeList loanTypes;
    ASSERT_EQ(LoadLoanTypes(File(), loanTypes), std::nullopt);
    ASSERT_EQ(Save([&](SettingsDraft& draft) { return WriteLoanTypes(draft, loanTypes); }), std::nullopt);
    ASSERT_EQ(WriteHomeList(File(), houses), std::nullopt);

    const auto sorted = [](const std::string& bytes) {
        std::multiset<std::string> texts;
        for (const FileLine& line : SplitLines(bytes))
            texts.insert(line.Text);
        return texts;
    };
    EXPECT_EQ(sorted(Bytes()), sorted(before));
    EXPECT_NE(before.find("HOMESELECTIONDIALOG=CLOSED\r\n"), std::string::npos);
}

} // namespace
} // namespace Ledgrove::Module1
