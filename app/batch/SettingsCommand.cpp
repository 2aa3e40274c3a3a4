#include "app/batch/SettingsCommand.h"

#include <iostream>

#include "app/batch/CompareCommand.h"
#include "app/batch/CsvCompare.h"
#include "engine/NumberText.h"
#include "settings/HeaderSettings.h"
#include "settings/HouseListFile.h"
#include "settings/SettingsText.h"

namespace Ledgrove {

namespace {

int Complain(const std::string& sentence, ExitStatus status) {
    std::cerr << "ledgrove-cli: " << sentence << '\n';
    return status;
}

/// A key or value at fault is the caller's input; all else keeps the program from running at all.
int Complain(const SettingsFault& fault) {
    using Kind = SettingsFault::Kind;
    const bool input =
        fault.What == Kind::BadLine || fault.What == Kind::MissingKey || fault.What == Kind::RefusedText;
    return Complain(Sentence(fault), input ? SomeRefused : CannotRun);
}

} // namespace

int PrintSetting(const std::filesystem::path& folder, const std::string& key) {
    const auto value = SettingText(SettingsFile(folder), key);
    if (!value)
        return Complain(value.Fault());
    std::cout << *value << '\n';
    return AllWell;
}

int ChangeSetting(const std::filesystem::path& folder, const std::string& key, const std::string& value) {
    if (const auto refusal = CheckSetRequest(key, value))
        return Complain(*refusal, SomeRefused);
    if (const auto fault = Module1::WriteSetting(SettingsFile(folder), key, value))
        return Complain(*fault);
    return AllWell;
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
    std::cout << out;
    return AllWell;
}

} // namespace Ledgrove
