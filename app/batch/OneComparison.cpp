#include "app/batch/OneComparison.h"

#include <iostream>

#include "app/batch/ObjectInput.h"
#include "ui/StartUp.h"

namespace Ledgrove {

OneComparison CompareOne(const std::string& folder, const std::string& input) {
    Session session;
    CollectingHost host;
    if (const auto fault = Module1::LoadMainScreen(session, host, folder))
        return {CannotRun, Sentence(*fault), {}};
    Comparison comparison(session);
    const ObjectInput read = RunObjectFile(input, comparison);
    if (!read.Unreadable.empty())
        return {CannotRun, read.Unreadable, {}};
    if (read.Refused)
        return {SomeRefused, RefusalSentence(*read.Refused), {}};
    return {AllWell, {}, comparison.State()};
}

ExitStatus Complain(const std::string& sentence, ExitStatus status) {
    std::cerr << "ledgrove-cli: " << sentence << '\n';
    return status;
}

} // namespace Ledgrove
