#include "insight/OptionPairs.h"

#include <algorithm>
#include <vector>

#include "insight/Insight.h"

namespace Ledgrove {

namespace {

std::vector<OptionPair> AllowedPairs() {
    std::vector<OptionPair> pairs;
    for (const PickItem& base : BaseOptionItems()) {
        for (const PickItem& labelled : LabelledOptionItems(OptionOfCode(base.Code)))
            pairs.push_back({base, labelled});
    }
    return pairs;
}

} // namespace

std::span<const OptionPair> OptionPairs() {
    static const std::vector<OptionPair> pairs = AllowedPairs();
    return pairs;
}

Inputs WithOptions(Inputs inputs, const OptionPair& pair) {
    inputs.Std.Option = OptionOfCode(pair.Base.Code);
    inputs.GMH.Option = OptionOfCode(pair.Labelled.Code);
    return inputs;
}

void ChoosePair(MainScreen& screen, const OptionPair& pair) {
    screen.cboStdMortOption.Items = BaseOptionItems();
    screen.cboStdMortOption.Selected = screen.cboStdMortOption.IndexOf(pair.Base.Text);
    screen.cboGMHMortOption.Items = LabelledOptionItems(OptionOfCode(pair.Base.Code));
    screen.cboGMHMortOption.Selected = screen.cboGMHMortOption.IndexOf(pair.Labelled.Text);
}

std::optional<OptionPair> ChosenPair(const MainScreen& screen) {
    const auto pairs = OptionPairs();
    const auto found = std::find_if(pairs.begin(), pairs.end(), [&screen](const OptionPair& pair) {
        return pair.Base.Text == screen.cboStdMortOption.Text() &&
               pair.Labelled.Text == screen.cboGMHMortOption.Text();
    });
    return found == pairs.end() ? std::nullopt : std::optional(*found);
}

std::string HomeFault(const Results& results, const OptionPair& pair, HomeCode home) {
    const bool labelled = home == HomeCode::GMH;
    return FaultSentence(labelled ? results.Decisions.GMH.CaseFault : results.Decisions.Std.CaseFault, home,
                         OptionOfCode(labelled ? pair.Labelled.Code : pair.Base.Code));
}

std::string PairFault(const Results& results, const OptionPair& pair) {
    std::string fault = HomeFault(results, pair, HomeCode::Std);
    return fault.empty() ? HomeFault(results, pair, HomeCode::GMH) : fault;
}

} // namespace Ledgrove
