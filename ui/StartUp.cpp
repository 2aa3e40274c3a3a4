#include "ui/StartUp.h"

#include "engine/Recalculate.h"
#include "settings/AssumptionsFile.h"
#include "settings/HeaderSettings.h"
#include "settings/LoanTypesFile.h"
#include "settings/TaxScheduleFile.h"
#include "settings/YearSettingsFile.h"
#include "ui/MainScreenRules.h"

namespace Ledgrove::Module1 {

namespace {

std::optional<SettingsFault> LoadTables(Session& session, const SettingsFile& file) {
    if (auto fault = LoadLoanTypes(file, session.LoanTypes))
        return fault;
    if (auto fault = LoadTaxCats(file, session.TaxBrackets))
        return fault;
    if (auto fault = LoadYearSettings(file, session.Years))
        return fault;
    return LoadAssumptions(file, session.Assumptions);
}

void SetScreenDefaults(Session& session, Host& host) {
    MainScreen& screen = session.Screen;
    screen.lblHomeName.Text = CustomHouse;
    screen.cboMortTerm.Items = TermItems();
    screen.cboStdMortOption.Items = BaseOptionItems();
    SetTerm(session, "30 years");
    for (Field* rate : {&screen.ecRate, &screen.ecGMHRate, &screen.ecStdRate})
        SetFieldText(session, *rate, "6.5");
    // Intended: the base home's rate is not formatted until its field is left.
    FormatField(session, screen.ecRate, FieldFormat::IntRate);
    FormatField(session, screen.ecGMHRate, FieldFormat::IntRate);
    SetDownPayment(session, 0);
    ClickBaseOption(session, host, "Conventional");
}

std::optional<SettingsFault> LoadHeader(Session& session, const SettingsFile& file) {
    if (auto fault = GetFeatures(file, session.Features))
        return fault;
    const auto helpFile = GetHelpFile(file);
    if (!helpFile)
        return helpFile.Fault();
    session.HelpFile = *helpFile;
    return LoadReportHeader(file, session.Header);
}

} // namespace

std::optional<SettingsFault> LoadMainScreen(Session& session, Host& host,
                                            const std::filesystem::path& folder) {
    const SettingsFile file(folder);
    session = Session{};
    session.Folder = folder;
    if (auto fault = LoadTables(session, file))
        return fault;
    SetScreenDefaults(session, host);
    if (auto fault = LoadHeader(session, file))
        return fault;
    RefreshFeatureCaptions(session);
    host.RunPendingEvents();
    return std::nullopt;
}

std::optional<SettingsFault> OpenMainScreen(Session& session, Host& host,
                                            const std::filesystem::path& folder) {
    auto fault = LoadMainScreen(session, host, folder);
    if (!fault || fault->What != SettingsFault::Kind::InterruptedSave)
        return fault;
    const MessageAnswer answer = host.ShowMessage(
        {ApplicationTitle, "The last save was interrupted. Your settings are in Pennaro2.INI. Restore them?",
         MessageIcon::Question, MessageButtons::YesNo});
    if (answer != MessageAnswer::Yes)
        return fault;
    if (auto failed = SettingsFile(folder).RestoreInterruptedSave())
        return failed;
    return LoadMainScreen(session, host, folder);
}

} // namespace Ledgrove::Module1
