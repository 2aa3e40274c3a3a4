#include "engine/ReadScreen.h"

#include "engine/NumberText.h"

namespace Ledgrove::Module1 {

namespace {

struct HomeFields {
    const Field &Cost, &Util, &Rate, &Stretch;
    const PickList& Option;
};

HomeInputs ReadHome(const HomeFields& fields) {
    return {ParseFieldValue(fields.Cost.Text, 1), ParseFieldValue(fields.Util.Text, 1),
            ParseFieldValue(fields.Rate.Text, 100), ParseFieldValue(fields.Stretch.Text, 100),
            fields.Option.Option()};
}

} // namespace

Inputs ReadInputs(const MainScreen& screen) {
    Inputs inputs;
    inputs.AnnualIncome = ParseFieldValue(screen.ecIncome.Text, 1);
    inputs.MonthlyDebt = ParseFieldValue(screen.ecMonthlyDebt.Text, 1);
    inputs.PctDown = ParseFieldValue(screen.ecPctDown.Text, 100);
    inputs.FixedDown = ParseFieldValue(screen.ecFixedDown.Text, 1);
    inputs.DownAsPercent = screen.optDownPayment == 0;
    inputs.IncludeTaxes = screen.chkDoTax0;
    inputs.TermYears = screen.xMortTerm;
    inputs.Std = ReadHome(
        {screen.ecStdHome, screen.ecStdUtil, screen.ecStdRate, screen.ecStdStr, screen.cboStdMortOption});
    inputs.GMH = ReadHome(
        {screen.ecGMHHome, screen.ecGMHUtil, screen.ecGMHRate, screen.ecGMHStr, screen.cboGMHMortOption});
    return inputs;
}

} // namespace Ledgrove::Module1
