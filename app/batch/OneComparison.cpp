#include "app/batch/OneComparison.h"

#include "app/batch/InputFile.h"
#include "app/batch/ObjectInput.h"
#include "app/batch/SettingsCommand.h"
#include "ui/StartUp.h"

namespace Ledgrove {

OneComparison CompareOne(const std::string& folder, const std::string& input) {
    Session session;
    CollectingHost host;
    if (const auto fault = Module1::LoadMainScreen(session, host, folder))
        return {CannotRun, Sentence(*fault), {}};
    WarnOfSettings(folder);
    Comparison comparison(session);
    const ObjectInput read = RunObjectFile(input, comparison);
    if (!read.Unreadable.empty())
        return {CannotRun, UnreadableInput(input, read.Unreadable), {}};
    if (read.Refused)
        return {SomeRefused, RefusalSentence(*read.Refused), {}};
    return {AllWell, {}, comparison.State()};
}

} // namespace Ledgrove
