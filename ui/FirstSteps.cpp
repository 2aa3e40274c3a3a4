#include "ui/FirstSteps.h"

#include <algorithm>

#include "engine/NumberText.h"

namespace Ledgrove {

namespace {

struct Needed {
    Field MainScreen::*Input;
    FirstStep Step;
};

constexpr Needed needed[] = {
    {&MainScreen::ecIncome, {"Begin with the buyer's annual income.", "Enter Income", "ecIncome"}},
    {&MainScreen::ecStdHome,
     {"Now enter the price of the base home, or choose a house scenario.", "Enter Price", "ecStdHome"}},
    {&MainScreen::ecGMHHome, {"Now enter the price of the GREENMARK home.", "Enter Price", "ecGMHHome"}},
    {&MainScreen::ecStdUtil,
     {"Now enter the annual utility cost of the base home.", "Enter Utilities", "ecStdUtil"}},
    {&MainScreen::ecGMHUtil,
     {"Now enter the annual utility cost of the GREENMARK home.", "Enter Utilities", "ecGMHUtil"}},
};

bool IsMissing(const Field& field) {
    return Module1::ParseFieldValue(field.Text, 1) == 0;
}

} // namespace

FirstStep NextFirstStep(const MainScreen& screen) {
    for (const Needed& need : needed) {
        if (IsMissing(screen.*need.Input))
            return need.Step;
    }
    const Field& down = screen.optDownPayment == 0 ? screen.ecPctDown : screen.ecFixedDown;
    if (down.Text.empty())
        return {"Now enter the down payment, as a percentage or a fixed amount.", "Enter Down Payment",
                screen.optDownPayment == 0 ? "ecPctDown" : "ecFixedDown"};
    return {"All the needed inputs are entered.", "See the Results", "SSTab1"};
}

bool IsUntouched(const MainScreen& screen) {
    return std::all_of(std::begin(needed), std::end(needed),
                       [&screen](const Needed& need) { return IsMissing(screen.*need.Input); });
}

} // namespace Ledgrove
