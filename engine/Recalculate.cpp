#include "engine/Recalculate.h"

#include "base/Text.h"
#include "engine/Evaluate.h"
#include "engine/ReadScreen.h"
#include "engine/ShowResults.h"

namespace Ledgrove::Module1 {

namespace {

constexpr const char* EEMNotice = "The homebuyer may not qualify for the EEM you have selected because the "
                                  "present value of the savings are less "
                                  "than the cost of the energy efficiency upgrade.";

} // namespace

void Recalculate(Session& session, Host& host, const ShownLabels& shown) {
    Carried carried = CarriedBy(session);
    Results results = Evaluate(ReadInputs(session.Screen), session, carried);
    static_cast<Results&>(session) = results;
    ShowResults(results, session.Screen, shown);
    ShowCurrentPanel(session, host);
    if (results.NoticeApplies)
        host.ShowMessage({ApplicationTitle, EEMNotice});
    host.RunPendingEvents();
}

bool IsUpToDate(const Session& session) {
    return session.From == ReadInputs(session.Screen) &&
           session.Scenario.EEMNoticeFlag == session.NoticeFlagAfter;
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
    // Intended: only the first text is checked, whatever the second one holds.
    const bool nothingToShow =
        IsBlank(session.Features.Feature1) || (scenario.PVNetBeforeTax == 0 && scenario.PVNetCashFlow == 0);
    session.Screen.lblfeature1.Text = nothingToShow ? "" : session.Features.Feature1;
    session.Screen.lblfeature2.Text = nothingToShow ? "" : session.Features.Feature2;
}

} // namespace Ledgrove::Module1
