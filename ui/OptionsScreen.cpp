#include "ui/OptionsScreen.h"

#include "settings/HeaderSettings.h"

namespace Ledgrove::Module1 {

std::optional<SettingsFault> FillOptions(OptionsScreen& dialog, Session& session) {
    const SettingsFile file(session.Folder);
    if (auto fault = LoadReportHeader(file, session.Header))
        return fault;
    FeatureTexts features;
    if (auto fault = GetFeatures(file, features))
        return fault;
    dialog.ecFeat1.Text = features.Feature1;
    dialog.ecFeat2.Text = features.Feature2;
    return std::nullopt;
}

void ShowFeatureCaptions(Session& session, const FeatureTexts& features) {
    const bool nothingToSpend = session.Scenario.PVNetBeforeTax == 0 && session.Scenario.PVNetCashFlow == 0;
    session.Screen.lblfeature1.Text = nothingToSpend ? "" : features.Feature1;
    session.Screen.lblfeature2.Text = nothingToSpend ? "" : features.Feature2;
}

std::optional<SettingsFault> ConfirmOptions(const OptionsScreen& dialog, Session& session) {
    const FeatureTexts features{dialog.ecFeat1.Text, dialog.ecFeat2.Text};
    if (auto fault =
            WriteOptions(SettingsFile(session.Folder), {features.Feature1, features.Feature2,
                                                        session.Header.BuilderName, session.Header.LogoFile}))
        return fault;
    session.Features = features;
    // The captions below stay only until the next recalculation, which has a rule of its own for them.
    session.From.reset();
    ShowFeatureCaptions(session, features);
    return std::nullopt;
}

} // namespace Ledgrove::Module1
