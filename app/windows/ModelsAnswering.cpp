#include "app/windows/ModelsAnswering.h"

#include <utility>

#include "settings/HouseListFile.h"
#include "ui/HouseRangeRun.h"

namespace Ledgrove {

namespace {

/// The list that is being computed, and the last one that was finished.
struct ModelsWork {
    std::unique_ptr<HouseRangeRun> Run;
    Range Last;
};

std::string Begin(ModelsWork& work, const Session& session, const std::vector<std::size_t>& pairs) {
    work.Run.reset();
    HouseList houses;
    if (const auto fault = Module1::LoadHomeList(SettingsFile(session.Folder), houses))
        return Sentence(*fault);
    RangeChoice choice;
    for (const std::size_t pair : pairs)
        choice.Pairs.push_back(OptionPairs()[pair]);
    work.Run = std::make_unique<HouseRangeRun>(session, std::move(houses), std::move(choice));
    return {};
}

std::vector<std::string> PairNames() {
    std::vector<std::string> names;
    for (const OptionPair& pair : OptionPairs())
        names.push_back(std::string(pair.Base.Text) + " / " + std::string(pair.Labelled.Text));
    return names;
}

ModelsState Look(ModelsWork& work, int milliseconds) {
    if (!work.Run)
        return {0, 0, true, {}};
    HouseRangeRun& run = *work.Run;
    ModelsState state{run.Done(), run.Total(), run.Finishes(std::chrono::milliseconds(milliseconds))};
    if (state.IsFinished && run.Result()) {
        work.Last = *run.Result();
        state.Houses = std::make_shared<const Sheet>(RangeSheet(work.Last));
    }
    return state;
}

} // namespace

ModelsContext MakeModelsContext(std::function<Session()> state, RangePrinter print) {
    auto work = std::make_shared<ModelsWork>();
    return {PairNames(),
            [work, state = std::move(state)](const std::vector<std::size_t>& pairs) {
                return Begin(*work, state(), pairs);
            },
            [work](int milliseconds) { return Look(*work, milliseconds); },
            [work] {
                if (work->Run)
                    work->Run->Cancel();
            },
            [work, print = std::move(print)] { print(work->Last); }};
}

} // namespace Ledgrove
