#include "settings/Rewrite.h"

#include "TemporaryFolder.h"

namespace Ledgrove {
namespace {

using namespace std::string_literals;
using Match = RewriteRule::Match;

class RewriteTest : public SettingsTest {};

TEST_F(RewriteTest, ReplacesEveryLineOfTheKeyInPlace) {
    Given("X=1\r\nA=old\r\nY=2\r\nAXolder\r\n");
    EXPECT_EQ(Rewrite(File(), {{ReplaceOrAppend("A", "new")}, {}}), std::nullopt);
    EXPECT_EQ(Bytes(), "X=1\r\nA=new\r\nY=2\r\nA=new\r\n");
}

TEST_F(RewriteTest, AppendsMissingKeysInOrderThenTheFixedLines) {
    Given("B=old\r\n");
    EXPECT_EQ(Rewrite(File(), {{ReplaceOrAppend("A", "1"), ReplaceOrAppend("B", "2"), ReplaceOnly("C", "3"),
                                ReplaceOrAppend("D", "4")},
                               {"Z=8", "Z=9"}}),
              std::nullopt);
    EXPECT_EQ(Bytes(), "B=2\r\nA=1\r\nD=4\r\nZ=8\r\nZ=9\r\n");
}

TEST_F(RewriteTest, TheFirstMatchingRuleApplies) {
    Given("KEY12=x\r\n");
    EXPECT_EQ(Rewrite(File(), {{ReplaceOrAppend("KEY1", "one"), ReplaceOrAppend("KEY12", "twelve")}, {}}),
              std::nullopt);
    EXPECT_EQ(Bytes(), "KEY1=one\r\nKEY12=twelve\r\n");
}

TEST_F(RewriteTest, ReplacesInTurnAndKeepsTheLinesBeyond) {
    Given("T=a\r\nX=1\r\nT=b\r\nT=c\n");
    const RewriteRule rule{"T", Match::ReplaceInTurn, {"T=1", "T=2"}, {"T=never"}};
    EXPECT_EQ(Rewrite(File(), {{rule}, {}}), std::nullopt);
    EXPECT_EQ(Bytes(), "T=1\r\nX=1\r\nT=2\r\nT=c\n");
}

TEST_F(RewriteTest, DropsLines) {
    Given("L=1\r\nX=1\r\nL=2\r\n");
    EXPECT_EQ(Rewrite(File(), {{DropLines("L")}, {"L=3"}}), std::nullopt);
    EXPECT_EQ(Bytes(), "X=1\r\nL=3\r\n");
}

TEST_F(RewriteTest, KeptLinesKeepTheirBytesAndLineEndings) {
    const std::string unknown = "\xEF\xBB\xBF mark\n\r\n\xE9\x81 \0 bytes\rlast"s;
    Given("A=1\n" + unknown);
    EXPECT_EQ(Rewrite(File(), {{ReplaceOrAppend("A", "2")}, {}}), std::nullopt);
    EXPECT_EQ(Bytes(), "A=2\r\n" + unknown);
}

TEST_F(RewriteTest, ALastLineGetsALineEndingOnlyWhenALineFollows) {
    Given("X=1\nY=2");
    EXPECT_EQ(Rewrite(File(), {{ReplaceOnly("A", "1")}, {}}), std::nullopt);
    EXPECT_EQ(Bytes(), "X=1\nY=2");
    EXPECT_EQ(Rewrite(File(), {{ReplaceOrAppend("A", "1")}, {}}), std::nullopt);
    EXPECT_EQ(Bytes(), "X=1\nY=2\r\nA=1\r\n");
}

TEST_F(RewriteTest, AnEmptyLineSurvivesWhenTheLineBeforeItIsDropped) {
    Given("X=1\rL=2\n\nY=3\n");
    EXPECT_EQ(Rewrite(File(), {{DropLines("L")}, {}}), std::nullopt);
    EXPECT_EQ(Bytes(), "X=1\r\r\nY=3\n");
}

TEST_F(RewriteTest, WritesWindows1252) {
    Given("");
    EXPECT_EQ(Rewrite(File(), {{ReplaceOrAppend("K\xC3\x89Y", "\xE2\x82\xAC 5 \xC2\x81")}, {}}),
              std::nullopt);
    EXPECT_EQ(Bytes(), "K\xC9Y=\x80 5 \x81\r\n");
    EXPECT_EQ(Rewrite(File(), {{ReplaceOrAppend("K\xC3\x89Y", "2")}, {}}), std::nullopt);
    EXPECT_EQ(Bytes(), "K\xC9Y=2\r\n");
}

TEST_F(RewriteTest, RefusesAnInvalidLineBeforeAnythingIsWritten) {
    Given("A=1\r\n");
    for (const char* value : {"a\nb", "a\rb", "\xE2\x86\x92", "\xFF"}) {
        const auto fault = Rewrite(File(), {{ReplaceOrAppend("A", "2")}, {SettingLine("B", value)}});
        ASSERT_TRUE(fault) << value;
        EXPECT_EQ(fault->What, SettingsFault::Kind::RefusedText);
        EXPECT_EQ(fault->Text, std::string("B=") + value);
        EXPECT_EQ(Bytes(), "A=1\r\n");
        EXPECT_FALSE(Exists(File().TemporaryPath()));
    }
}

TEST_F(RewriteTest, WithoutTheFileNothingIsWritten) {
    const auto fault = Rewrite(File(), {{ReplaceOrAppend("A", "2")}, {}});
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->What, SettingsFault::Kind::Missing);
    EXPECT_TRUE(std::filesystem::is_empty(Folder()));
}

TEST_F(RewriteTest, AfterAnInterruptedSaveNothingIsWritten) {
    WriteBytes(File().TemporaryPath(), "A=1\r\n");
    const auto fault = Rewrite(File(), {{ReplaceOrAppend("A", "2")}, {}});
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->What, SettingsFault::Kind::InterruptedSave);
    EXPECT_EQ(ReadBytes(File().TemporaryPath()), "A=1\r\n");
    EXPECT_FALSE(Exists(File().Path()));
}

TEST_F(RewriteTest, AFolderInPlaceOfTheTemporaryFileLeavesTheOldFile) {
    Given("A=1\r\n");
    std::filesystem::create_directory(File().TemporaryPath());
    const auto fault = Rewrite(File(), {{ReplaceOrAppend("A", "2")}, {}});
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->What, SettingsFault::Kind::Unwritable);
    EXPECT_EQ(Bytes(), "A=1\r\n");
}

} // namespace
} // namespace Ledgrove
