#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "engine/MortgageOption.h"

// The main screen as plain data: one member per control, with the control's name. The inputs are stored only
// as the texts of the fields. The tabs, the report and the command line all show the texts of the labels.
namespace Ledgrove {

/// `Normal` is the window's text colour, and black in reports and in JSON.
enum class TextColour { Normal, Red, Grey };

struct Field {
    std::string Text;
    TextColour Colour = TextColour::Normal;
    bool SetsEEMNotice = false; ///< a change of this input can change the EEM eligibility

    static Field FeedingEEMRule() {
        Field field;
        field.SetsEEMNotice = true;
        return field;
    }
};

struct PickItem {
    std::string_view Text;
    int Code; ///< item data: the mortgage option's number, or the term in years
};

struct PickList {
    std::span<const PickItem> Items;
    int Selected = -1; ///< index of the chosen item, -1 for none

    std::string_view Text() const {
        return HasSelection() ? Items[static_cast<std::size_t>(Selected)].Text : "";
    }
    int Code() const { return HasSelection() ? Items[static_cast<std::size_t>(Selected)].Code : 0; }
    /// The chosen mortgage option; empty if none is chosen.
    std::optional<MortgageOption> Option() const { return OptionOfCode(Code()); }
    /// The index of the item with exactly this text, -1 if there is none.
    int IndexOf(std::string_view text) const;

private:
    bool HasSelection() const { return Selected >= 0 && static_cast<std::size_t>(Selected) < Items.size(); }
};

struct Label {
    std::string Text;
    TextColour Colour = TextColour::Normal;
    bool Visible = true;
};

inline constexpr int TabCount = 5;

/// The name of a house whose prices and utility costs are not those of a house scenario.
inline constexpr std::string_view CustomHouse = "Custom";

/// What the user enters and chooses.
struct ScreenEntries {
    Field ecIncome, ecMonthlyDebt, ecPctDown, ecFixedDown;
    Field ecStdHome = Field::FeedingEEMRule(), ecGMHHome = Field::FeedingEEMRule();
    Field ecStdUtil = Field::FeedingEEMRule(), ecGMHUtil = Field::FeedingEEMRule();
    Field ecStdRate, ecGMHRate = Field::FeedingEEMRule(), ecStdStr, ecGMHStr;
    Field ecRate, ecSaveRate, ecGMHTerm;

    PickList cboMortTerm, cboStdMortOption, cboGMHMortOption;
    int optDownPayment = 0; ///< 0: "% Down", 1: "or Fixed $"
    bool chkDoTax0 = true;
    bool PctDownConverted = false; ///< the percent text came from a dollar amount; not converted again

    int SSTab1 = 0; ///< the selected tab
    std::array<bool, TabCount> DetlFrame{true, false, false, false,
                                         false}; ///< which detail panels are visible
    std::int32_t xMortTerm = 0;                  ///< term in years

    Label lblHomeName;
};

struct MainScreen : ScreenEntries {
    // Affordability, and the Summary figures of each home
    Label lblStdPITI, lblStdMortPayment, lblStdUtilMo, lblStdHome, lblStdDown, lblstddown2;
    Label lblStdMortgage, lblStdMort, lblStdInc, lblStdMaxHome, lblStdQual;
    Label lblGMHPITI, lblGMHMortPayment, lblGMHUtilMo, lblGMHHome, lblgmhDown, lblgmhdown2;
    Label lblgmhMortgage, lblGMHMort, lblGMHInc, lblGMHMaxHome, lblGMHQual;

    // Cash Flow
    Label lbladditionalmortgagetext, lblAddMortMo, lblAddMortYr;
    Label lblutilitysavingstext, lblUtilSavMo, lblUtilSavYr;
    Label lbltaxsavingstext, lblTaxSavMo, lblTaxSavYr;
    Label lblTaxSavmo2Text, lbltaxsavmo2;
    Label lblnetcashflowtext, lblNetCashMo, lblNetCashYr;

    // More Home
    Label lblStdPITIU, lblGMHPITIU, lblMonthlyHCStd, lblMonthlyHCGM, lblHouseValueStd;
    Label lblNetCashMoTx, lblExtrasTx, lblHouseValueGM, Label6;
    Label lblfeature1, lblfeature2;

    // Summary
    Label lblNetCashMo2, lblExpYrPre, lbl30YrPre, lblTerm, lblYrsIn;
    Label lblPV, lblPVNote, lblPVofSavings;
};

template <typename Control>
struct ControlEntry {
    std::string_view Name;
    Control MainScreen::*Member;
};

/// Every edit field of the main screen by name; the input fields come first, in tab order.
std::span<const ControlEntry<Field>> FieldTable();

/// Every pick list by name.
std::span<const ControlEntry<PickList>> PickListTable();

/// Every label that changes, by name: the result labels, then `lblHomeName`.
std::span<const ControlEntry<Label>> LabelTable();

/// The name of a label in this table.
std::string_view LabelName(Label MainScreen::*label);

/// The labels that a recalculation writes: all except `lblHomeName`.
std::span<const ControlEntry<Label>> ResultLabelTable();

/// The term items, "10 years" to "40 years".
std::span<const PickItem> TermItems();

/// The base home's mortgage options.
std::span<const PickItem> BaseOptionItems();

/// The labelled home's mortgage options for a base option; empty without one.
std::span<const PickItem> LabelledOptionItems(std::optional<MortgageOption> base);

} // namespace Ledgrove
