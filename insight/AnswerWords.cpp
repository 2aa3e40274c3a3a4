#include "insight/AnswerWords.h"

#include <cmath>

#include "engine/NumberText.h"

namespace Ledgrove {

namespace {

bool IsPercent(const Answer& answer) {
    return answer.Input == "ecPctDown" || answer.Input.ends_with("Rate");
}

bool IsTerm(const Answer& answer) {
    return answer.Input == "cboMortTerm";
}

std::string_view EdgeOfBand(PMIBand beyond) {
    switch (beyond) {
    case PMIBand::Below5:
        return "5%";
    case PMIBand::Below10:
        return "10%";
    case PMIBand::Below15:
        return "15%";
    case PMIBand::Below20:
        return "20%";
    case PMIBand::None:
    case PMIBand::NoPMI:
        break;
    }
    return {};
}

} // namespace

CellUnit UnitOf(const Answer& answer) {
    if (IsTerm(answer))
        return CellUnit::Years;
    return IsPercent(answer) ? CellUnit::Percent : CellUnit::Dollars;
}

std::string ChangeSize(const Answer& answer) {
    if (!answer.Change)
        return {};
    const double size = std::fabs(*answer.Change);
    if (IsTerm(answer))
        return Module1::FormatPicture(size, "#0") + " years";
    if (!IsPercent(answer))
        return DollarText(size);
    return Module1::FormatPicture(size, answer.Input == "ecPctDown" ? "#0.00" : "#0.000") + " points";
}

std::string_view ChangeWord(const Answer& answer) {
    const bool more = answer.Change.value_or(0) > 0;
    if (IsTerm(answer))
        return more ? "longer" : "shorter";
    return more ? "more" : "less";
}

SheetCell AnswerCell(const std::optional<Answer>& answer, std::string_view whenNone) {
    if (!answer)
        return TextCell(std::string(whenNone));
    if (!answer->To)
        return TextCell(answer->Input.ends_with("Util") ? "not even a bill of $0 would do" : "does not help");
    SheetCell cell{*answer->To, answer->ToValue, UnitOf(*answer), CellMark::None};
    if (answer->State == AnswerState::Found && answer->Change.value_or(0) != 0)
        cell.Entries = {{answer->Input, *answer->To}};
    if (cell.Text.empty())
        cell.Text = EmptyFieldText;
    if (answer->State == AnswerState::Always)
        cell.Text.insert(0, "any, to ");
    return cell;
}

SheetCell ChangeCell(const std::optional<Answer>& answer) {
    if (!answer || !answer->Change || answer->State == AnswerState::Always)
        return {};
    const double change = *answer->Change;
    const std::string sign = change > 0 ? "+" : (change < 0 ? "-" : "");
    return {sign + ChangeSize(*answer), change, UnitOf(*answer), CellMark::None, {}};
}

std::string EdgePhrase(const Answer& answer) {
    if (answer.Kind != AnswerKind::Limit || answer.State != AnswerState::Found)
        return {};
    if (answer.Edge == AnswerEdge::SavingsWorth) {
        return "one step further the energy savings are no longer worth the upgrade, so they do not raise "
               "the loan.";
    }
    const std::string_view edge = EdgeOfBand(answer.Beyond);
    if (answer.Edge != AnswerEdge::PMIBand || edge.empty())
        return {};
    return "one step further puts the down payment below " + std::string(edge) +
           ", where mortgage insurance costs more.";
}

std::string Joined(const std::vector<std::string>& texts, std::string_view last) {
    std::string result;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (i > 0)
            result += i + 1 < texts.size() ? ", " : last;
        result += texts[i];
    }
    return result;
}

std::string ShareText(double share) {
    constexpr double error = 1e-9;
    const auto text = [share](double parts, const char* picture) {
        return Module1::FormatPicture(std::ceil(share * 100 * parts - error) / parts, picture) + "%";
    };
    const std::string whole = text(1, "#0");
    // What is less than all must not read as all.
    if (whole != "100%" || share >= 1 - error)
        return whole;
    const std::string tenths = text(10, "#0.0");
    return tenths == "100.0%" ? "nearly 100%" : tenths;
}

} // namespace Ledgrove
