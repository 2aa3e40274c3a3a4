#include "settings/FolderLock.h"
#include "settings/Rewrite.h"

#include "TemporaryFolder.h"

#include <atomic>
#include <chrono>
#include <csignal>
#include <string>
#include <thread>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Ledgrove {
namespace {

using namespace std::chrono_literals;
using Kind = SettingsFault::Kind;

class SavingTest : public SettingsTest {
protected:
    static mode_t ModeOf(const std::filesystem::path& path) {
        struct stat status {};
        return stat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
    }
    std::size_t FilesIn(const std::filesystem::path& folder) const {
        std::size_t count = 0;
        for (const auto& entry : std::filesystem::directory_iterator(folder))
            count += entry.exists() || entry.is_symlink() ? 1 : 0;
        return count;
    }
    std::optional<SettingsFault> SetA(const SettingsFile& file) const {
        return Rewrite(file, {{ReplaceOrAppend("A", "2")}, {}});
    }
};

/// Limits the size of files that this process writes.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &m_old);
        const rlimit limit{bytes, m_old.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &m_old);
        std::signal(SIGXFSZ, m_handler);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_old{};
    void (*m_handler)(int);
};

TEST_F(SavingTest, ATooLargeSaveLeavesTheOldFileAndNoTemporaryFile) {
    Given("A=1\r\n");
    {
        const FileSizeLimit limit(100);
        const auto fault = File().ReplaceContent(std::string(1000, 'x'));
        ASSERT_TRUE(fault);
        EXPECT_EQ(fault->What, Kind::Unwritable);
        EXPECT_EQ(fault->Path, File().TemporaryPath());
        EXPECT_EQ(fault->Reason, "File too large");
    }
    EXPECT_EQ(Bytes(), "A=1\r\n");
    EXPECT_EQ(FilesIn(Folder()), 1U);
}

TEST_F(SavingTest, TheModeOfTheOldFileIsKept) {
    for (const mode_t mode : {0600U, 0640U, 0666U, 0444U}) {
        Given("A=1\r\n");
        ASSERT_EQ(chmod(File().Path().c_str(), mode), 0);
        EXPECT_EQ(SetA(File()), std::nullopt);
        EXPECT_EQ(ModeOf(File().Path()), mode);
        EXPECT_EQ(Bytes(), "A=2\r\n");
        ASSERT_EQ(unlink(File().Path().c_str()), 0);
    }
}

TEST_F(SavingTest, ALinkStaysAndItsFileIsRewrittenInItsOwnFolder) {
    const std::filesystem::path shared = Folder() / "shared";
    const std::filesystem::path program = Folder() / "program";
    std::filesystem::create_directory(shared);
    std::filesystem::create_directory(program);
    WriteBytes(shared / "common.ini", "A=1\r\n");
    std::filesystem::create_symlink("middle.ini", program / "Ledgrove.ini");
    std::filesystem::create_symlink("../shared/common.ini", program / "middle.ini");
    const SettingsFile file(program);
    EXPECT_EQ(SetA(file), std::nullopt);
    EXPECT_EQ(ReadBytes(shared / "common.ini"), "A=2\r\n");
    EXPECT_TRUE(std::filesystem::is_symlink(program / "Ledgrove.ini"));
    EXPECT_TRUE(std::filesystem::is_symlink(program / "middle.ini"));
    EXPECT_EQ(FilesIn(program), 2U);
    EXPECT_EQ(FilesIn(shared), 1U);

    // After an interruption between delete and rename, the temporary file is found in the target's folder.
    std::filesystem::rename(shared / "common.ini", shared / "Pennaro2.INI");
    const auto lines = file.ReadLines(SettingsFile::WhenMissing::CreateEmpty);
    ASSERT_FALSE(lines);
    EXPECT_EQ(lines.Fault().What, Kind::InterruptedSave);
    EXPECT_NE(Sentence(lines.Fault()).find("to \"common.ini\"."), std::string::npos);
    EXPECT_EQ(file.RestoreInterruptedSave(), std::nullopt);
    EXPECT_EQ(ReadBytes(shared / "common.ini"), "A=2\r\n");
}

TEST_F(SavingTest, ALinkToTheTemporaryFilesNameIsRefused) {
    WriteBytes(Folder() / "Pennaro2.INI", "A=1\r\n");
    std::filesystem::create_symlink("Pennaro2.INI", File().Path());
    const auto fault = SetA(File());
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->What, Kind::Unwritable);
    EXPECT_EQ(ReadBytes(Folder() / "Pennaro2.INI"), "A=1\r\n");
}

TEST_F(SavingTest, ALinkInPlaceOfTheTemporaryFileIsNotWrittenThrough) {
    Given("A=1\r\n");
    WriteBytes(Folder() / "letter.txt", "Dear Ann");
    std::filesystem::create_symlink("letter.txt", File().TemporaryPath());
    EXPECT_EQ(SetA(File()), std::nullopt);
    EXPECT_EQ(Bytes(), "A=2\r\n");
    EXPECT_EQ(ReadBytes(Folder() / "letter.txt"), "Dear Ann");
}

TEST_F(SavingTest, ACircularLinkIsUnreadable) {
    std::filesystem::create_symlink("Ledgrove.ini", File().Path());
    const auto fault = SetA(File());
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->What, Kind::Unreadable);
    EXPECT_EQ(fault->Reason, "Too many levels of symbolic links");
}

TEST_F(SavingTest, AfterAnInterruptedSaveNoContentIsReplaced) {
    WriteBytes(File().TemporaryPath(), "A=1\r\n");
    const auto fault = File().ReplaceContent("A=2\r\n");
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->What, Kind::InterruptedSave);
    EXPECT_EQ(ReadBytes(File().TemporaryPath()), "A=1\r\n");
    EXPECT_FALSE(Exists(File().Path()));
}

TEST_F(SavingTest, AnInterruptedSaveIsRestored) {
    WriteBytes(File().TemporaryPath(), "A=1\r\n");
    EXPECT_EQ(File().RestoreInterruptedSave(), std::nullopt);
    EXPECT_EQ(Bytes(), "A=1\r\n");
    EXPECT_EQ(FilesIn(Folder()), 1U);
}

TEST_F(SavingTest, RestoringKeepsAnExistingFile) {
    Given("A=1\r\n");
    WriteBytes(File().TemporaryPath(), "A=half");
    EXPECT_EQ(File().RestoreInterruptedSave(), std::nullopt);
    EXPECT_EQ(Bytes(), "A=1\r\n");
}

TEST_F(SavingTest, OnlyAFileIsRestored) {
    std::filesystem::create_directory(File().TemporaryPath());
    const auto fault = File().RestoreInterruptedSave();
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->What, Kind::Unreadable);
    EXPECT_FALSE(Exists(File().Path()));
}

TEST_F(SavingTest, NothingToRestoreIsAFault) {
    const auto fault = File().RestoreInterruptedSave();
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->Reason, "No such file or directory");
}

TEST_F(SavingTest, AFileThatAnotherCopyHoldsIsReadButNotSaved) {
    Given("A=1\r\n");
    const SettingsFile impatient(Folder(), 5ms);
    {
        const auto held = File().Hold();
        ASSERT_TRUE(held);
        EXPECT_TRUE(impatient.ReadLines());
        const auto fault = SetA(impatient);
        ASSERT_TRUE(fault);
        EXPECT_EQ(fault->What, Kind::Busy);
        EXPECT_EQ(Bytes(), "A=1\r\n");
        EXPECT_EQ(SetA(*held), std::nullopt);
        EXPECT_EQ(Bytes(), "A=2\r\n");
    }
    EXPECT_EQ(SetA(impatient), std::nullopt);
}

TEST_F(SavingTest, AShortGapWithoutAFileDoesNotCountAsMissing) {
    // The state between another copy's delete and rename.
    WriteBytes(File().TemporaryPath(), "A=1\r\n");
    const auto held = File().Hold();
    ASSERT_TRUE(held);
    const SettingsFile impatient(Folder(), 5ms);
    for (const auto whenMissing : {SettingsFile::WhenMissing::Fail, SettingsFile::WhenMissing::CreateEmpty}) {
        const auto lines = impatient.ReadLines(whenMissing);
        ASSERT_FALSE(lines);
        EXPECT_EQ(lines.Fault().What, Kind::Busy);
    }
    EXPECT_FALSE(Exists(File().Path()));
}

TEST_F(SavingTest, AReaderThatGetsNoLockWaitsForTheFile) {
    Given("A=1\r\n");
    const FolderLock others(Folder(), FolderLock::Sharing::Exclusive, 0ms);
    // Copies that save one after the other: the file is missing half of the time.
    std::atomic<bool> saved = false;
    const std::jthread saving([this, &saved] {
        for (int i = 0; i < 20'000; ++i) {
            std::filesystem::rename(File().Path(), File().TemporaryPath());
            std::filesystem::rename(File().TemporaryPath(), File().Path());
        }
        saved = true;
    });
    const SettingsFile impatient(Folder(), 0ms);
    while (!saved)
        ASSERT_TRUE(impatient.ReadLines());
}

TEST_F(SavingTest, ReadersDoNotBlockEachOther) {
    Given("A=1\r\n");
    const FolderLock first(Folder(), FolderLock::Sharing::Shared, 0ms);
    const FolderLock second(Folder(), FolderLock::Sharing::Shared, 0ms);
    EXPECT_EQ(first.What(), FolderLock::State::Held);
    EXPECT_EQ(second.What(), FolderLock::State::Held);
    const FolderLock writer(Folder(), FolderLock::Sharing::Exclusive, 0ms);
    EXPECT_EQ(writer.What(), FolderLock::State::Busy);
}

TEST_F(SavingTest, AFolderThatCannotBeOpenedHasNoLock) {
    const FolderLock none(Folder() / "none", FolderLock::Sharing::Shared, 0ms);
    EXPECT_EQ(none.What(), FolderLock::State::NoFolder);
}

TEST_F(SavingTest, AFileTooLargeForSettingsIsUnreadable) {
    Given("A=1\r\n");
    std::filesystem::resize_file(File().Path(), (64UL << 20UL) + 1);
    const auto fault = SetA(File());
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->What, Kind::Unreadable);
    EXPECT_EQ(fault->Reason, "File too large");
}

} // namespace
} // namespace Ledgrove
