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
     {"Now the price of the base home, or one of the house scenarios.", "Enter Price", "ecStdHome"}},
    {&MainScreen::ecGMHHome, {"Now the price of the GREENMARK home.", "Enter Price", "ecGMHHome"}},
    {&MainScreen::ecStdUtil,
     {"Now what the utilities of the base home cost in a year.", "Enter Utilities", "ecStdUtil"}},
    {&MainScreen::ecGMHUtil,
     {"Now what the utilities of the GREENMARK home cost in a year.", "Enter Utilities", "ecGMHUtil"}},
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
        return {"Now the down payment: a percentage or a fixed amount.", "Enter Down Payment",
                screen.optDownPayment == 0 ? "ecPctDown" : "ecFixedDown"};
    return {"Everything needed is entered.", "See the Results", "SSTab1"};
}

bool IsUntouched(const MainScreen& screen) {
    return std::all_of(std::begin(needed), std::end(needed),
                       [&screen](const Needed& need) { return IsMissing(screen.*need.Input); });
}

} // namespace Ledgrove
