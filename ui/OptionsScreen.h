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

/// Reads the two features into the fields. Also reads the report header's builder name and logo file into the
/// session, because saving the options writes them too.
std::optional<SettingsFault> FillOptions(OptionsScreen& dialog, Session& session);

/// Shows the feature texts on the More Home tab, or empty captions if there is no monthly difference to
/// spend.
void ShowFeatureCaptions(Session& session, const FeatureTexts& features);

/// Shows the features on the main screen and saves them. If a save fails, the main screen and the file do not
/// change.
std::optional<SettingsFault> ConfirmOptions(const OptionsScreen& dialog, Session& session);

} // namespace Ledgrove::Module1
