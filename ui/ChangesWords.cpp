#include "ui/ChangesWords.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <iterator>
#include <utility>

#include "base/Text.h"
#include "engine/ShowResults.h"

namespace Ledgrove {

namespace {

constexpr std::string_view netLabel = "lblNetCashMoTx";

constexpr std::pair<std::string_view, std::string_view> inputWords[] = {
    {"ecIncome", "the income"},
    {"ecMonthlyDebt", "the debt"},
    {"downPayment", "the down payment"},
    {"ecStdHome", "the price, base home"},
    {"ecGMHHome", "the price, GREENMARK home"},
    {"ecStdUtil", "the utility bill, base home"},
    {"ecGMHUtil", "the utility bill, GREENMARK home"},
    {"ecStdRate", "the interest rate, base home"},
    {"ecGMHRate", "the interest rate, GREENMARK home"},
    {"ecStdStr", "the mortgage stretch, base home"},
    {"ecGMHStr", "the mortgage stretch, GREENMARK home"},
    {"cboMortTerm", "the term"},
    {"mortgageOptions", "the mortgage options"},
    {"chkDoTax0", "the taxes"},
};

std::string_view WordsOf(std::string_view input) {
    const auto* const found = std::find_if(std::begin(inputWords), std::end(inputWords),
                                           [input](const auto& row) { return row.first == input; });
    return found == std::end(inputWords) ? input : found->second;
}

std::string Capital(std::string text) {
    text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
    return text;
}

/// Which input the change comes from: of those that move the figure the way it goes, the one that does so
/// the most. Parts below half a cent do not count. Empty if the parts are unknown.
std::string SourceOf(const Diff& diff, const DiffFigure& figure) {
    constexpr double least = 0.005;
    if (!figure.Parts || std::fabs(figure.Change()) < least)
        return {};
    const double sign = figure.Change() < 0 ? -1 : 1;
    std::size_t largest = 0;
    int movers = 0;
    for (std::size_t at = 0; at < figure.Parts->size(); ++at) {
        movers += std::fabs((*figure.Parts)[at]) >= least ? 1 : 0;
        if (sign * (*figure.Parts)[at] > sign * (*figure.Parts)[largest])
            largest = at;
    }
    const std::string source(WordsOf(diff.Inputs[largest].Input));
    if (movers == 1)
        return "all of it comes from " + source;
    const double part = (*figure.Parts)[largest];
    if (sign * (part - figure.Change()) >= least)
        return source + ", moves it most (" + (part < 0 ? "-" : "+") + DollarText(std::fabs(part)) +
               "), and others work against it";
    const bool isMost = sign * part > sign * figure.Change() / 2;
    return (isMost ? "most of it comes from " : "the largest part comes from ") + source;
}

std::string NothingMoved(const Diff& diff, const std::string& begin) {
    const std::string inputs =
        diff.Inputs.size() == 1 ? "one input differs" : std::to_string(diff.Inputs.size()) + " inputs differ";
    return begin + inputs + ", but no figure moves.";
}

} // namespace

std::string ShortName(const std::string& name) {
    constexpr std::size_t longest = 40;
    std::string plain =
        name.size() > 1 && name.front() == '"' && name.back() == '"' ? name.substr(1, name.size() - 2) : name;
    if (CharacterCount(plain) <= longest)
        return plain;
    std::size_t characters = 0;
    const auto end = std::find_if(plain.begin(), plain.end(), [&characters](char byte) {
        return BeginsCharacter(byte) && ++characters == longest;
    });
    return std::string(plain.begin(), end) + "…";
}

std::string ShownNetText(const Insight& insight) {
    MainScreen screen = insight.Screen();
    Module1::ShowResults(insight.Record(), screen);
    return screen.lblNetCashMoTx.Text;
}

std::string MissingSentence(const std::string& name, const Inputs& inputs, const std::string& missing) {
    const bool hasBase = inputs.Std.Cost > 0;
    const bool hasLabelled = inputs.GMH.Cost > 0;
    if (hasBase && hasLabelled) {
        std::string reason = missing;
        reason[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(reason[0])));
        return Capital(name) + " cannot be compared: " + reason;
    }
    const std::string what = hasBase       ? "the price of the GREENMARK home"
                             : hasLabelled ? "the price of the base home"
                                           : "the prices of both homes";
    return Capital(name) + " lacks " + what + ", so it has no figures to compare.";
}

std::string ChangesSentence(const Diff& diff, const ChangesNames& names) {
    if (diff.Inputs.empty() && diff.Figures.empty())
        return "Nothing differs between " + names.From + " and " + names.To + ".";
    const std::string begin = "From " + names.From + " to " + names.To + " ";
    if (diff.Figures.empty())
        return NothingMoved(diff, begin);
    const DiffFigure* const net = diff.FigureOfLabel(netLabel);
    if (!net)
        return begin + "the monthly net stays at " + names.NetText + "; other figures move.";
    const std::string source = SourceOf(diff, *net);
    return begin + "the monthly net goes from " + TextInA(*net) + " to " + TextInB(*net) +
           (source.empty() ? "" : "; " + source) + ".";
}

} // namespace Ledgrove
