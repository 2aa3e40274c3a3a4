#include "engine/MainScreen.h"

#include "tests/engine/TestSession.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace {

using namespace Ledgrove;
using testing::ElementsAre;

template <typename Control>
std::vector<std::string_view> Names(std::span<const ControlEntry<Control>> table) {
    std::vector<std::string_view> names;
    for (const auto& entry : table)
        names.push_back(entry.Name);
    return names;
}

/// The offsets of a table's controls in the record, without duplicates.
template <typename Control>
std::set<std::ptrdiff_t> Places(std::span<const ControlEntry<Control>> table) {
    const MainScreen screen;
    std::set<std::ptrdiff_t> places;
    for (const auto& entry : table)
        places.insert(reinterpret_cast<const char*>(&(screen.*entry.Member)) -
                      reinterpret_cast<const char*>(&screen));
    return places;
}

template <typename Control>
bool StandSideBySide(const std::set<std::ptrdiff_t>& places) {
    std::ptrdiff_t wanted = *places.begin();
    for (const std::ptrdiff_t place : places) {
        if (place != wanted)
            return false;
        wanted += static_cast<std::ptrdiff_t>(sizeof(Control));
    }
    return true;
}

std::vector<std::pair<std::string_view, int>> TextsAndCodes(std::span<const PickItem> items) {
    std::vector<std::pair<std::string_view, int>> pairs;
    for (const PickItem& item : items)
        pairs.emplace_back(item.Text, item.Code);
    return pairs;
}

TEST(MainScreenTables, NameEveryControlOnce) {
    std::set<std::string_view> names;
    for (const std::string_view name : Names(FieldTable()))
        EXPECT_TRUE(names.insert(name).second) << name;
    for (const std::string_view name : Names(PickListTable()))
        EXPECT_TRUE(names.insert(name).second) << name;
    for (const std::string_view name : Names(LabelTable()))
        EXPECT_TRUE(names.insert(name).second) << name;
}

TEST(MainScreenTables, FieldsAreInTabOrder) {
    EXPECT_THAT(Names(FieldTable()),
                ElementsAre("ecIncome", "ecMonthlyDebt", "ecPctDown", "ecFixedDown", "ecStdHome", "ecGMHHome",
                            "ecStdUtil", "ecGMHUtil", "ecStdRate", "ecGMHRate", "ecStdStr", "ecGMHStr",
                            "ecRate", "ecSaveRate", "ecGMHTerm"));
    EXPECT_THAT(Names(PickListTable()), ElementsAre("cboMortTerm", "cboStdMortOption", "cboGMHMortOption"));
}

// The fields come first in the record and the labels last, so a member that is missing from its table leaves
// a gap.
TEST(MainScreenTables, ListEveryMemberOfTheRecord) {
    const auto fields = Places(FieldTable());
    const auto lists = Places(PickListTable());
    const auto labels = Places(LabelTable());
    ASSERT_EQ(fields.size(), FieldTable().size());
    ASSERT_EQ(labels.size(), LabelTable().size());

    EXPECT_EQ(*fields.begin(), 0);
    EXPECT_TRUE(StandSideBySide<Field>(fields));
    EXPECT_EQ(*lists.begin(), *fields.rbegin() + static_cast<std::ptrdiff_t>(sizeof(Field)));
    EXPECT_TRUE(StandSideBySide<PickList>(lists));
    EXPECT_EQ(lists.size(), 3U);
    EXPECT_TRUE(StandSideBySide<Label>(labels));
    EXPECT_EQ(*labels.rbegin() + static_cast<std::ptrdiff_t>(sizeof(Label)),
              static_cast<std::ptrdiff_t>(sizeof(MainScreen)));
}

TEST(MainScreenTables, HoldTheMembersThatTheyName) {
    MainScreen screen;
    screen.ecStdHome.Text = "base price";
    screen.lblNetCashMo.Text = "net";
    screen.lblgmhdown2.Text = "down";
    for (const auto& entry : FieldTable())
        EXPECT_EQ((screen.*entry.Member).Text, entry.Name == "ecStdHome" ? "base price" : "") << entry.Name;
    for (const auto& entry : LabelTable())
        EXPECT_EQ((screen.*entry.Member).Text, entry.Name == "lblNetCashMo"  ? "net"
                                               : entry.Name == "lblgmhdown2" ? "down"
                                                                             : "")
            << entry.Name;
}

TEST(MainScreenTables, ResultLabelsAreAllLabelsExceptTheHouseName) {
    auto names = Names(ResultLabelTable());
    names.push_back("lblHomeName");
    EXPECT_EQ(names, Names(LabelTable()));
}

TEST(MainScreenTables, EveryFieldOfANewScreenIsEmpty) {
    const MainScreen screen;
    for (const auto& entry : FieldTable())
        EXPECT_EQ((screen.*entry.Member).Text, "") << entry.Name;
}

TEST(MainScreen, FiveFieldsFeedTheEEMRule) {
    const MainScreen screen;
    std::vector<std::string_view> marked;
    for (const auto& entry : FieldTable())
        if ((screen.*entry.Member).SetsEEMNotice)
            marked.push_back(entry.Name);
    EXPECT_THAT(marked, ElementsAre("ecStdHome", "ecGMHHome", "ecStdUtil", "ecGMHUtil", "ecGMHRate"));
}

TEST(MainScreen, StartsOnTheFirstTabWithOnlyItsPanel) {
    const MainScreen screen;
    EXPECT_EQ(screen.SSTab1, 0);
    EXPECT_THAT(screen.DetlFrame, ElementsAre(true, false, false, false, false));
}

TEST(TermItems, BeginWithTheirYearsInTwoDigits) {
    EXPECT_THAT(TextsAndCodes(TermItems()),
                ElementsAre(std::pair("10 years", 10), std::pair("15 years", 15), std::pair("20 years", 20),
                            std::pair("25 years", 25), std::pair("30 years", 30), std::pair("35 years", 35),
                            std::pair("40 years", 40)));
}

TEST(OptionItems, OfTheBaseHomeArePlainTypes) {
    EXPECT_THAT(TextsAndCodes(BaseOptionItems()),
                ElementsAre(std::pair("Conventional", 1), std::pair("FHA", 4), std::pair("VA", 6)));
}

TEST(OptionItems, OfTheLabelledHomeMatchTheBaseChoice) {
    EXPECT_THAT(TextsAndCodes(LabelledOptionItems(MortgageOption::Conventional)),
                ElementsAre(std::pair("Conventional", 1), std::pair("Fannie Mae EEM", 2),
                            std::pair("Freddie Mac EEM", 3)));
    EXPECT_THAT(TextsAndCodes(LabelledOptionItems(MortgageOption::FHA)),
                ElementsAre(std::pair("FHA", 4), std::pair("FHA EEM", 5)));
    EXPECT_THAT(TextsAndCodes(LabelledOptionItems(MortgageOption::VA)),
                ElementsAre(std::pair("VA", 6), std::pair("VA EEM", 7)));
    EXPECT_TRUE(LabelledOptionItems(std::nullopt).empty());
    EXPECT_TRUE(LabelledOptionItems(MortgageOption::FannieMaeEEM).empty());
}

TEST(PickList, ShowsItsSelectedItem) {
    PickList list;
    list.Items = BaseOptionItems();
    EXPECT_EQ(list.Text(), "");
    EXPECT_EQ(list.Code(), 0);
    EXPECT_EQ(list.Option(), std::nullopt);
    list.Selected = 1;
    EXPECT_EQ(list.Text(), "FHA");
    EXPECT_EQ(list.Code(), 4);
    EXPECT_EQ(list.Option(), MortgageOption::FHA);
    list.Selected = 3;
    EXPECT_EQ(list.Text(), "");
    EXPECT_EQ(list.Code(), 0);
}

TEST(PickList, FindsAnItemByItsExactText) {
    PickList list;
    list.Items = BaseOptionItems();
    EXPECT_EQ(list.IndexOf("VA"), 2);
    EXPECT_EQ(list.IndexOf("va"), -1);
    EXPECT_EQ(list.IndexOf("VA "), -1);
    EXPECT_EQ(list.IndexOf(""), -1);
}

} // namespace
