#pragma once

#include "engine/Host.h"
#include "engine/Session.h"
#include "settings/SettingsFile.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

// The house scenario dialog without its window: the list of named pairs of homes, and the record of its
// controls.
namespace Ledgrove {

struct HouseScenarios {
    HouseList Houses;     ///< in the order in which they were added
    int Selected = -1;    ///< index of the shown house, -1 for none
    bool Editing = false; ///< the four fields are open, all else is closed
    Field ecStdCost, ecStdUtil, ecGMHCost, ecGMHUtil;

    bool HasSelection() const { return Selected >= 0 && static_cast<std::size_t>(Selected) < Houses.size(); }
};

/// One of a house's four amounts with the field that shows it.
struct HouseAmount {
    std::string_view Key; ///< "StdCost", "StdUtil", "GMHCost" or "GMHUtil"
    float House::*Member;
    Field HouseScenarios::*Shown;
};

std::array<HouseAmount, 4> HouseAmounts();

} // namespace Ledgrove

namespace Ledgrove::Module1 {

/// A house's amount by its key; 0 for another key.
float HouseValue(const House& house, std::string_view key);

/// The index of the house of exactly this name, -1 when there is none.
int FindHouse(const HouseList& houses, std::string_view name);

/// Loads the saved list, marks the dialog open in the settings file and selects the main screen's house by
/// exact name, else the first. A list that cannot be read must not be shown, since closing the dialog saves
/// it. A mark that cannot be written is told through `host` and stops nothing.
std::optional<SettingsFault> OpenHouseScenarios(HouseScenarios& dialog, const Session& session, Host& host);

/// Shows the house at `index` in the four fields; an index outside the list empties them.
void SelectHouse(HouseScenarios& dialog, int index);

/// Why a house cannot have this name (empty, taken, or it would break its saved line); "" when it can.
std::string HouseNameComplaint(const HouseList& houses, std::string_view name);

/// Adds a house with the main screen's current amounts and selects it. A name that is refused is told, and
/// nothing is added. True when the house was added.
bool AddHouse(HouseScenarios& dialog, const Session& session, Host& host, std::string_view name);

void BeginHouseEdit(HouseScenarios& dialog);

/// Stores the edited amounts and ends edit mode, after asking when they look implausible. False, with the
/// amounts as typed and still in edit mode, when the user goes back to them.
bool FinishHouseEdit(HouseScenarios& dialog, Host& host);

/// Ends edit mode and shows the stored amounts again.
void CancelHouseEdit(HouseScenarios& dialog);

/// Asks, then removes the selected house and selects the first.
void DeleteHouse(HouseScenarios& dialog, Host& host);

/// Saves the list. Both ways of closing the dialog do.
std::optional<SettingsFault> SaveHouseScenarios(const HouseScenarios& dialog, const Session& session);

/// Copies the selected house to the main screen, which remembers it; nothing without a selection.
void ChooseHouse(const HouseScenarios& dialog, Session& session);

} // namespace Ledgrove::Module1
