#include "app/batch/SettingsCommand.h"

#include <algorithm>
#include <unistd.h>

#include "app/batch/CsvText.h"
#include "app/batch/ExitStatus.h"
#include "app/batch/OutputBuffer.h"
#include "engine/NumberText.h"
#include "settings/HeaderSettings.h"
#include "settings/HouseListFile.h"
#include "settings/SettingsCheck.h"
#include "settings/SettingsText.h"
#include "settings/ValueRules.h"

namespace Ledgrove {

namespace {

/// An invalid key or value is a refused input. With any other fault, the command cannot run.
int Complain(const SettingsFault& fault) {
    using Kind = SettingsFault::Kind;
    const bool input =
        fault.What == Kind::BadLine || fault.What == Kind::MissingKey || fault.What == Kind::RefusedText;
    return Complain(Sentence(fault), input ? SomeRefused : CannotRun);
}

/// A script must be able to tell a full disk from an empty setting.
int Print(const std::string& text) {
    OutputBuffer output(STDOUT_FILENO);
    output.Text() = text;
    output.Flush();
    return output.Failure().empty() ? AllWell
                                    : Complain(UnwrittenOutput("settings", output.Failure()), CannotRun);
}

} // namespace

int PrintSetting(const std::filesystem::path& folder, const std::string& key) {
    if (const auto refusal = CheckGetRequest(key))
        return Complain(*refusal, SomeRefused);
    const auto value = SettingText(SettingsFile(folder), key);
    if (!value)
        return Complain(value.Fault());
    return Print(*value + '\n');
}

int ChangeSetting(const std::filesystem::path& folder, const std::string& key, const std::string& value,
                  UnknownKeys unknown) {
    if (const auto refusal = CheckSetRequest(key, value, unknown))
        return Complain(*refusal, SomeRefused);
    if (const auto fault = Module1::WriteSetting(SettingsFile(folder), key, StoredValue(key, value)))
        return Complain(*fault);
    return AllWell;
}

int PrintSettingsCheck(const std::filesystem::path& folder) {
    const auto lines = SettingsFile(folder).ReadLines();
    if (!lines)
        return Complain(lines.Fault());
    std::string out;
    for (const UnusableLine& line : UnusableLines(*lines))
        out += Sentence(line) + '\n';
    const int status = Print(out.empty() ? "Every line of Ledgrove.ini can be used.\n" : out);
    return out.empty() ? status : std::max(status, int{SomeRefused});
}

void WarnOfSettings(const std::filesystem::path& folder) {
    for (const UnusableLine& line : CheckSettings(SettingsFile(folder)))
        Complain(Sentence(line), AllWell);
}

int PrintHouses(const std::filesystem::path& folder) {
    HouseList houses;
    if (const auto fault = Module1::LoadHomeList(SettingsFile(folder), houses))
        return Complain(*fault);
    std::string out = "name,StdCost,StdUtil,GMHCost,GMHUtil\n";
    for (const House& house : houses) {
        AppendCsvCell(out, house.Name);
        for (const float amount : {house.StdCost, house.StdUtil, house.GMHCost, house.GMHUtil})
            out += "," + Module1::ShortestText(amount);
        out += '\n';
    }
    return Print(out);
}

} // namespace Ledgrove
