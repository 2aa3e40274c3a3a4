#include "TemporaryFolder.h"

#include <string>

#include <sys/stat.h>
#include <unistd.h>

namespace Ledgrove {
namespace {

using namespace std::string_literals;
using Kind = SettingsFault::Kind;
using WhenMissing = SettingsFile::WhenMissing;

std::string Shown(const FileLines& lines) {
    std::string text;
    for (const FileLine& line : lines)
        text += '[' + line.Text + '|' + line.End + ']';
    return text;
}

TEST(SplitLines, AcceptsCrLfLfAndCr) {
    EXPECT_EQ(Shown(SplitLines("A\r\nB\nC\rD\r\n")), "[A|\r\n][B|\n][C|\r][D|\r\n]");
}

TEST(SplitLines, TheLastLineNeedsNoLineEnding) {
    EXPECT_EQ(Shown(SplitLines("A\r\nB")), "[A|\r\n][B|]");
    EXPECT_EQ(Shown(SplitLines("A\r\n")), "[A|\r\n]");
    EXPECT_EQ(Shown(SplitLines("")), "");
}

TEST(SplitLines, EmptyLinesAndNulBytesArePartOfTheText) {
    const std::string bytes = "\n\r\n\r\rA\0B\n"s;
    EXPECT_EQ(Shown(SplitLines(bytes)), "[|\n][|\r\n][|\r][|\r][A\0B|\n]"s);
}

class SettingsFileTest : public SettingsTest {};

TEST_F(SettingsFileTest, PathsAreAbsoluteAndInTheFolder) {
    EXPECT_EQ(File().Path(), Folder() / "Ledgrove.ini");
    EXPECT_EQ(File().TemporaryPath(), Folder() / "Pennaro2.INI");
    EXPECT_EQ(SettingsFile("./some/dir").Path(), std::filesystem::current_path() / "some/dir/Ledgrove.ini");
    EXPECT_EQ(SettingsFile("").Path(), std::filesystem::current_path() / "Ledgrove.ini");
}

TEST_F(SettingsFileTest, AMissingFileIsMissing) {
    const auto lines = File().ReadLines();
    ASSERT_FALSE(lines);
    EXPECT_EQ(lines.Fault().What, Kind::Missing);
    EXPECT_EQ(lines.Fault().Path, Folder() / "Ledgrove.ini");
    EXPECT_FALSE(Exists(File().Path()));
}

TEST_F(SettingsFileTest, AMissingFileIsCreatedEmptyOnRequest) {
    const auto lines = File().ReadLines(WhenMissing::CreateEmpty);
    ASSERT_TRUE(lines);
    EXPECT_TRUE(lines->empty());
    EXPECT_EQ(Bytes(), "");
}

TEST_F(SettingsFileTest, WithoutItsFolderTheFileCannotBeCreated) {
    const SettingsFile file(Folder() / "none");
    const auto lines = file.ReadLines(WhenMissing::CreateEmpty);
    ASSERT_FALSE(lines);
    EXPECT_EQ(lines.Fault().What, Kind::Unwritable);
    EXPECT_EQ(lines.Fault().Path, Folder() / "none/Ledgrove.ini");
    EXPECT_EQ(lines.Fault().Reason, "No such file or directory");
}

TEST_F(SettingsFileTest, AfterAnInterruptedSaveNothingIsCreatedOrChanged) {
    WriteBytes(File().TemporaryPath(), "BUILDERNAME=Acme\r\n");
    for (const WhenMissing whenMissing : {WhenMissing::Fail, WhenMissing::CreateEmpty}) {
        const auto lines = File().ReadLines(whenMissing);
        ASSERT_FALSE(lines);
        EXPECT_EQ(lines.Fault().What, Kind::InterruptedSave);
        EXPECT_EQ(lines.Fault().Path, Folder() / "Pennaro2.INI");
        EXPECT_FALSE(Exists(File().Path()));
        EXPECT_EQ(ReadBytes(File().TemporaryPath()), "BUILDERNAME=Acme\r\n");
    }
}

TEST_F(SettingsFileTest, AFolderInPlaceOfTheFileIsUnreadableNotMissing) {
    std::filesystem::create_directory(File().Path());
    for (const WhenMissing whenMissing : {WhenMissing::Fail, WhenMissing::CreateEmpty}) {
        const auto lines = File().ReadLines(whenMissing);
        ASSERT_FALSE(lines);
        EXPECT_EQ(lines.Fault().What, Kind::Unreadable);
        EXPECT_EQ(lines.Fault().Reason, "Is a directory");
    }
}

TEST_F(SettingsFileTest, AFileInPlaceOfTheFolderIsUnreadableNotMissing) {
    WriteBytes(Folder() / "plain", "");
    const auto lines = SettingsFile(Folder() / "plain").ReadLines();
    ASSERT_FALSE(lines);
    EXPECT_EQ(lines.Fault().What, Kind::Unreadable);
    EXPECT_EQ(lines.Fault().Reason, "Not a directory");
}

TEST_F(SettingsFileTest, APipeInPlaceOfTheFileIsRefusedWithoutWaiting) {
    ASSERT_EQ(mkfifo(File().Path().c_str(), 0600), 0);
    const auto lines = File().ReadLines();
    ASSERT_FALSE(lines);
    EXPECT_EQ(lines.Fault().What, Kind::Unreadable);
}

TEST_F(SettingsFileTest, AReadErrorIsNotTheEndOfTheFile) {
    // The memory of a process opens like a file, but its address 0 cannot be read.
    if (!Exists("/proc/self/mem"))
        GTEST_SKIP() << "this system has no file that fails on reading";
    std::filesystem::create_symlink("/proc/self/mem", File().Path());
    const auto lines = File().ReadLines();
    ASSERT_FALSE(lines);
    EXPECT_EQ(lines.Fault().What, Kind::Unreadable);
    EXPECT_EQ(lines.Fault().Reason, "Input/output error");
}

TEST_F(SettingsFileTest, ReplacingLeavesTheNewContentAndNoTemporaryFile) {
    Given("old");
    EXPECT_EQ(File().ReplaceContent("new\r\n"), std::nullopt);
    EXPECT_EQ(Bytes(), "new\r\n");
    EXPECT_FALSE(Exists(File().TemporaryPath()));
}

TEST_F(SettingsFileTest, ReplacingOverwritesALeftoverTemporaryFile) {
    Given("old");
    WriteBytes(File().TemporaryPath(), "a longer text left by a save that was interrupted");
    EXPECT_EQ(File().ReplaceContent("new"), std::nullopt);
    EXPECT_EQ(Bytes(), "new");
    EXPECT_FALSE(Exists(File().TemporaryPath()));
}

TEST_F(SettingsFileTest, ATemporaryFileThatCannotBeOpenedLeavesTheOldFile) {
    Given("old");
    std::filesystem::create_directory(File().TemporaryPath());
    const auto fault = File().ReplaceContent("new");
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->What, Kind::Unwritable);
    EXPECT_EQ(fault->Path, Folder() / "Pennaro2.INI");
    EXPECT_EQ(fault->Reason, "Is a directory");
    EXPECT_EQ(Bytes(), "old");
}

TEST_F(SettingsFileTest, AFailedDeleteLeavesTheOldFileAndNoTemporaryFile) {
    std::filesystem::create_directory(File().Path());
    const auto fault = File().ReplaceContent("new");
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->What, Kind::Unwritable);
    EXPECT_EQ(fault->Path, Folder() / "Ledgrove.ini");
    EXPECT_TRUE(std::filesystem::is_directory(File().Path()));
    EXPECT_FALSE(Exists(File().TemporaryPath()));
}

} // namespace
} // namespace Ledgrove
