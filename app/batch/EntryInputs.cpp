#include "app/batch/EntryInputs.h"

#include <vector>

namespace Ledgrove {

namespace {

std::vector<EntryInput> MatchByName() {
    std::vector<EntryInput> entries;
    for (const EntryRule& rule : MainEntryRules())
        entries.push_back({rule, InputNamed(rule.Name).value()});
    return entries;
}

} // namespace

std::span<const EntryInput> EntryInputs() {
    static const std::vector<EntryInput> entries = MatchByName();
    return entries;
}

} // namespace Ledgrove
