#include "ui/FirstSteps.h"

#include "tests/engine/TestSession.h"

#include <gtest/gtest.h>

namespace Ledgrove {
namespace {

TEST(FirstStepsTest, LeadFromTheInputsToTheResults) {
    MainScreen screen = Testing::StartedSession().Screen;
    const std::pair<const char*, Field MainScreen::*> inputs[] = {
        {"ecIncome", &MainScreen::ecIncome},   {"ecStdHome", &MainScreen::ecStdHome},
        {"ecGMHHome", &MainScreen::ecGMHHome}, {"ecStdUtil", &MainScreen::ecStdUtil},
        {"ecGMHUtil", &MainScreen::ecGMHUtil}, {"ecPctDown", &MainScreen::ecPctDown}};
    for (const auto& [control, input] : inputs) {
        EXPECT_EQ(NextFirstStep(screen).Control, control);
        (screen.*input).Text = "5";
    }
    EXPECT_EQ(NextFirstStep(screen).Control, "SSTab1");
}

TEST(FirstStepsTest, AskForTheSelectedDownPayment) {
    MainScreen screen = Testing::SampleSession().Screen;
    screen.optDownPayment = 1;
    EXPECT_EQ(NextFirstStep(screen).Control, "ecFixedDown");
}

TEST(FirstStepsTest, ZeroDownIsADownPayment) {
    MainScreen screen = Testing::SampleSession().Screen;
    screen.ecPctDown.Text = "0.00%";
    EXPECT_EQ(NextFirstStep(screen).Control, "SSTab1");
}

TEST(FirstStepsTest, AFieldThatTheFocusOnlyVisitedIsUntouched) {
    MainScreen screen = Testing::StartedSession().Screen;
    EXPECT_TRUE(IsUntouched(screen));
    screen.ecIncome.Text = "$0";
    EXPECT_TRUE(IsUntouched(screen));
    screen.ecStdUtil.Text = "$2,400";
    EXPECT_FALSE(IsUntouched(screen));
}

} // namespace
} // namespace Ledgrove
