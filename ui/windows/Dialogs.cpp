#include "ui/windows/Dialogs.h"

#include "ui/windows/HelpWindow.h"
#include "ui/windows/frmAssumptions.h"
#include "ui/windows/frmHomeSelection.h"
#include "ui/windows/frmOptions.h"

namespace Ledgrove {

namespace {

/// Shows the dialog above the active window until it is closed.
template <typename Dialog, typename Record>
void Show(Record& record, const std::optional<SettingsFault>& fault, Session& session, Host& outside) {
    if (fault) {
        outside.ShowMessage({ApplicationTitle, Sentence(*fault), MessageIcon::Exclamation});
        return;
    }
    Dialog(record, session, outside, ActiveForm()).exec();
}

} // namespace

MainActions DialogActions(Session& session, Host& outside) {
    MainActions actions;
    actions.Houses = [&session, &outside] {
        HouseScenarios record;
        const auto fault = Module1::OpenHouseScenarios(record, session, outside);
        Show<frmHomeSelection>(record, fault, session, outside);
    };
    actions.Assumptions = [&session, &outside] {
        AssumptionsScreen record;
        const auto fault = Module1::FillAssumptions(record, session);
        Show<frmAssumptions>(record, fault, session, outside);
    };
    actions.Options = [&session, &outside] {
        OptionsScreen record;
        const auto fault = Module1::FillOptions(record, session);
        Show<frmOptions>(record, fault, session, outside);
    };
    return actions;
}

} // namespace Ledgrove
