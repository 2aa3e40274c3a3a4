#pragma once

#include "engine/Host.h"
#include "engine/Session.h"
#include "settings/SettingsFile.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

// The house scenario dialog without its window: the list of named pairs of homes and a record of its
// controls.
namespace Ledgrove {

struct HouseScenarios {
    HouseList Houses;     ///< in the order they were added
    int Selected = -1;    ///< index of the shown house, -1 for none
    bool Editing = false; ///< only the four fields are enabled
    Field ecStdCost, ecStdUtil, ecGMHCost, ecGMHUtil;

    bool HasSelection() const { return Selected >= 0 && static_cast<std::size_t>(Selected) < Houses.size(); }
};

/// One of the four amounts of a house, and the field that shows it.
struct HouseAmount {
    std::string_view Key; ///< "StdCost", "StdUtil", "GMHCost" or "GMHUtil"
    float House::*Member;
    Field HouseScenarios::*Shown;
};

std::array<HouseAmount, 4> HouseAmounts();

} // namespace Ledgrove

namespace Ledgrove::Module1 {

/// The amount of a house by its key; 0 for an unknown key.
float HouseValue(const House& house, std::string_view key);

/// The index of the house with exactly this name, -1 if there is none.
int FindHouse(const HouseList& houses, std::string_view name);

/// Loads the saved list, marks the dialog as open in the settings file, and selects the house whose name is
/// on the main screen, or else the first one. If the list cannot be read, do not show the dialog, because
/// closing it saves the list. If the mark cannot be written, shows a message through `host` and continues.
std::optional<SettingsFault> OpenHouseScenarios(HouseScenarios& dialog, const Session& session, Host& host);

/// Shows the house at `index` in the four fields; an invalid index empties them.
void SelectHouse(HouseScenarios& dialog, int index);

/// Why a house cannot have this name (it is empty, in use, or cannot be saved in a settings line); empty if
/// it can.
std::string HouseNameComplaint(const HouseList& houses, std::string_view name);

/// Adds a house with the current amounts of the main screen and selects it. If the name is refused, shows a
/// message and adds nothing. Returns whether the house was added.
bool AddHouse(HouseScenarios& dialog, const Session& session, Host& host, std::string_view name);

void BeginHouseEdit(HouseScenarios& dialog);

/// Stores the edited amounts and ends edit mode. Asks first if the amounts look implausible; if the user then
/// wants to correct them, returns false and stays in edit mode.
bool FinishHouseEdit(HouseScenarios& dialog, Host& host);

/// Ends edit mode and shows the stored amounts again.
void CancelHouseEdit(HouseScenarios& dialog);

/// Asks, then removes the selected house and selects the first.
void DeleteHouse(HouseScenarios& dialog, Host& host);

/// Saves the list.
std::optional<SettingsFault> SaveHouseScenarios(const HouseScenarios& dialog, const Session& session);

/// Saves the list, or shows why it cannot be saved. Every way of closing the dialog calls this; in both cases
/// the dialog closes, and a chosen house reaches the main screen.
void CloseHouseScenarios(const HouseScenarios& dialog, const Session& session, Host& host);

/// Copies a house to the main screen, which remembers it.
void TakeHouse(const House& house, Session& session);

/// Gives the amounts that the main screen has the name of a house, and remembers them.
void NameHouse(std::string_view name, Session& session);

/// Copies the selected house to the main screen, which remembers it. Does nothing without a selection.
void ChooseHouse(const HouseScenarios& dialog, Session& session);

} // namespace Ledgrove::Module1
