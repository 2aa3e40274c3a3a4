#include "app/batch/ChosenJson.h"

#include <gmock/gmock.h>

#include "app/batch/JsonText.h"
#include "tests/batch/BatchDesk.h"

namespace Ledgrove {
namespace {

using testing::HasSubstr;

class ChosenJsonTest : public testing::Test {
protected:
    /// A comparison of two homes.
    std::string Result(const ChosenNames& names) {
        InputRecord inputs;
        inputs[Input::ecStdHome] = {true, InputKind::Text, "200000"};
        inputs[Input::ecGMHHome] = {true, InputKind::Text, "206000"};
        Comparison comparison(Testing::ShippedSession());
        comparison.Show(LabelsFor(names));
        EXPECT_FALSE(comparison.Run(inputs));
        std::string out;
        ResultJson(names).Append(out, comparison);
        return out;
    }

    ChosenNames Names(std::string_view list) {
        ChosenNames names;
        EXPECT_EQ(ReadResultNames(list, names), "");
        return names;
    }
};

TEST_F(ChosenJsonTest, HasTheShapeOfTheWholeResult) {
    EXPECT_EQ(Result(Names("GMHCase.Cost,StdCase.LoanAmount,ecStdHome,StdCase.Cost")),
              R"({"fields":{"ecStdHome":"$200,000"},"StdCase":{"Cost":200000,"LoanAmount":200000},)"
              R"("GMHCase":{"Cost":206000}})");
    EXPECT_EQ(Result(Names("messages")), R"({"messages":[]})");
    EXPECT_EQ(Result(Names("messages,Scenario.YearsInHome")),
              R"({"Scenario":{"YearsInHome":7},"messages":[]})");
}

TEST_F(ChosenJsonTest, EachPartIsThatOfTheWholeResult) {
    const std::string whole = Result({});
    for (const ResultName& name : ResultNames()) {
        std::string part = Result({&name});
        // Without the braces around the member and the key: "key":value.
        const std::string outer = name.Key.empty() ? "{" : "{\"" + name.Member + "\":{";
        ASSERT_TRUE(part.starts_with(outer)) << part;
        part = part.substr(outer.size(), part.size() - outer.size() - (name.Key.empty() ? 1 : 2));
        EXPECT_THAT(whole, HasSubstr(part)) << name.Name;
    }
}

TEST_F(ChosenJsonTest, AllNamesTogetherAreTheWholeResult) {
    ChosenNames all;
    for (const ResultName& name : ResultNames())
        all.push_back(&name);
    EXPECT_EQ(Result(all), Result({}));
}

TEST(ReadResultNames, RefusesUnknownRepeatedAndNoNames) {
    ChosenNames names;
    EXPECT_THAT(ReadResultNames("StdCase.PITI,PITI", names),
                HasSubstr("\"PITI\" is not the name of a result."));
    names.clear();
    EXPECT_THAT(ReadResultNames("ecIncome, fields.ecIncome", names), HasSubstr("is named twice"));
    names.clear();
    EXPECT_THAT(ReadResultNames("", names), HasSubstr("Name at least one result"));
    EXPECT_EQ(ReadResultNames("Scenario.EEM notice flag", names), "");
}

TEST(ResultNameTable, HasALineWithUnitAndMeaningForEachName) {
    const std::string table = ResultNameTable();
    EXPECT_EQ(static_cast<std::size_t>(std::count(table.begin(), table.end(), '\n')), ResultNames().size());
    EXPECT_THAT(table, HasSubstr("dollars per month"));
    for (const ResultName& name : ResultNames()) {
        EXPECT_NE(name.Unit, "") << name.Name;
        EXPECT_NE(name.Meaning, "") << name.Name;
    }
}

} // namespace
} // namespace Ledgrove
