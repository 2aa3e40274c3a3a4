#include "app/batch/CsvColumns.h"

#include <gmock/gmock.h>

namespace Ledgrove {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Kind = CsvColumn::Kind;

CsvColumn ColumnOf(const std::string& heading) {
    return ReadCsvHeading({heading, "x"}).Columns.at(0);
}

TEST(ReadCsvHeading, KnowsAnInputByNameCaptionAndHouseColumn) {
    for (const char* heading :
         {"ecStdHome", "Sticker Price, Base Home", "STICKER PRICE, base home", "StdCost"}) {
        EXPECT_EQ(ColumnOf(heading).Is, Kind::Input) << heading;
        EXPECT_EQ(ColumnOf(heading).Which, Input::ecStdHome) << heading;
    }
    EXPECT_EQ(ColumnOf("Annual Utility Cost, GREENMARK Home").Which, Input::ecGMHUtil);
}

TEST(ReadCsvHeading, OtherColumnsAreTheListsOwn) {
    for (const char* heading : {"Lot", "name", "Address", "ecstdhome", ""})
        EXPECT_EQ(ColumnOf(heading).Is, Kind::Carried) << heading;
    EXPECT_EQ(ColumnOf("StdCase.PITI").Is, Kind::Result);
    EXPECT_EQ(ColumnOf("error").Is, Kind::Result);
}

TEST(ReadCsvHeading, WarnsOfANameThatIsNearlyAnInput) {
    for (const char* heading : {"ecstdhome", "ec StdHome", "ecStdHom", "ecStdHomes", "ecStdHime", "cStdHome"})
        EXPECT_THAT(ReadCsvHeading({heading}).Warnings, ElementsAre(HasSubstr("\"ecStdHome\" is meant")))
            << heading;
    EXPECT_THAT(ReadCsvHeading({"Lot", "ecStdHome", "StdHomePrice"}).Warnings, IsEmpty());
}

TEST(ReadCsvHeading, WarnsOfAnOwnColumnWithTheNameOfAResult) {
    EXPECT_THAT(ReadCsvHeading({"messages"}).Warnings, ElementsAre(HasSubstr("\"messages\" has the name")));
    EXPECT_THAT(ReadCsvHeading({"StdCase.PITI", "messages"}).Warnings, IsEmpty()); // an earlier output
}

TEST(ReadCsvHeading, RefusesARowWithoutInputs) {
    EXPECT_THAT(ReadCsvHeading({"Lot", "Plan"}).Refusal, HasSubstr("No heading is an input."));
    EXPECT_EQ(ReadCsvHeading({"Lot", "ecStdHome"}).Refusal, "");
}

TEST(ReadCsvHeading, EmptyHeadingsAtTheEndArePassedOver) {
    const auto columns = ReadCsvHeading({"", "ecStdHome", "", ""}).Columns;
    EXPECT_EQ(columns[0].Is, Kind::Carried);
    EXPECT_EQ(columns[2].Is, Kind::Nothing);
    EXPECT_EQ(columns[3].Is, Kind::Nothing);
}

TEST(SeparatorOf, IsTheOneWithTheMostInputs) {
    EXPECT_EQ(SeparatorOf("ecStdHome,ecIncome"), ',');
    EXPECT_EQ(SeparatorOf("ecStdHome;ecIncome"), ';');
    EXPECT_EQ(SeparatorOf("ecStdHome\tecIncome"), '\t');
    EXPECT_EQ(SeparatorOf("Sticker Price, Base Home;Sticker Price, GREENMARK Home"), ';');
    EXPECT_EQ(SeparatorOf("\"Sticker Price, Base Home\",a;b;c;d"), ',');
    EXPECT_EQ(SeparatorOf("Lot;Plan"), ';'); // no inputs: the most columns
    EXPECT_EQ(SeparatorOf("Lot"), ',');
    EXPECT_EQ(SeparatorOf(""), ',');
}

} // namespace
} // namespace Ledgrove
