#include "app/batch/TextTable.h"

#include <algorithm>

#include "base/Text.h"
#include "engine/NumberText.h"
#include "ui/ResultSheets.h"

namespace Ledgrove {

namespace {

constexpr std::size_t captionWidth = 36;
constexpr std::size_t columnWidth = 18;

std::string Blanks(std::string_view text, std::size_t width) {
    const std::size_t places = CharacterCount(text);
    return std::string(places < width ? width - places : 1, ' ');
}

void AppendRow(std::string& out, std::string_view caption, std::string_view first,
               std::string_view second = {}) {
    out.append(caption).append(Blanks(caption, captionWidth));
    if (!first.empty() || second.empty())
        out.append(Blanks(first, columnWidth)).append(first);
    else
        out.append(columnWidth, ' ');
    if (!second.empty())
        out.append(Blanks(second, columnWidth)).append(second);
    out += '\n';
}

void AppendBuyer(std::string& out, const MainScreen& s) {
    const bool percent = s.optDownPayment == 0;
    AppendRow(out, "Annual Income", s.ecIncome.Text);
    AppendRow(out, "Monthly Debt", s.ecMonthlyDebt.Text);
    AppendRow(out, percent ? "% Down" : "Fixed $ Down", percent ? s.ecPctDown.Text : s.ecFixedDown.Text);
    AppendRow(out, "Term", s.cboMortTerm.Text());
}

void AppendHomes(std::string& out, const MainScreen& s) {
    out += '\n';
    AppendRow(out, "", "Base Home", "GREENMARK Home");
    AppendRow(out, "Annual Utility Cost", s.ecStdUtil.Text, s.ecGMHUtil.Text);
    AppendRow(out, "Interest Rate", s.ecStdRate.Text, s.ecGMHRate.Text);
    AppendRow(out, "Mortgage Option", s.cboStdMortOption.Text(), s.cboGMHMortOption.Text());
}

void AppendSheet(std::string& out, const MainScreen& screen, SheetKind kind) {
    for (const SheetRow& row : SheetOf(kind).Rows) {
        if (IsShown(row, screen))
            AppendRow(out, row.TextCaption.empty() ? CaptionOf(row, screen) : std::string(row.TextCaption),
                      CellOf(row.First, screen), CellOf(row.Second, screen));
    }
}

void AppendSummary(std::string& out, const MainScreen& s) {
    out += "\nSummary\n";
    AppendSheet(out, s, SheetKind::SummaryHomes);
    AppendSheet(out, s, SheetKind::SummarySavings);
    if (s.lblPVNote.Visible)
        out.append(s.lblPVNote.Text).append("\n");
}

void AppendCashFlow(std::string& out, const MainScreen& s) {
    const auto& heads = SheetOf(SheetKind::CashFlow).Heads;
    out += '\n';
    AppendRow(out, "Cash Flow", heads[0], heads[1]);
    AppendSheet(out, s, SheetKind::CashFlow);
}

void AppendMoreHome(std::string& out, const Session& session) {
    out += "\nMore Home\n";
    AppendSheet(out, session.Screen, SheetKind::Purchase);
    AppendSheet(out, session.Screen, SheetKind::HouseValues);
    AppendRow(out, "Price Difference", "", Module1::MoneyText(session.Scenario.PriceDifference));
    AppendRow(out, "Extra Cash Today", "", Module1::MoneyText(session.Scenario.ExtraCashToday));
}

void AppendAffordability(std::string& out, const Session& session) {
    out += "\nAffordability\n";
    AppendSheet(out, session.Screen, SheetKind::Affordability);
    AppendRow(out, "Maximum Home", Module1::MoneyText(session.StdCase.MaxHome),
              Module1::MoneyText(session.GMHCase.MaxHome));
}

void AppendMessageText(std::string& out, std::string text) {
    std::replace(text.begin(), text.end(), '\r', '\n');
    while (!text.empty() && text.back() == '\n')
        text.pop_back();
    out.append("\n").append(text).append("\n");
}

} // namespace

std::string ResultTable(const Comparison& comparison) {
    const Session& session = comparison.State();
    std::string out;
    AppendBuyer(out, session.Screen);
    AppendHomes(out, session.Screen);
    AppendSummary(out, session.Screen);
    AppendCashFlow(out, session.Screen);
    AppendMoreHome(out, session);
    AppendAffordability(out, session);
    for (const Message& message : comparison.Messages())
        AppendMessageText(out, message.Text);
    if (const std::string check = comparison.DataCheck(); !check.empty())
        AppendMessageText(out, check);
    return out;
}

} // namespace Ledgrove
