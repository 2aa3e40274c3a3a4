#include "base/FileKind.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include <sys/stat.h>

namespace Ledgrove {
namespace {

TEST(FileKind, OnlyAnOrdinaryFileCanBeUsed) {
    std::string name = (std::filesystem::temp_directory_path() / "ledgrove-kind-XXXXXX").string();
    ASSERT_NE(mkdtemp(name.data()), nullptr);
    const std::filesystem::path folder = name;
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    std::filesystem::create_symlink(folder / "pipe", folder / "link");
    std::ofstream(folder / "file") << "x";
    EXPECT_EQ(NotAFile(folder / "pipe"), "it is not an ordinary file");
    EXPECT_EQ(NotAFile(folder / "link"), "it is not an ordinary file");
    EXPECT_EQ(NotAFile("/dev/null"), "it is not an ordinary file");
    EXPECT_EQ(NotAFile(folder), "it is a folder");
    EXPECT_EQ(NotAFile(folder / "none"), "");
    EXPECT_EQ(NotAFile(folder / "file"), "");
    std::filesystem::remove_all(folder);
}

} // namespace
} // namespace Ledgrove
