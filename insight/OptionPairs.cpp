#include "insight/OptionPairs.h"

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
