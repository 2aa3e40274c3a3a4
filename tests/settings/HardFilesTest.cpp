#include "settings/HouseListFile.h"
#include "settings/LineSyntax.h"
#include "settings/Rewrite.h"

#include "TemporaryFolder.h"

#include <string>

namespace Ledgrove {
namespace {

using namespace std::string_literals;

/// Files that the program would not write itself. It must read them and keep the bytes of lines that it does
/// not know.
class HardFilesTest : public SettingsTest {
protected:
    /// Saves one key in the middle of the file and expects that everything around it is unchanged.
    void ExpectKept(const std::string& before, const std::string& after) {
        Given(before + "KEY=1\r\n" + after);
        EXPECT_EQ(Rewrite(File(), {{ReplaceOrAppend("KEY", "2")}, {}}), std::nullopt);
        EXPECT_TRUE(Bytes() == before + "KEY=2\r\n" + after) << "the save changed other bytes";
    }
};

TEST_F(HardFilesTest, EveryByteIsKept) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        // In pairs, because CR and LF together are one line ending.
        bytes += static_cast<char>(byte);
        bytes += "|"s + static_cast<char>(byte) + static_cast<char>(255 - byte) + "\n";
    }
    ExpectKept(bytes, bytes);
}

TEST_F(HardFilesTest, ALineOfAMegabyteIsKept) {
    const std::string text(1U << 20U, 'x');
    ExpectKept(text + "\n", "\0"s + text);
}

TEST_F(HardFilesTest, OtherLineEndingsAreKept) {
    ExpectKept("X=1\rY=2\r\rZ=3\r", "X=1\rY=2\r");
    ExpectKept("X=1\nY=2\n\nZ=3\n", "X=1\nY=2\n");
    ExpectKept("\n\r\n\r\r\n", "\r\r\r\n\n");
}

TEST_F(HardFilesTest, ALastLineWithoutLineEndingIsKept) {
    ExpectKept("X=1\r\n", "Y=2");
}

TEST_F(HardFilesTest, AUtf8MarkIsKeptAndTheLinesAfterItAreRead) {
    ExpectKept("\xEF\xBB\xBFX=1\r\n", "Y=\xC3\xA9\r\n");
    const auto lines = File().ReadLines();
    ASSERT_TRUE(lines);
    EXPECT_EQ(LastLineOf(*lines, "KEY"), 1U);
}

TEST_F(HardFilesTest, AHundredThousandLinesAreKept) {
    std::string bytes;
    for (int line = 0; line < 100'000; ++line)
        bytes += "UNKNOWN" + std::to_string(line) + "=\xE9\r\n";
    ExpectKept(bytes, bytes);
}

TEST_F(HardFilesTest, TenThousandHousesAreUnchanged) {
    HouseList houses;
    for (int number = 0; number < 10'000; ++number) {
        const auto amount = static_cast<float>(number);
        houses.push_back({"H\xC3\xA4uschen " + std::to_string(number), 100'000 + amount, 1'000 + amount,
                          200'000 + amount, amount});
    }
    Given("X=1\r\n");
    EXPECT_EQ(Module1::WriteHomeList(File(), houses), std::nullopt);
    HouseList read;
    EXPECT_EQ(Module1::LoadHomeList(File(), read), std::nullopt);
    ASSERT_EQ(read.size(), houses.size());
    for (std::size_t i = 0; i < houses.size(); ++i) {
        ASSERT_EQ(read[i].Name, houses[i].Name);
        ASSERT_EQ(read[i].StdCost, houses[i].StdCost);
        ASSERT_EQ(read[i].StdUtil, houses[i].StdUtil);
        ASSERT_EQ(read[i].GMHCost, houses[i].GMHCost);
        ASSERT_EQ(read[i].GMHUtil, houses[i].GMHUtil);
    }
}

} // namespace
} // namespace Ledgrove
