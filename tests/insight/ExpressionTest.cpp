#include "insight/Expression.h"

#include <cmath>

#include <gtest/gtest.h>

namespace Ledgrove {
namespace {

std::optional<double> ValueOf(std::string_view name) {
    if (name == "GMHCase.Cost")
        return 200'000;
    if (name == "TAX_1")
        return 0.01;
    return std::nullopt;
}

double Computed(const char* text) {
    const ExpressionValue value = Expression(text).Evaluate(ValueOf);
    EXPECT_EQ(value.Fault, "") << text;
    return value.Number;
}

std::string FaultOf(const char* text) {
    return Expression(text).Evaluate(ValueOf).Fault;
}

TEST(Expression, FollowsTheOrderOfArithmetic) {
    EXPECT_EQ(Computed("1 + 2 * 3"), 7);
    EXPECT_EQ(Computed("(1 + 2) * 3"), 9);
    EXPECT_EQ(Computed("10 - 4 - 3"), 3);
    EXPECT_EQ(Computed("24 / 4 / 3"), 2);
    EXPECT_EQ(Computed("2 * -3"), -6);
    EXPECT_EQ(Computed("--2"), 2);
    EXPECT_EQ(Computed("-(2 + 0.5)"), -2.5);
}

TEST(Expression, TakesNames) {
    EXPECT_EQ(Computed("GMHCase.Cost * TAX_1"), 2'000);
    EXPECT_EQ(Expression("b * (a + b) / PV(c, 12, -a)").Names(), (std::vector<std::string>{"b", "a", "c"}));
}

TEST(Expression, TakesFunctions) {
    EXPECT_EQ(Computed("min(3, 1 + 1)"), 2);
    EXPECT_EQ(Computed("max(3, 1 + 1, 5)"), 5);
    // Without interest, 120 payments of $10 repay $1,200.
    EXPECT_EQ(Computed("PMT(0, 120, -1200)"), 10);
    EXPECT_EQ(Computed("PV(0, 120, -10)"), 1'200);
    EXPECT_EQ(Computed("FV(0, 120, -10)"), 1'200);
    // One percent of the whole loan in the first month, and two payments of $100 with a month's interest on
    // the first.
    EXPECT_NEAR(Computed("IPMT(0.01, 1, 12, -1000)"), 10, 1e-9);
    EXPECT_NEAR(Computed("FV(0.01, 2, -100)"), 201, 1e-9);
    EXPECT_NEAR(Computed("PV(0.01, 1, -101)"), 100, 1e-9);
    EXPECT_NEAR(Computed("PMT(0.01, 1, -100)"), 101, 1e-9);
}

TEST(Expression, SaysWhatCannotBeRead) {
    EXPECT_EQ(FaultOf(""), "Column 1: a number, a name or \"(\" is missing.");
    EXPECT_EQ(FaultOf("1 +"), "Column 4: a number, a name or \"(\" is missing.");
    EXPECT_EQ(FaultOf("(1 + 2"), "Column 7: \")\" is missing.");
    EXPECT_EQ(FaultOf("1 2"), "Column 3: an operator is missing.");
    EXPECT_EQ(FaultOf("1.2.3"), "Column 6: \"1.2.3\" is not a number.");
    EXPECT_EQ(FaultOf("sum(1, 2)"), "Column 4: \"sum\" is not a function.");
    EXPECT_EQ(FaultOf("PMT(1, 2)"), "Column 10: PMT takes 3 amounts, not 2.");
    EXPECT_EQ(FaultOf("1 ^ 2"), "Column 3: an operator is missing.");
    EXPECT_EQ(FaultOf((std::string(200, '(') + "1").c_str()), "Column 101: the parts are nested too deeply.");
}

TEST(Expression, SaysWhatCannotBeComputed) {
    EXPECT_EQ(FaultOf("1 + Cost"), "\"Cost\" has no value.");
    EXPECT_EQ(FaultOf("1 / (2 - 2)"), "A division by 0 has no result.");
    EXPECT_EQ(FaultOf("PMT(0, 0, 1)"), "The result is not a finite number.");
}

} // namespace
} // namespace Ledgrove
