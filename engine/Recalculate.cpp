#include "engine/Recalculate.h"

#include "engine/Affordability.h"
#include "engine/CashFlow.h"
#include "engine/LoanRules.h"
#include "engine/NumberText.h"

namespace Ledgrove::Module1 {

namespace {

/// Everything but what outlives a run by design: the EEM allowance, the notice flag and the down payment
/// option.
void ClearResults(Scenario& scenario) {
    Scenario cleared;
    cleared.EEMAllowance = scenario.EEMAllowance;
    cleared.EEMNoticeFlag = scenario.EEMNoticeFlag;
    cleared.DownAsPercent = scenario.DownAsPercent;
    scenario = cleared;
}

void ReadBuyer(Session& session) {
    const MainScreen& screen = session.Screen;
    Scenario& scenario = session.Scenario;
    scenario.AnnualIncome = ParseFieldValue(screen.ecIncome.Text, 1);
    scenario.MarginalTaxRate = LookupTaxRate(session.TaxBrackets, scenario.AnnualIncome);
    scenario.MonthlyDebt = ParseFieldValue(screen.ecMonthlyDebt.Text, 1);
    scenario.PctDown = ParseFieldValue(screen.ecPctDown.Text, 100);
    scenario.FixedDown = ParseFieldValue(screen.ecFixedDown.Text, 1);
}

struct HomeFields {
    const Field &Cost, &Util, &Rate, &Stretch;
};

/// The ratios keep their old values until the loan rules write them.
void ReadHome(HomeCase& home, const HomeFields& fields) {
    HomeCase read;
    read.FrontRatio = home.FrontRatio;
    read.BackRatio = home.BackRatio;
    read.Cost = ParseFieldValue(fields.Cost.Text, 1);
    read.UtilAnnual = ParseFieldValue(fields.Util.Text, 1);
    read.UtilMonthly = static_cast<float>(static_cast<double>(read.UtilAnnual) / 12);
    read.IntRate = ParseFieldValue(fields.Rate.Text, 100);
    read.Stretch = ParseFieldValue(fields.Stretch.Text, 100);
    home = read;
}

void ReadHomes(Session& session) {
    const MainScreen& screen = session.Screen;
    ReadHome(session.StdCase, {screen.ecStdHome, screen.ecStdUtil, screen.ecStdRate, screen.ecStdStr});
    ReadHome(session.GMHCase, {screen.ecGMHHome, screen.ecGMHUtil, screen.ecGMHRate, screen.ecGMHStr});
    session.Scenario.CostDifference = static_cast<float>(static_cast<double>(session.GMHCase.Cost) -
                                                         static_cast<double>(session.StdCase.Cost));
    // The labelled home's rules need the savings before the cash flow computes them again.
    session.Scenario.UtilitySavings = static_cast<float>(static_cast<double>(session.StdCase.UtilMonthly) -
                                                         static_cast<double>(session.GMHCase.UtilMonthly));
}

bool IsBlank(const std::string& text) {
    return text.find_first_not_of(' ') == std::string::npos;
}

} // namespace

void Recalculate(Session& session, Host& host) {
    // The order matters: the labelled home's down payment and notice need the base home's price and the
    // savings, either home's affordability needs both records complete, and the cash flow needs both PITIs.
    ClearResults(session.Scenario);
    ReadBuyer(session);
    ReadHomes(session);
    ComputeHomeCase(session, HomeCode::Std, host);
    ComputeHomeCase(session, HomeCode::GMH, host);
    ComputeAffordability(session, HomeCode::Std);
    ComputeAffordability(session, HomeCode::GMH);
    ComputeCashFlow(session);
    ShowCashFlowResults(session);
    ShowCurrentPanel(session, host);
    host.RunPendingEvents();
}

void ShowCurrentPanel(Session& session, Host& host) {
    switch (session.Screen.SSTab1) {
    case 0:
        return ShowPanel0(session.Screen);
    case 1:
        return ShowPanel1(session.Screen, host);
    case 2:
        return ShowPanel2(session, host);
    case 3:
        return ShowPanel3(session.Screen, host);
    case 4:
        return ShowPanel4(session.Screen);
    default:
        return;
    }
}

void ShowPanel0(MainScreen& screen) {
    screen.DetlFrame[0] = true;
}

void ShowPanel1(MainScreen& screen, Host& host) {
    host.RunPendingEvents();
    screen.DetlFrame[1] = true;
}

void ShowPanel2(Session& session, Host& host) {
    host.RunPendingEvents();
    RefreshFeatureCaptions(session);
    session.Screen.DetlFrame[2] = true;
}

void ShowPanel3(MainScreen& screen, Host& host) {
    screen.DetlFrame[3] = true;
    host.RunPendingEvents();
}

void ShowPanel4(MainScreen& screen) {
    screen.DetlFrame[4] = true;
}

void RefreshFeatureCaptions(Session& session) {
    const Scenario& scenario = session.Scenario;
    // Only the first text is looked at, whatever the second holds, on purpose.
    const bool nothingToShow =
        IsBlank(session.Features.Feature1) || (scenario.PVNetBeforeTax == 0 && scenario.PVNetCashFlow == 0);
    session.Screen.lblfeature1.Text = nothingToShow ? "" : session.Features.Feature1;
    session.Screen.lblfeature2.Text = nothingToShow ? "" : session.Features.Feature2;
}

} // namespace Ledgrove::Module1
