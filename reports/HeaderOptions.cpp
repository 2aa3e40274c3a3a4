#include "reports/HeaderOptions.h"

#include "base/Text.h"
#include "engine/Recalculate.h"
#include "reports/modPrint.h"
#include "settings/HeaderSettings.h"

namespace Ledgrove::Module1 {

std::optional<SettingsFault> FillHeaderOptions(HeaderOptions& dialog, const Session& session) {
    const SettingsFile file(session.Folder);
    dialog.txtHomeBuyer.Text = session.Header.HomeBuyer;
    ReportHeader header;
    header.BuilderName = session.Header.BuilderName;
    if (auto fault = LoadReportHeader(file, header))
        return fault;
    dialog.ecLogoFile.Text = header.LogoFile;
    dialog.ecBuilderName.Text = header.BuilderName;
    if (auto fault = GetFeatures(file, dialog.Features))
        return fault;
    dialog.cboUserLogoOptions = StoredLogoOption(session);
    return std::nullopt;
}

LogoView ViewOfLogo(const HeaderOptions& dialog, const std::filesystem::path& folder) {
    return {dialog.cboUserLogoOptions == 2,
            LogoPicture(folder, dialog.cboUserLogoOptions, dialog.ecLogoFile.Text)};
}

std::optional<SettingsFault> ConfirmHeaderOptions(const HeaderOptions& dialog, Session& session) {
    const PrintOptionsTexts texts{dialog.Features.Feature1, dialog.Features.Feature2,
                                  dialog.ecBuilderName.Text, dialog.cboUserLogoOptions,
                                  dialog.ecLogoFile.Text};
    if (auto fault = WritePrintOptions(SettingsFile(session.Folder), texts))
        return fault;
    session.Header = {texts.BuilderName, dialog.txtHomeBuyer.Text, texts.LogoFile};
    return std::nullopt;
}

std::string UnkeptNameNotice(const Session& session) {
    const std::string& name = session.Header.BuilderName;
    const auto character = UnkeepableCharacter(name);
    return character ? "The name " + Excerpt(name) +
                           " is used for this report but cannot be kept: Ledgrove.ini cannot hold " +
                           character->Name + "."
                     : "";
}

int StoredLogoOption(const Session& session) {
    const auto option = GetLogoOption(SettingsFile(session.Folder));
    const bool isChoice = option && *option >= 0 && *option < static_cast<int>(LogoChoices.size());
    return isChoice ? *option : 0;
}

void ReloadFeatureCaptions(Session& session) {
    // Texts that cannot be read are blank, as at start-up.
    GetFeatures(SettingsFile(session.Folder), session.Features);
    RefreshFeatureCaptions(session);
}

} // namespace Ledgrove::Module1
