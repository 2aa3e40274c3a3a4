// Makes one save as the window does, in a separate process that a test can stop or fail at any system call.
// Exit status: 0 saved, 1 not saved (standard error gives the reason), 2 wrong arguments.

#include <cstdlib>
#include <functional>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "engine/Host.h"
#include "engine/Session.h"
#include "reports/HeaderOptions.h"
#include "settings/HeaderSettings.h"
#include "settings/HouseListFile.h"
#include "settings/LineSyntax.h"
#include "ui/AssumptionsScreen.h"
#include "ui/HouseScenarios.h"
#include "ui/OptionsScreen.h"

namespace {

using namespace Ledgrove;

enum ExitStatus { Saved = 0, NotSaved = 1, WrongCall = 2 };

using Fault = std::optional<SettingsFault>;

/// Prints messages to standard error; the window would show them.
class TellingHost : public Host {
public:
    MessageAnswer ShowMessage(const Message& message) override {
        std::cerr << message.Text << '\n';
        m_told = true;
        return MessageAnswer::Ok;
    }
    void RunPendingEvents() override {}
    bool Told() const { return m_told; }

private:
    bool m_told = false;
};

int Tell(const Fault& fault) {
    if (!fault)
        return Saved;
    std::cerr << Sentence(*fault) << '\n';
    return NotSaved;
}

Session SessionIn(const std::string& folder) {
    Session session;
    session.Folder = folder;
    session.Header = {"New Builder", "", "/new.bmp"};
    session.TaxBrackets = {{-1, 45200, 15}, {45200, 109250, 28}};
    session.LoanTypes = {{1, "Conventional", "", 0.28F, 0.36F, "", "", "", false}};
    return session;
}

int SaveTaxes(const std::string& folder) {
    const TaxRows rows{{{"$50,000", "16.00%"}, {"$99,000", "29.00%"}}};
    const SettingsFile file(folder);
    const auto lines = file.ReadLines();
    if (!lines)
        return Tell(lines.Fault());
    SettingsDraft draft(file, *lines);
    const Fault fault = Module1::WriteTaxCatsToFile(draft, rows, {});
    return Tell(fault ? fault : draft.Save());
}

int SaveAssumptions(const std::string& folder) {
    TellingHost host;
    AssumptionsScreen dialog;
    Session session = SessionIn(folder);
    if (const Fault fault = Module1::FillAssumptions(dialog, session))
        return Tell(fault);
    dialog.ecRealEstateTaxPct.Text = "1.75%";
    dialog.ecInsurancePct.Text = "0.45%";
    dialog.ecPV_Rate.Text = "5.25%";
    dialog.ecPV_Term.Text = "15";
    dialog.optUsePVVars = true;
    dialog.ecYrsInHome.Text = "9";
    dialog.FER[0].Text = "30.00%";
    return Tell(Module1::ConfirmAssumptions(dialog, session, host));
}

int SaveOptions(const std::string& folder) {
    Session session = SessionIn(folder);
    const OptionsScreen dialog{{"Sun room"}, {"Larger deck"}};
    return Tell(Module1::ConfirmOptions(dialog, session));
}

int SaveHeader(const std::string& folder) {
    Session session = SessionIn(folder);
    HeaderOptions dialog;
    dialog.ecBuilderName.Text = "New Builder";
    dialog.ecLogoFile.Text = "/new.bmp";
    dialog.cboUserLogoOptions = 2;
    dialog.Features = {"Sun room", "Larger deck"};
    return Tell(Module1::ConfirmHeaderOptions(dialog, session));
}

int OpenHouses(const std::string& folder) {
    TellingHost host;
    HouseScenarios dialog;
    if (const Fault fault = Module1::OpenHouseScenarios(dialog, SessionIn(folder), host))
        return Tell(fault);
    return host.Told() ? NotSaved : Saved;
}

int SaveHouses(const std::string& folder) {
    HouseScenarios dialog;
    dialog.Houses = {{"Lot 7", 200'000, 2'400, 206'000, 1'700}, {"Lot 8", 1, 2, 3, 4}};
    return Tell(Module1::SaveHouseScenarios(dialog, SessionIn(folder)));
}

int SaveSetting(const std::string& folder) {
    return Tell(Module1::WriteSetting(SettingsFile(folder), "BUILDERNAME", "New Builder"));
}

int CreateMissing(const std::string& folder) {
    FeatureTexts features;
    return Tell(Module1::GetFeatures(SettingsFile(folder), features));
}

int Restore(const std::string& folder) {
    return Tell(SettingsFile(folder).RestoreInterruptedSave());
}

int Read(const std::string& folder) {
    const auto lines = SettingsFile(folder).ReadLines();
    return lines ? Saved : Tell(lines.Fault());
}

/// The value of a key that has one line.
std::string ValueIn(const FileLines& lines, const std::string& key) {
    const auto line = LastLineOf(lines, key);
    return line ? std::string(ValueOf(lines[*line].Text, key)) : "none";
}

// A "file in use" fault loses nothing, so the program tries again. On a busy machine, two programs that save
// without a pause can keep a third one waiting.

Outcome<FileLines> ReadWhenFree(const SettingsFile& file) {
    auto lines = file.ReadLines();
    while (!lines && lines.Fault().What == SettingsFault::Kind::Busy)
        lines = file.ReadLines();
    return lines;
}

Fault SaveWhenFree(const SettingsFile& file, const std::string& key, int value) {
    Fault fault = Module1::WriteSetting(file, key, std::to_string(value));
    while (fault && fault->What == SettingsFault::Kind::Busy)
        fault = Module1::WriteSetting(file, key, std::to_string(value));
    return fault;
}

/// Increments its own key and checks each time that its last save is still there.
int CountUp(const std::string& folder, const std::string& key, int rounds) {
    const SettingsFile file(folder);
    for (int round = 1; round <= rounds; ++round) {
        const auto lines = ReadWhenFree(file);
        if (!lines)
            return Tell(lines.Fault());
        if (ValueIn(*lines, key) != std::to_string(round - 1)) {
            std::cerr << key << " is " << ValueIn(*lines, key) << " in round " << round << '\n';
            return NotSaved;
        }
        if (const Fault fault = SaveWhenFree(file, key, round))
            return Tell(fault);
    }
    return Saved;
}

/// Reads until both counters have reached their end. No read may fail, lose lines or see a counter decrease.
int Watch(const std::string& folder, int rounds) {
    const SettingsFile file(folder);
    std::size_t lineCount = 0;
    std::vector<int> last{0, 0};
    long reads = 0;
    for (; last[0] < rounds || last[1] < rounds; ++reads) {
        const auto lines = ReadWhenFree(file);
        if (!lines)
            return Tell(lines.Fault());
        const std::vector<int> now{std::atoi(ValueIn(*lines, "COUNTA").c_str()),
                                   std::atoi(ValueIn(*lines, "COUNTB").c_str())};
        if ((lineCount != 0 && lines->size() != lineCount) || now[0] < last[0] || now[1] < last[1]) {
            std::cerr << "the reader saw " << lines->size() << " lines and the counters " << now[0] << ", "
                      << now[1] << " after " << last[0] << ", " << last[1] << '\n';
            return NotSaved;
        }
        lineCount = lines->size();
        last = now;
    }
    std::cout << reads << '\n';
    return Saved;
}

const std::map<std::string, std::function<int(const std::string&)>>& Actions() {
    static const std::map<std::string, std::function<int(const std::string&)>> actions = {
        {"taxes", SaveTaxes},        {"assumptions", SaveAssumptions},
        {"options", SaveOptions},    {"header", SaveHeader},
        {"open-houses", OpenHouses}, {"houses", SaveHouses},
        {"setting", SaveSetting},    {"create", CreateMissing},
        {"restore", Restore},        {"read", Read}};
    return actions;
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> words(argv + 1, argv + argc);
    if (words.size() == 2) {
        if (const auto action = Actions().find(words[0]); action != Actions().end())
            return action->second(words[1]);
    }
    if (words.size() == 4 && words[0] == "count")
        return CountUp(words[1], words[2], std::atoi(words[3].c_str()));
    if (words.size() == 3 && words[0] == "watch")
        return Watch(words[1], std::atoi(words[2].c_str()));
    std::cerr << "usage: fault_writer ACTION FOLDER | count FOLDER KEY ROUNDS | watch FOLDER ROUNDS\n";
    return WrongCall;
}
