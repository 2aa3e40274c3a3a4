#pragma once

#include <span>

#include "insight/Sheet.h"
#include "ui/Entry.h"

namespace Ledgrove::Module1 {

/// Enters texts into the main screen as if a person typed each and left the field, or chose it from its list.
/// "lblHomeName" names the house whose amounts are on the screen. Unknown controls are passed over. The
/// messages of the entries are shown.
void EnterTexts(EntryContext& context, std::span<const EntryText> texts);

} // namespace Ledgrove::Module1
