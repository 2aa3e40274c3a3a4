#include "settings/LoanTypesFile.h"

#include "TemporaryFolder.h"

namespace Ledgrove::Module1 {
namespace {

class LoanTypesFileTest : public SettingsTest {
protected:
    std::string RewrittenFrom(std::string_view bytes) const {
        Given(bytes);
        LoanTypeList loanTypes;
        EXPECT_EQ(LoadLoanTypes(File(), loanTypes), std::nullopt);
        EXPECT_EQ(Save([&](SettingsDraft& draft) { return WriteLoanTypes(draft, loanTypes); }), std::nullopt);
        return Bytes();
    }
};

TEST_F(LoanTypesFileTest, ReadsTheNineFields) {
    Given("LOANTYPE=4,FHA,three,0.31,.43,six, seven "
          ",eight,TRUE\r\nLOANTYPE=1,Conventional,,0.28,0.36,,,,FALSE\r\n");
    LoanTypeList loanTypes(3);
    ASSERT_EQ(LoadLoanTypes(File(), loanTypes), std::nullopt);
    ASSERT_EQ(loanTypes.size(), 2u);
    EXPECT_EQ(loanTypes[0].Number, 4);
    EXPECT_EQ(loanTypes[0].Name, "FHA");
    EXPECT_EQ(loanTypes[0].Text3, "three");
    EXPECT_EQ(loanTypes[0].FrontRatio, 0.31f);
    EXPECT_EQ(loanTypes[0].BackRatio, 0.43f);
    EXPECT_EQ(loanTypes[0].Text6, "six");
    EXPECT_EQ(loanTypes[0].Text7, " seven ");
    EXPECT_EQ(loanTypes[0].Text8, "eight");
    EXPECT_TRUE(loanTypes[0].IsEEM);
    EXPECT_EQ(loanTypes[1].Name, "Conventional");
    EXPECT_FALSE(loanTypes[1].IsEEM);
}

TEST_F(LoanTypesFileTest, TheFlagIsTrueOnlyForItsExactText) {
    for (const char* text : {"true", "TRUE ", "1"}) {
        Given(std::string("LOANTYPE=1,A,,0.28,0.36,,,,") + text + "\r\n");
        LoanTypeList loanTypes;
        ASSERT_EQ(LoadLoanTypes(File(), loanTypes), std::nullopt);
        EXPECT_FALSE(loanTypes[0].IsEEM) << text;
    }
}

TEST_F(LoanTypesFileTest, FieldsNotReachedKeepTheirDefaults) {
    Given("LOANTYPE=2,A,\r\nLOANTYPE=\r\n");
    LoanTypeList loanTypes;
    ASSERT_EQ(LoadLoanTypes(File(), loanTypes), std::nullopt);
    ASSERT_EQ(loanTypes.size(), 2u);
    EXPECT_EQ(loanTypes[0].Number, 2);
    EXPECT_EQ(loanTypes[0].Name, "A");
    EXPECT_EQ(loanTypes[0].FrontRatio, 0.0f);
    EXPECT_EQ(loanTypes[1].Number, 0);
    EXPECT_EQ(loanTypes[1].Name, "");
}

TEST_F(LoanTypesFileTest, AShortLineOfNumbersRepeatsItsLastField) {
    Given("LOANTYPE=2,A,,0.3\r\n");
    LoanTypeList loanTypes;
    ASSERT_EQ(LoadLoanTypes(File(), loanTypes), std::nullopt);
    EXPECT_EQ(loanTypes[0].FrontRatio, 0.3f);
    EXPECT_EQ(loanTypes[0].BackRatio, 0.3f);
    EXPECT_EQ(loanTypes[0].Text6, "0.3");
    EXPECT_EQ(loanTypes[0].Text8, "0.3");
    EXPECT_FALSE(loanTypes[0].IsEEM);
}

TEST_F(LoanTypesFileTest, ALineThatDoesNotConvertIsAFaultThatNamesIt) {
    for (const char* bad :
         {"LOANTYPE=1,Conventional", "LOANTYPE=one,A,,0.28,0.36,,,,FALSE", "LOANTYPE=1,A,,x,0.36,,,,FALSE",
          "LOANTYPE=1,A,,0.28,,,,,FALSE", "LOANTYPE=40000,A,,0.28,0.36,,,,FALSE"}) {
        Given(std::string("X=1\r\nLOANTYPE=1,A,,0.28,0.36,,,,FALSE\r\n") + bad + "\r\n");
        LoanTypeList loanTypes;
        const auto fault = LoadLoanTypes(File(), loanTypes);
        ASSERT_TRUE(fault) << bad;
        EXPECT_EQ(fault->What, SettingsFault::Kind::BadLine);
        EXPECT_EQ(fault->Line, 3u);
        EXPECT_EQ(fault->Text, bad);
        EXPECT_EQ(fault->Path, Folder() / "Ledgrove.ini");
    }
}

TEST_F(LoanTypesFileTest, AMissingFileIsReported) {
    LoanTypeList loanTypes;
    const auto fault = LoadLoanTypes(File(), loanTypes);
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->What, SettingsFault::Kind::Missing);
    EXPECT_FALSE(Exists(File().Path()));
}

TEST_F(LoanTypesFileTest, WritingDropsTheOldLinesAndAppendsTheRecords) {
    Given("LOANTYPE=9,old,,1,1,,,,TRUE\r\nX=1\r\nLOANTYPE=8,old,,1,1,,,,TRUE\r\nY=2");
    LoanType first;
    first.Number = 4;
    first.Name = "FHA";
    first.Text3 = "3";
    first.FrontRatio = 0.33f; // as from the typed "33%"
    first.BackRatio = 0.4305f;
    first.Text6 = "6";
    first.Text7 = "7";
    first.Text8 = "8";
    first.IsEEM = true;
    EXPECT_EQ(Save([&](SettingsDraft& draft) {
                  return WriteLoanTypes(draft, {first, LoanType{}});
              }),
              std::nullopt);
    // 0.4305 is halfway at three places and rounds away from zero.
    EXPECT_EQ(Bytes(), "X=1\r\nY=2\r\nLOANTYPE=4,FHA,3,0.330,0.431,6,7,8,TRUE\r\n"
                       "LOANTYPE=0,,,0.000,0.000,,,,FALSE\r\n");
}

TEST_F(LoanTypesFileTest, AnEmptyListIsWrittenAsOneEmptyRecord) {
    EXPECT_EQ(RewrittenFrom("X=1\r\n"), "X=1\r\nLOANTYPE=0,,,0.000,0.000,,,,FALSE\r\n");
}

TEST_F(LoanTypesFileTest, ReadingAndWritingKeepsTexts) {
    const std::string line = "LOANTYPE=1,Pr\xEAt \x80,\x81 3,0.280,0.360,6, 7 ,8,TRUE\r\n";
    EXPECT_EQ(RewrittenFrom(line), line);
}

TEST_F(LoanTypesFileTest, EightLinesStayEight) {
    std::string lines;
    for (int i = 1; i <= 8; ++i)
        lines += "LOANTYPE=" + std::to_string(i) + ",T,,0.280,0.360,,,,FALSE\r\n";
    EXPECT_EQ(RewrittenFrom(lines), lines);
}

} // namespace
} // namespace Ledgrove::Module1
