#include "base/ProgramFolder.h"
#include "base/SystemError.h"

#include <cerrno>

#include <gtest/gtest.h>

namespace Ledgrove {
namespace {

TEST(SystemError, HasTheSystemsMessage) {
    EXPECT_EQ(Describe(ENOENT), "No such file or directory");
    EXPECT_EQ(Describe(ENOSPC), "No space left on device");
    EXPECT_NE(Describe(EIO), Describe(EACCES));
}

TEST(ProgramFolder, IsTheFolderOfTheProgramNotTheCurrentFolder) {
    const auto before = std::filesystem::current_path();
    const auto folder = ProgramFolder();
    EXPECT_TRUE(std::filesystem::exists(folder / "base_tests"));
    std::filesystem::current_path("/");
    EXPECT_EQ(ProgramFolder(), folder);
    std::filesystem::current_path(before);
}

} // namespace
} // namespace Ledgrove
