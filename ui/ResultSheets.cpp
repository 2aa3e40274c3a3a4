#include "ui/ResultSheets.h"

#include "base/Text.h"

namespace Ledgrove {

namespace {

using S = MainScreen;

constexpr std::string_view principalAndInterest = "Principal and interest per month";
constexpr std::string_view wholePayment = "Principal, interest, taxes, insurance and PMI per month";

constexpr SheetRow cashFlow[] = {
    {.CaptionLabel = &S::lbladditionalmortgagetext, .First = &S::lblAddMortMo, .Second = &S::lblAddMortYr},
    {.CaptionLabel = &S::lblutilitysavingstext, .First = &S::lblUtilSavMo, .Second = &S::lblUtilSavYr},
    {.CaptionLabel = &S::lbltaxsavingstext, .First = &S::lblTaxSavMo, .Second = &S::lblTaxSavYr},
    {.CaptionLabel = &S::lblnetcashflowtext,
     .First = &S::lblNetCashMo,
     .Second = &S::lblNetCashYr,
     .Weight = RowWeight::Total},
};

constexpr SheetRow purchase[] = {
    {.Caption = "A Monthly Net Cash Flow of", .Second = &S::lblNetCashMoTx},
    {.Caption = "buys today", .Second = &S::lblExtrasTx, .ReportCaption = "Can Purchase Options up to"},
};

constexpr SheetRow houseValues[] = {
    {.Caption = "Monthly Housing Cost", .First = &S::lblMonthlyHCStd, .Second = &S::lblMonthlyHCGM},
    {.Caption = "House Value", .First = &S::lblHouseValueStd, .Second = &S::lblHouseValueGM},
};

constexpr SheetRow affordability[] = {
    {.Caption = "Mortgage Amount", .First = &S::lblStdMort, .Second = &S::lblGMHMort},
    {.Caption = "Down Payment", .First = &S::lblstddown2, .Second = &S::lblgmhdown2},
    {.Caption = "Mortgage Payment",
     .First = &S::lblStdMortPayment,
     .Second = &S::lblGMHMortPayment,
     .Meaning = principalAndInterest,
     .TextCaption = "Mortgage Payment (P+I)"},
    {.Caption = "Maximum Loan Value", .First = &S::lblStdMaxHome, .Second = &S::lblGMHMaxHome},
    {.Caption = "Maximum Payment", .First = &S::lblStdInc, .Second = &S::lblGMHInc},
    {.Caption = "Buyer Qualifies?",
     .First = &S::lblStdQual,
     .Second = &S::lblGMHQual,
     .Weight = RowWeight::Total,
     .ReportCaption = "Buyer Qualifies"},
};

constexpr SheetRow summaryHomes[] = {
    {.Caption = "Sticker Price", .First = &S::lblStdHome, .Second = &S::lblGMHHome},
    {.Caption = "Down Payment", .First = &S::lblStdDown, .Second = &S::lblgmhDown},
    {.Caption = "Mortgage Amount", .First = &S::lblStdMortgage, .Second = &S::lblgmhMortgage},
    {.Caption = "Mortgage Payment",
     .First = &S::lblStdPITI,
     .Second = &S::lblGMHPITI,
     .Meaning = wholePayment},
    {.Caption = "Monthly Utility Bills", .First = &S::lblStdUtilMo, .Second = &S::lblGMHUtilMo},
    {.CaptionLabel = &S::lblTaxSavmo2Text, .Second = &S::lbltaxsavmo2},
    {.Caption = "Net Monthly Payment",
     .First = &S::lblStdPITIU,
     .Second = &S::lblGMHPITIU,
     .Weight = RowWeight::Total},
};

constexpr SheetRow summarySavings[] = {
    {.Caption = "Net Monthly Cash Flow", .Second = &S::lblNetCashMo2},
    {.CaptionLabel = &S::lblYrsIn, .Second = &S::lblExpYrPre},
    {.CaptionLabel = &S::lblTerm, .Stem = &S::lblYrsIn, .Second = &S::lbl30YrPre},
    {.CaptionLabel = &S::lblPV, .Second = &S::lblPVofSavings},
};

constexpr std::array<std::string_view, 2> bothHomes{"Base Home", "GREENMARK Home"};

/// In the order of SheetKind.
constexpr ResultSheet sheets[] = {
    {SheetKind::CashFlow, 1, {"Monthly", "Yearly"}, cashFlow},
    {SheetKind::Purchase, 2, bothHomes, purchase},
    {SheetKind::HouseValues, 2, bothHomes, houseValues},
    {SheetKind::Affordability, 3, bothHomes, affordability},
    {SheetKind::SummaryHomes, 4, bothHomes, summaryHomes},
    {SheetKind::SummarySavings, 4, bothHomes, summarySavings},
};

} // namespace

const ResultSheet& SheetOf(SheetKind kind) {
    return sheets[static_cast<std::size_t>(kind)];
}

std::string WholeCaption(std::string_view stem, std::string_view own) {
    own = Trimmed(own);
    stem = Trimmed(stem);
    if (stem.empty())
        return std::string(own);
    return std::string(stem.substr(0, stem.find(':') + 1)).append("   ").append(own);
}

std::string CaptionOf(const SheetRow& row, const MainScreen& screen) {
    return WholeCaption(CellOf(row.Stem, screen),
                        row.CaptionLabel ? CellOf(row.CaptionLabel, screen) : row.Caption);
}

std::string_view CellOf(LabelMember cell, const MainScreen& screen) {
    return cell ? std::string_view((screen.*cell).Text) : "";
}

bool IsShown(const SheetRow& row, const MainScreen& screen) {
    const auto isShown = [&screen](LabelMember cell) { return !cell || (screen.*cell).Visible; };
    return isShown(row.First) && isShown(row.Second);
}

} // namespace Ledgrove
