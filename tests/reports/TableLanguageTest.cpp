#include "reports/TableLanguage.h"

#include <gmock/gmock.h>

namespace Ledgrove {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<Twips> Widths(std::string_view format) {
    std::vector<Twips> widths;
    for (const TableColumn& column : ReadTableFormat(format))
        widths.push_back(column.Width);
    return widths;
}

std::vector<CellAlign> Aligns(std::string_view format) {
    std::vector<CellAlign> aligns;
    for (const TableColumn& column : ReadTableFormat(format))
        aligns.push_back(column.Align);
    return aligns;
}

TEST(TableFormat, ListsColumnsWithMarksAndWidths) {
    constexpr std::string_view format = "1000|>2160|>1900|>1800|>1700|2000;";
    EXPECT_THAT(Widths(format), ElementsAre(1000, 2160, 1900, 1800, 1700, 2000));
    EXPECT_THAT(Aligns(format), ElementsAre(CellAlign::Left, CellAlign::Right, CellAlign::Right,
                                            CellAlign::Right, CellAlign::Right, CellAlign::Left));
    EXPECT_THAT(Aligns("^7560|<2600;"), ElementsAre(CellAlign::Centre, CellAlign::Left));
}

TEST(TableFormat, TheClosingSemicolonMayBeMissing) {
    EXPECT_THAT(Widths("3060|>2000|2500"), ElementsAre(3060, 2000, 2500));
    EXPECT_EQ(Aligns("3060|>2000|2500"), Aligns("3060|>2000|2500;"));
}

TEST(TableFormat, AWidthThatIsNotANumberIsZero) {
    EXPECT_THAT(Widths("abc|>|^12;"), ElementsAre(0, 0, 12));
    EXPECT_THAT(Widths("-5|99999999999|2000000000"), ElementsAre(0, 0, 144000)); // 100 inches at most
}

TEST(TableRows, AreSeparatedBySemicolonsAndCellsByBars) {
    EXPECT_THAT(ReadTableRows("a|b;c|d"), ElementsAre(ElementsAre("a", "b"), ElementsAre("c", "d")));
}

TEST(TableRows, CellsMayBeEmpty) {
    EXPECT_THAT(ReadTableRows("|Income||Down Payment|"),
                ElementsAre(ElementsAre("", "Income", "", "Down Payment", "")));
}

TEST(TableRows, AFinalSemicolonEndsTheLastRowAndASecondAddsAnEmptyRow) {
    EXPECT_THAT(ReadTableRows("a;"), ElementsAre(ElementsAre("a")));
    EXPECT_THAT(ReadTableRows("a;;"), ElementsAre(ElementsAre("a"), ElementsAre("")));
    EXPECT_THAT(ReadTableRows(";a;"), ElementsAre(ElementsAre(""), ElementsAre("a")));
    EXPECT_THAT(ReadTableRows(";"), ElementsAre(ElementsAre("")));
}

TEST(TableRows, AnEmptyTextHasNoRows) {
    EXPECT_THAT(ReadTableRows(""), IsEmpty());
}

TEST(CellText, KeepsATextWithSeparatorsInOneCell) {
    EXPECT_THAT(ReadTableRows(CellText("Deck; 2|3") + "|b;"), ElementsAre(ElementsAre("Deck; 2|3", "b")));
}

} // namespace
} // namespace Ledgrove
