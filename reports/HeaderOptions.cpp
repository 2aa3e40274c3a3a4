#include "reports/HeaderOptions.h"

#include "engine/Recalculate.h"
#include "settings/HeaderSettings.h"

namespace Ledgrove::Module1 {

std::optional<SettingsFault> FillHeaderOptions(HeaderOptions& dialog, const Session& session) {
    const SettingsFile file(session.Folder);
    dialog.txtHomeBuyer.Text = session.Header.HomeBuyer;
    dialog.ecLogoFile.Text = ReportHeader{}.LogoFile;
    const auto logoFile = GetLogoFile(file);
    if (!logoFile)
        return logoFile.Fault();
    if (!logoFile->empty())
        dialog.ecLogoFile.Text = *logoFile;
    const auto builderName = GetBuilderName(file);
    if (!builderName)
        return builderName.Fault();
    dialog.ecBuilderName.Text = *builderName;
    if (auto fault = GetFeatures(file, dialog.Features))
        return fault;
    dialog.cboUserLogoOptions = StoredLogoOption(session);
    return std::nullopt;
}

LogoView ViewOfLogo(const HeaderOptions& dialog, const std::filesystem::path& folder) {
    if (dialog.cboUserLogoOptions == 1)
        return {false, folder / "GenericHouseLogo.bmp"};
    if (dialog.cboUserLogoOptions != 2)
        return {};
    const std::string& named = dialog.ecLogoFile.Text;
    const bool isNamed = !named.empty() && named != ReportHeader{}.LogoFile;
    return {true, isNamed ? folder / named : std::filesystem::path()};
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

int StoredLogoOption(const Session& session) {
    const auto option = GetLogoOption(SettingsFile(session.Folder));
    const bool isChoice = option && *option >= 0 && *option < static_cast<int>(LogoChoices.size());
    return isChoice ? *option : 0;
}

void ReloadFeatureCaptions(Session& session) {
    // Texts that cannot be read are blank, as at the start.
    GetFeatures(SettingsFile(session.Folder), session.Features);
    RefreshFeatureCaptions(session);
}

} // namespace Ledgrove::Module1
