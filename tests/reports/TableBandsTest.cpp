#include "reports/TableBands.h"

#include <gmock/gmock.h>

#include <string_view>

namespace Ledgrove {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Bands of 100 twips: "T" a title bar, "H" a heading, "r" a row, "m" more lines of the row above, "." an
/// empty row, "|" a place where the table may continue on the next page.
std::vector<TableBand> Bands(std::string_view letters) {
    std::vector<TableBand> bands;
    bool mayBreak = false;
    for (const char letter : letters) {
        if (letter == '|') {
            mayBreak = true;
            continue;
        }
        TableBand& band = bands.emplace_back();
        band.Is = letter == 'T'   ? TableBand::Kind::Title
                  : letter == 'H' ? TableBand::Kind::Heading
                  : letter == 'm' ? TableBand::Kind::More
                  : letter == '.' ? TableBand::Kind::Blank
                                  : TableBand::Kind::Row;
        band.Height = 100;
        band.MayBreak = mayBreak;
        mayBreak = false;
    }
    return bands;
}

/// The letters of each page; `room` in bands.
std::vector<std::string> Pages(std::string_view letters, Twips here, Twips page, bool keepWhole = true) {
    const auto bands = Bands(letters);
    std::string kinds;
    for (const char letter : letters)
        if (letter != '|')
            kinds += letter;
    std::vector<std::string> pages;
    for (const BandsOfPage& numbers : BreakTable(bands, {here * 100, page * 100, keepWhole})) {
        std::string& text = pages.emplace_back();
        for (const std::size_t number : numbers)
            text += kinds[number];
    }
    return pages;
}

TEST(BreakTable, KeepsOnePageWhatFitsTheRestOfIt) {
    EXPECT_THAT(Pages("THrrr", 5, 10), ElementsAre("THrrr"));
    EXPECT_THAT(Pages("", 5, 10), ElementsAre(""));
}

TEST(BreakTable, MovesAWholeTableToTheNextPage) {
    EXPECT_THAT(Pages("THrrr", 4, 5), ElementsAre("", "THrrr"));
}

TEST(BreakTable, EmptyRowsAtTheEndNeedNoRoom) {
    EXPECT_THAT(Pages("THrrr..", 5, 10), ElementsAre("THrrr.."));
}

TEST(BreakTable, ALongerTableRepeatsItsTitleAndHeading) {
    EXPECT_THAT(Pages("THrrrrrrr", 6, 6), ElementsAre("THrrrr", "THrrr"));
    EXPECT_THAT(Pages("THrrrrrrrrr", 4, 5), ElementsAre("THrr", "THrrr", "THrr", "THrr"));
}

TEST(BreakTable, LeavesAtLeastTwoRowsOnEachPage) {
    // The last page takes a second row from the one before it.
    EXPECT_THAT(Pages("THrrrrrrr", 5, 8), ElementsAre("THrrr", "THrrrr"));
    EXPECT_THAT(Pages("THrrrrrrr", 8, 8), ElementsAre("THrrrrr", "THrr"));
    // One row would be alone on the first page.
    EXPECT_THAT(Pages("THrrrrrrr", 3, 8), ElementsAre("", "THrrrrr", "THrr"));
    EXPECT_THAT(Pages("THrrrrrrr", 4, 8), ElementsAre("THrr", "THrrrrr"));
}

TEST(BreakTable, BreaksAtTheAllowedPlacesFirst) {
    EXPECT_THAT(Pages("T.rr.|Hrrr.|Hrrr", 9, 20), ElementsAre("T.rr.Hrrr.", "THrrr"));
    EXPECT_THAT(Pages("T.rr.|Hrrr.|Hrrr", 8, 20), ElementsAre("T.rr.", "THrrr.Hrrr"));
}

TEST(BreakTable, AnAllowedPartThatIsLongerThanAPageIsTorn) {
    EXPECT_THAT(Pages("Trr|Hrrrrrrrrr", 7, 7), ElementsAre("TrrHrrr", "THrrrr", "THrr"));
}

TEST(BreakTable, EmptyRowsDoNotBeginAPage) {
    EXPECT_THAT(Pages("Trrr.rrrr", 4, 8), ElementsAre("Trrr.", "Trrrr"));
    EXPECT_THAT(Pages("Trr|..rr", 5, 8), ElementsAre("Trr", "Trr"));
}

TEST(BreakTable, WithoutKeepingItWholeATableBeginsOnTheCurrentPage) {
    EXPECT_THAT(Pages("THrrrrr", 5, 8, false), ElementsAre("THrrr", "THrr"));
    EXPECT_THAT(Pages("THrrrrr", 3, 8, false), ElementsAre("", "THrrrrr"));
}

TEST(BreakTable, ALongRowFillsThePages) {
    EXPECT_THAT(Pages("THrmmmmmmmmr", 6, 6), ElementsAre("THrmmm", "THmmmm", "THmr"));
    EXPECT_THAT(Pages("THrmmmm", 4, 5), ElementsAre("THrm", "THmmm")); // two lines fit here
    EXPECT_THAT(Pages("rrrmmmmr", 5, 5), ElementsAre("rrrmm", "mmr"));
}

TEST(BreakTable, EachPageTakesARowEvenIfItIsTooSmall) {
    EXPECT_THAT(Pages("THrr", 2, 2), ElementsAre("THr", "THr"));
    EXPECT_THAT(Pages("rrr", 0, 0), ElementsAre("r", "r", "r"));
}

} // namespace
} // namespace Ledgrove
