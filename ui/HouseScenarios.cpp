#include "ui/HouseScenarios.h"

#include "base/Text.h"
#include "engine/NumberText.h"
#include "settings/HeaderSettings.h"
#include "settings/HouseListFile.h"
#include "settings/Windows1252.h"
#include "ui/DataCheck.h"
#include "ui/Entry.h"

#include <algorithm>

namespace Ledgrove {

std::array<HouseAmount, 4> HouseAmounts() {
    return {{{"StdCost", &House::StdCost, &HouseScenarios::ecStdCost},
             {"StdUtil", &House::StdUtil, &HouseScenarios::ecStdUtil},
             {"GMHCost", &House::GMHCost, &HouseScenarios::ecGMHCost},
             {"GMHUtil", &House::GMHUtil, &HouseScenarios::ecGMHUtil}}};
}

} // namespace Ledgrove

namespace Ledgrove::Module1 {

namespace {

constexpr std::string_view dollars = "$###,##0";

House& SelectedHouse(HouseScenarios& dialog) {
    return dialog.Houses[static_cast<std::size_t>(dialog.Selected)];
}

House HouseOnScreen(std::string_view name, const MainScreen& screen) {
    return {std::string(name), ParseFieldValue(screen.ecStdHome.Text, 1),
            ParseFieldValue(screen.ecStdUtil.Text, 1), ParseFieldValue(screen.ecGMHHome.Text, 1),
            ParseFieldValue(screen.ecGMHUtil.Text, 1)};
}

/// The question about implausible amounts in the fields; empty if they look plausible.
std::string EditQuestion(const HouseScenarios& dialog) {
    const std::string remarks = CheckHousePair(
        {ParseFieldValue(dialog.ecStdCost.Text, 1), ParseFieldValue(dialog.ecGMHCost.Text, 1),
         ParseFieldValue(dialog.ecStdUtil.Text, 1), ParseFieldValue(dialog.ecGMHUtil.Text, 1)});
    if (remarks.empty())
        return {};
    return "Attention!\r\r" + remarks +
           "\rYou may continue to save, or return to data entry mode.\r\rContinue to save?";
}

} // namespace

float HouseValue(const House& house, std::string_view key) {
    for (const HouseAmount& amount : HouseAmounts())
        if (amount.Key == key)
            return house.*amount.Member;
    return 0;
}

int FindHouse(const HouseList& houses, std::string_view name) {
    const auto found =
        std::find_if(houses.begin(), houses.end(), [&](const House& house) { return house.Name == name; });
    return found == houses.end() ? -1 : static_cast<int>(found - houses.begin());
}

std::optional<SettingsFault> OpenHouseScenarios(HouseScenarios& dialog, const Session& session, Host& host) {
    const SettingsFile file(session.Folder);
    dialog = HouseScenarios{};
    if (auto fault = LoadHomeList(file, dialog.Houses))
        return fault;
    if (const auto fault = WriteSetting(file, "HOMESELECTIONDIALOG", "OPEN"))
        host.ShowMessage({ApplicationTitle, Sentence(*fault), MessageIcon::Exclamation});
    const int current = FindHouse(dialog.Houses, session.Screen.lblHomeName.Text);
    SelectHouse(dialog, current < 0 ? 0 : current);
    return std::nullopt;
}

void SelectHouse(HouseScenarios& dialog, int index) {
    dialog.Selected = index;
    if (!dialog.HasSelection())
        dialog.Selected = -1;
    for (const HouseAmount& amount : HouseAmounts())
        (dialog.*amount.Shown).Text =
            dialog.HasSelection() ? FormatPicture(SelectedHouse(dialog).*amount.Member, dollars) : "";
}

std::string HouseNameComplaint(const HouseList& houses, std::string_view name) {
    if (IsBlank(name))
        return "No Name Entered. Add Aborted";
    if (name.find(',') != name.npos)
        return "A name cannot contain a comma.";
    if (name.find_first_of("\r\n") != name.npos)
        return "A name cannot contain a line break.";
    const auto encoded = EncodeWindows1252(name);
    if (const auto* bad = std::get_if<UnencodableCharacter>(&encoded))
        return "A name cannot contain " + bad->Name +
               ", which the settings file's character set (Windows-1252) does "
               "not have.";
    if (FindHouse(houses, name) >= 0)
        return "This Home Name Has Already Been Entered.";
    return {};
}

bool AddHouse(HouseScenarios& dialog, const Session& session, Host& host, std::string_view name) {
    const std::string complaint = HouseNameComplaint(dialog.Houses, name);
    if (!complaint.empty()) {
        host.ShowMessage({ApplicationTitle, complaint});
        return false;
    }
    dialog.Houses.push_back(HouseOnScreen(name, session.Screen));
    SelectHouse(dialog, static_cast<int>(dialog.Houses.size()) - 1);
    return true;
}

void BeginHouseEdit(HouseScenarios& dialog) {
    dialog.Editing = dialog.HasSelection();
}

bool FinishHouseEdit(HouseScenarios& dialog, Host& host) {
    const std::string question = EditQuestion(dialog);
    if (!question.empty() && host.ShowMessage({"Ledgrove Data Check", question, MessageIcon::Question,
                                               MessageButtons::YesNo}) != MessageAnswer::Yes)
        return false;
    for (const HouseAmount& amount : HouseAmounts())
        SelectedHouse(dialog).*amount.Member = ParseFieldValue((dialog.*amount.Shown).Text, 1);
    dialog.Editing = false;
    return true;
}

void CancelHouseEdit(HouseScenarios& dialog) {
    dialog.Editing = false;
    SelectHouse(dialog, dialog.Selected);
}

void DeleteHouse(HouseScenarios& dialog, Host& host) {
    if (!dialog.HasSelection())
        return;
    if (host.ShowMessage({"House Package Data Delete", "Do you really want to delete?", MessageIcon::Question,
                          MessageButtons::YesNo}) != MessageAnswer::Yes)
        return;
    dialog.Houses.erase(dialog.Houses.begin() + dialog.Selected);
    SelectHouse(dialog, 0);
}

std::optional<SettingsFault> SaveHouseScenarios(const HouseScenarios& dialog, const Session& session) {
    return WriteHomeList(SettingsFile(session.Folder), dialog.Houses);
}

void CloseHouseScenarios(const HouseScenarios& dialog, const Session& session, Host& host) {
    if (const auto fault = SaveHouseScenarios(dialog, session))
        host.ShowMessage({ApplicationTitle, "The list of houses could not be saved. " + Sentence(*fault),
                          MessageIcon::Exclamation});
}

void ChooseHouse(const HouseScenarios& dialog, Session& session) {
    if (!dialog.HasSelection())
        return;
    TakeHouse(dialog.Houses[static_cast<std::size_t>(dialog.Selected)], session);
}

void TakeHouse(const House& house, Session& session) {
    MainScreen& screen = session.Screen;
    screen.lblHomeName.Text = house.Name;
    SetFieldText(session, screen.ecStdHome, FormatPicture(house.StdCost, dollars));
    SetFieldText(session, screen.ecStdUtil, FormatPicture(house.StdUtil, dollars));
    SetFieldText(session, screen.ecGMHHome, FormatPicture(house.GMHCost, dollars));
    SetFieldText(session, screen.ecGMHUtil, FormatPicture(house.GMHUtil, dollars));
    session.ChosenHouse = house;
}

void NameHouse(std::string_view name, Session& session) {
    session.Screen.lblHomeName.Text = name;
    session.ChosenHouse = HouseOnScreen(name, session.Screen);
}

} // namespace Ledgrove::Module1
