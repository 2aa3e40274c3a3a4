#pragma once

#include "engine/Session.h"
#include "settings/SettingsFault.h"

#include <optional>

// The options dialog without its window.
namespace Ledgrove {

struct OptionsScreen {
    Field ecFeat1, ecFeat2;
};

} // namespace Ledgrove

namespace Ledgrove::Module1 {

/// Reads the two features into the fields, and builder name and logo file of the report header, which saving
/// writes too, into the session.
std::optional<SettingsFault> FillOptions(OptionsScreen& dialog, Session& session);

/// The feature captions of the More Home tab: both texts, or nothing while there is no monthly difference to
/// spend.
void ShowFeatureCaptions(Session& session, const FeatureTexts& features);

/// Shows the features on the main screen and saves them. On a fault the main screen and the file are as they
/// were.
std::optional<SettingsFault> ConfirmOptions(const OptionsScreen& dialog, Session& session);

} // namespace Ledgrove::Module1
