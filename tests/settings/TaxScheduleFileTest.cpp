#include "settings/TaxScheduleFile.h"

#include "TemporaryFolder.h"

#include <tuple>
#include <vector>

namespace Ledgrove::Module1 {
namespace {

using Bracket = std::tuple<float, float, float>; // low end, high end, rate
using Brackets = std::vector<Bracket>;

class TaxScheduleFileTest : public SettingsTest {
protected:
    Brackets Load() const {
        TaxSchedule schedule;
        EXPECT_EQ(LoadTaxCats(File(), schedule), std::nullopt);
        return Shown(schedule);
    }
    static Brackets Shown(const TaxSchedule& schedule) {
        Brackets brackets;
        for (const TaxBracket& bracket : schedule)
            brackets.emplace_back(bracket.LowEnd, bracket.HighEnd, bracket.Rate);
        return brackets;
    }
};

TEST_F(TaxScheduleFileTest, EachLowEndIsThePreviousHighEnd) {
    Given("TAXCAT=45200,15\r\nX=1\r\nTAXCAT=109250,28\r\n");
    EXPECT_EQ(Load(), (Brackets{{-1.0f, 45200.0f, 15.0f}, {45200.0f, 109250.0f, 28.0f}}));
}

TEST_F(TaxScheduleFileTest, ALineWithoutCommaRepeatsItsNumberAsRate) {
    Given("TAXCAT=45200\r\n");
    EXPECT_EQ(Load(), (Brackets{{-1.0f, 45200.0f, 45200.0f}}));
}

TEST_F(TaxScheduleFileTest, ALineThatEndsInACommaHasNoRate) {
    Given("TAXCAT=45200,\r\n");
    EXPECT_EQ(Load(), (Brackets{{-1.0f, 45200.0f, 0.0f}}));
}

TEST_F(TaxScheduleFileTest, TextAfterASecondCommaIsIgnored) {
    Given("TAXCAT=45200,15,old\r\n");
    EXPECT_EQ(Load(), (Brackets{{-1.0f, 45200.0f, 15.0f}}));
}

TEST_F(TaxScheduleFileTest, AnEmptyValueIsABracketOfZeros) {
    Given("TAXCAT=\r\nTAXCAT=100,5\r\n");
    EXPECT_EQ(Load(), (Brackets{{-1.0f, 0.0f, 0.0f}, {0.0f, 100.0f, 5.0f}}));
}

TEST_F(TaxScheduleFileTest, AValueThatIsNotANumberStopsTheReader) {
    Given("TAXCAT=100,10\r\nTAXCAT=200,ten\r\nTAXCAT=300,30\r\n");
    EXPECT_EQ(Load(), (Brackets{{-1.0f, 100.0f, 10.0f}, {100.0f, 200.0f, 0.0f}}));
}

TEST_F(TaxScheduleFileTest, AFirstLineWithoutHighEndStillSetsTheFirstLowEnd) {
    Given("TAXCAT=,15\r\nTAXCAT=100,10\r\n");
    EXPECT_EQ(Load(), (Brackets{{-1.0f, 0.0f, 0.0f}}));
}

TEST_F(TaxScheduleFileTest, WithoutLinesTheScheduleDoesNotChange) {
    Given("X=1\r\n");
    TaxSchedule schedule = {{-1.0f, 100.0f, 10.0f}};
    EXPECT_EQ(LoadTaxCats(File(), schedule), std::nullopt);
    EXPECT_EQ(Shown(schedule), (Brackets{{-1.0f, 100.0f, 10.0f}}));
}

TEST_F(TaxScheduleFileTest, LoadingReplacesTheOldBrackets) {
    Given("TAXCAT=200,20\r\n");
    TaxSchedule schedule = {{-1.0f, 100.0f, 10.0f}, {100.0f, -1.0f, 30.0f}};
    EXPECT_EQ(LoadTaxCats(File(), schedule), std::nullopt);
    EXPECT_EQ(Shown(schedule), (Brackets{{-1.0f, 200.0f, 20.0f}}));
}

TEST_F(TaxScheduleFileTest, AMissingFileIsCreatedEmpty) {
    EXPECT_EQ(Load(), Brackets{});
    EXPECT_EQ(Bytes(), "");
}

TEST_F(TaxScheduleFileTest, AfterAnInterruptedSaveNothingIsCreated) {
    WriteBytes(File().TemporaryPath(), "TAXCAT=1,1\r\n");
    TaxSchedule schedule;
    const auto fault = LoadTaxCats(File(), schedule);
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->What, SettingsFault::Kind::InterruptedSave);
    EXPECT_FALSE(Exists(File().Path()));
}

const TaxRows sixRows = {{{"$100", "1.00%"},
                          {"$45,200", "15.00%"},
                          {"$300", "3.00%"},
                          {"$400", "4.00%"},
                          {"$500", "5.00%"},
                          {"$600", "6.00%"}}};

TEST_F(TaxScheduleFileTest, WritingKeepsTheNumberOfLines) {
    Given("A=1\r\nTAXCAT=9,9\r\nB=2\r\nTAXCAT=9,9\r\nTAXCAT=9,9\r\nC=3\r\n");
    EXPECT_EQ(Save([&](SettingsDraft& draft) { return WriteTaxCatsToFile(draft, sixRows, {}); }),
              std::nullopt);
    EXPECT_EQ(Bytes(), "A=1\r\nTAXCAT=100,1.00\r\nB=2\r\nTAXCAT=45200,15.00\r\nTAXCAT=300,3.00\r\nC=3\r\n");
}

TEST_F(TaxScheduleFileTest, WritingWithTwoLinesReplacesThoseTwo) {
    Given("TAXCAT=9,9\r\nTAXCAT=9,9\r\n");
    EXPECT_EQ(Save([&](SettingsDraft& draft) { return WriteTaxCatsToFile(draft, sixRows, {}); }),
              std::nullopt);
    EXPECT_EQ(Bytes(), "TAXCAT=100,1.00\r\nTAXCAT=45200,15.00\r\n");
}

TEST_F(TaxScheduleFileTest, WritingWithoutLinesAppendsSix) {
    Given("A=1");
    EXPECT_EQ(Save([&](SettingsDraft& draft) { return WriteTaxCatsToFile(draft, sixRows, {}); }),
              std::nullopt);
    EXPECT_EQ(Bytes(),
              "A=1\r\nTAXCAT=100,1.00\r\nTAXCAT=45200,15.00\r\nTAXCAT=300,3.00\r\nTAXCAT=400,4.00\r\n"
              "TAXCAT=500,5.00\r\nTAXCAT=600,6.00\r\n");
}

TEST_F(TaxScheduleFileTest, LinesBeyondTheSixRowsStay) {
    Given("TAXCAT=1,1\nTAXCAT=1,1\nTAXCAT=1,1\nTAXCAT=1,1\nTAXCAT=1,1\nTAXCAT=1,1\nTAXCAT=700,37\n");
    EXPECT_EQ(Save([&](SettingsDraft& draft) { return WriteTaxCatsToFile(draft, sixRows, {}); }),
              std::nullopt);
    EXPECT_EQ(Bytes(), "TAXCAT=100,1.00\r\nTAXCAT=45200,15.00\r\nTAXCAT=300,3.00\r\nTAXCAT=400,4.00\r\n"
                       "TAXCAT=500,5.00\r\nTAXCAT=600,6.00\r\nTAXCAT=700,37\n");
}

TEST_F(TaxScheduleFileTest, TheLastLoadedBracketKeepsItsHiddenHighEnd) {
    Given("TAXCAT=57000,10\r\nTAXCAT=-1,35\r\n");
    TaxSchedule loaded;
    ASSERT_EQ(LoadTaxCats(File(), loaded), std::nullopt);
    const TaxRows rows = {{{"$57,000", "10.00%"}, {"", "35.00%"}, {}, {}, {}, {}}};
    EXPECT_EQ(Save([&](SettingsDraft& draft) { return WriteTaxCatsToFile(draft, rows, loaded); }),
              std::nullopt);
    EXPECT_EQ(Bytes(), "TAXCAT=57000,10.00\r\nTAXCAT=-1,35.00\r\n");
}

TEST_F(TaxScheduleFileTest, AHiddenHighEndLosesNoDigit) {
    // 16777215 is the largest odd whole number in single precision; seven digits would turn it into 16777220.
    Given("TAXCAT=16777215,10\r\n");
    TaxSchedule loaded;
    ASSERT_EQ(LoadTaxCats(File(), loaded), std::nullopt);
    EXPECT_EQ(Save([&](SettingsDraft& draft) {
                  return WriteTaxCatsToFile(draft, {{{"", "10.00%"}}}, loaded);
              }),
              std::nullopt);
    EXPECT_EQ(Bytes(), "TAXCAT=16777215,10.00\r\n");
}

TEST_F(TaxScheduleFileTest, ATypedHighEndOfTheLastBracketCounts) {
    Given("TAXCAT=57000,10\r\n");
    TaxSchedule loaded;
    ASSERT_EQ(LoadTaxCats(File(), loaded), std::nullopt);
    EXPECT_EQ(Save([&](SettingsDraft& draft) {
                  return WriteTaxCatsToFile(draft, {{{"$60,000", "12.00%"}}}, loaded);
              }),
              std::nullopt);
    EXPECT_EQ(Bytes(), "TAXCAT=60000,12.00\r\n");
}

TEST_F(TaxScheduleFileTest, OtherEmptyRowsAreWrittenAsZero) {
    Given("TAXCAT=1,1\r\nTAXCAT=2,2\r\nTAXCAT=3,3\r\n");
    const TaxSchedule loaded = {{-1.0f, 1.0f, 1.0f}, {1.0f, 2.0f, 2.0f}};
    EXPECT_EQ(Save([&](SettingsDraft& draft) {
                  return WriteTaxCatsToFile(draft, {{{"", "1.00%"}, {"", "2.00%"}, {"", ""}}}, loaded);
              }),
              std::nullopt);
    EXPECT_EQ(Bytes(), "TAXCAT=0,1.00\r\nTAXCAT=2,2.00\r\nTAXCAT=0,\r\n");
}

} // namespace
} // namespace Ledgrove::Module1
