#include "insight/DiffInputs.h"

#include <array>

namespace Ledgrove {

namespace {

using S = MainScreen;
using I = Inputs;

template <Field ScreenEntries::*Member>
std::string TextOf(const S& screen) {
    return (screen.*Member).Text;
}

template <float Inputs::*Member>
void CopyAmount(const I& from, I& to) {
    to.*Member = from.*Member;
}

template <HomeInputs Inputs::*Home, float HomeInputs::*Member>
void CopyOfHome(const I& from, I& to) {
    to.*Home.*Member = from.*Home.*Member;
}

/// The field that is in force.
std::string DownPaymentText(const S& screen) {
    return (screen.optDownPayment == 0 ? screen.ecPctDown : screen.ecFixedDown).Text;
}

void CopyDownPayment(const I& from, I& to) {
    to.PctDown = from.PctDown;
    to.FixedDown = from.FixedDown;
    to.DownAsPercent = from.DownAsPercent;
}

std::string OptionsText(const S& screen) {
    return std::string(screen.cboStdMortOption.Text()) + " / " + std::string(screen.cboGMHMortOption.Text());
}

void CopyOptions(const I& from, I& to) {
    to.Std.Option = from.Std.Option;
    to.GMH.Option = from.GMH.Option;
}

constexpr std::array table{
    EnteredInput{"ecIncome", "Annual Income", TextOf<&S::ecIncome>, CopyAmount<&I::AnnualIncome>},
    EnteredInput{"ecMonthlyDebt", "Monthly Debt", TextOf<&S::ecMonthlyDebt>, CopyAmount<&I::MonthlyDebt>},
    EnteredInput{"downPayment", "Down Payment", DownPaymentText, CopyDownPayment},
    EnteredInput{"ecStdHome", "Sticker Price, Base Home", TextOf<&S::ecStdHome>,
                 CopyOfHome<&I::Std, &HomeInputs::Cost>},
    EnteredInput{"ecGMHHome", "Sticker Price, GREENMARK Home", TextOf<&S::ecGMHHome>,
                 CopyOfHome<&I::GMH, &HomeInputs::Cost>},
    EnteredInput{"ecStdUtil", "Annual Utility Cost, Base Home", TextOf<&S::ecStdUtil>,
                 CopyOfHome<&I::Std, &HomeInputs::UtilAnnual>},
    EnteredInput{"ecGMHUtil", "Annual Utility Cost, GREENMARK Home", TextOf<&S::ecGMHUtil>,
                 CopyOfHome<&I::GMH, &HomeInputs::UtilAnnual>},
    EnteredInput{"ecStdRate", "Interest Rate, Base Home", TextOf<&S::ecStdRate>,
                 CopyOfHome<&I::Std, &HomeInputs::IntRate>},
    EnteredInput{"ecGMHRate", "Interest Rate, GREENMARK Home", TextOf<&S::ecGMHRate>,
                 CopyOfHome<&I::GMH, &HomeInputs::IntRate>},
    EnteredInput{"ecStdStr", "Mortgage Stretch, Base Home", TextOf<&S::ecStdStr>, nullptr},
    EnteredInput{"ecGMHStr", "Mortgage Stretch, GREENMARK Home", TextOf<&S::ecGMHStr>, nullptr},
    EnteredInput{"cboMortTerm", "Term",
                 [](const S& screen) { return std::string(screen.cboMortTerm.Text()); },
                 [](const I& from, I& to) { to.TermYears = from.TermYears; }},
    EnteredInput{"mortgageOptions", "Mortgage Options", OptionsText, CopyOptions},
    EnteredInput{"chkDoTax0", "Include Taxes",
                 [](const S& screen) { return std::string(screen.chkDoTax0 ? "true" : "false"); },
                 [](const I& from, I& to) { to.IncludeTaxes = from.IncludeTaxes; }},
};

} // namespace

std::span<const EnteredInput> EnteredInputs() {
    return table;
}

} // namespace Ledgrove
