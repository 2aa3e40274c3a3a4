#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <unistd.h>
#include <vector>

#include "app/batch/CompareCommand.h"
#include "app/batch/SettingsCommand.h"
#include "app/cli/CommandWords.h"
#include "app/options/CommandLine.h"
#include "base/ProgramFolder.h"
#include "base/SystemError.h"
#include "base/Text.h"
#include "ui/StartUp.h"

namespace {

using namespace Ledgrove;

/// Commands that need Qt are separate programs in the same folder, named after the command, which is the
/// first word.
int HandOver(const std::vector<std::string>& words) {
    const std::string& verb = words.front();
    const std::string program = (ProgramFolder() / ("ledgrove-" + verb)).string();
    std::vector<char*> arguments;
    for (const std::string& word : words)
        arguments.push_back(const_cast<char*>(word.c_str())); // execv does not change them
    arguments.push_back(nullptr);
    ::execv(program.c_str(), arguments.data());
    const int error = errno;
    return Complain(Quoted(program) + " cannot be started (" + Describe(error) + "). The command " +
                        Quoted(verb) + " needs that program in the folder of ledgrove-cli.",
                    CannotRun);
}

int Compare(const std::filesystem::path& folder, const CompareRequest& request) {
    if (request.ListNames)
        return PrintResultNames();
    Session session;
    CollectingHost host;
    if (const auto fault = Module1::LoadMainScreen(session, host, folder))
        return Complain(Sentence(*fault), CannotRun);
    WarnOfSettings(folder);
    if (!request.House.empty()) {
        if (const std::string sentence = StartWithHouse(session, request.House); !sentence.empty())
            return Complain(sentence, CannotRun);
    }
    return RunCompare(request, session);
}

std::optional<CompareFormat> FormatNamed(const std::string& name) {
    if (name == "text")
        return CompareFormat::Text;
    if (name == "json")
        return CompareFormat::Json;
    if (name == "jsonl")
        return CompareFormat::JsonLines;
    if (name == "csv")
        return CompareFormat::Csv;
    return std::nullopt;
}

constexpr int mostJobs = 256;

std::string ReadFormat(const std::string& name, CompareFormat& format) {
    const auto named = FormatNamed(name);
    if (!named)
        return Quoted(name) + " is not a format. Choose text, json, jsonl or csv.";
    format = *named;
    return {};
}

CLI::App* AddCompare(CLI::App& app, std::string& folder, CompareRequest& request) {
    auto* compare =
        app.add_subcommand("compare", "Compare a base home with an energy-efficiency-labelled home");
    AddCommon(*compare, "ledgrove-cli", folder, "ledgrove-cli compare --format csv prices.csv > results.csv");
    AddRead(
        *compare, "--format", [&](const std::string& name) { return ReadFormat(name, request.Format); },
        "text|json|jsonl|csv",
        "text (default): one JSON object in, a table out; json: one object in, one out; jsonl: one object "
        "per "
        "line; csv: a price list with a heading row");
    AddRead(
        *compare, "--columns", [&](const std::string& names) { return ReadResultNames(names, request.Only); },
        "LIST", "csv: these results instead of the main ones; the names are those of --list-names");
    AddRead(
        *compare, "--only", [&](const std::string& names) { return ReadResultNames(names, request.Only); },
        "LIST", "json and jsonl: only these results");
    compare->add_flag("--list-names", request.ListNames, "List the names of all results and end");
    compare->add_option("--house", request.House, "Start with the four amounts of this saved house scenario")
        ->type_name("NAME");
    compare->add_flag("--quiet", request.Quiet, "No warnings and no totals on standard error");
    request.Jobs = std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
    compare
        ->add_option("--jobs", request.Jobs,
                     "Threads for jsonl, 1 to 256 (default: one for each core); the results keep their order")
        ->check(CLI::Range(1, mostJobs))
        ->type_name("N");
    compare->add_option("FILE", request.Files, "Files with the inputs; standard input if none or \"-\"")
        ->type_name("");
    return compare;
}

/// Why the choice of results does not fit the format; empty if it does.
std::string ChoiceFault(const CLI::App& compare, const CompareRequest& request) {
    const bool isCsv = request.Format == CompareFormat::Csv;
    const bool isJson = request.Format == CompareFormat::Json || request.Format == CompareFormat::JsonLines;
    if (compare.count("--columns") > 0 && !isCsv)
        return "--columns is for --format csv. For json and jsonl use --only.";
    if (compare.count("--only") > 0 && !isJson)
        return "--only is for --format json and jsonl. For csv use --columns.";
    return {};
}

struct SettingsActions {
    CLI::App* Get;
    CLI::App* Set;
    CLI::App* Check;
    CLI::App* Houses;
};

/// What the words of "settings" say.
struct SettingsRequest {
    std::string Key;
    std::string Value;
    bool Force = false;
};

SettingsActions AddSettings(CLI::App& app, std::string& folder, SettingsRequest& request) {
    auto* settings = app.add_subcommand("settings", "Read and change Ledgrove.ini");
    AddCommon(*settings, "ledgrove-cli", folder, "ledgrove-cli settings set BUILDERNAME \"Acme Homes\"");
    settings->require_subcommand(1);
    auto* get = settings->add_subcommand("get", "Print the value of a key");
    get->add_option("KEY", request.Key, "Such as YEARS_IN_HOME")->required()->type_name("");
    auto* set = settings->add_subcommand("set", "Change the value of a key");
    set->add_flag("--force", request.Force, "Write a key that is not a setting of Ledgrove");
    set->add_option("KEY", request.Key, "Such as YEARS_IN_HOME")->required()->type_name("");
    set->add_option("VALUE", request.Value, "May begin with \"-\"")->required()->type_name("");
    auto* check = settings->add_subcommand("check", "Name the lines that cannot be used");
    auto* houses = settings->add_subcommand("houses", "List the saved house scenarios");
    // Accepts --folder before and after the verb.
    for (CLI::App* verb : {get, set, check, houses})
        verb->fallthrough();
    return {get, set, check, houses};
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> words = CommandFirst(WordsOf(argc, argv));
    if (const std::string fault = CommandFault(words); !fault.empty())
        return Complain(fault, CannotRun);
    // The other programs parse their own arguments.
    if (words.front() == "report" || words.front() == "chart")
        return HandOver(words);
    CLI::App app("Ledgrove compares a base home with an energy-efficiency-labelled home.", "ledgrove-cli");
    std::string folder = ProgramFolder().string();
    AddCommon(app, "ledgrove-cli", folder, "ledgrove-cli compare home.ledgrove.json");
    app.require_subcommand(1);
    app.add_subcommand("report", "Write the report of a comparison as PDF (ledgrove-cli report --help)");
    app.add_subcommand("chart", "Write a chart of a comparison as a picture (ledgrove-cli chart --help)");
    SettingsRequest setting;
    CompareRequest request;
    const CLI::App* compare = AddCompare(app, folder, request);
    const SettingsActions settings = AddSettings(app, folder, setting);
    if (const auto status = Parse(app, ParserWords(words)))
        return *status;
    if (*compare) {
        const std::string fault = ChoiceFault(*compare, request);
        return fault.empty() ? Compare(folder, request) : Complain(fault, CannotRun);
    }
    if (*settings.Get)
        return PrintSetting(folder, setting.Key);
    if (*settings.Set)
        return ChangeSetting(folder, setting.Key, setting.Value,
                             setting.Force ? UnknownKeys::Accepted : UnknownKeys::Refused);
    if (*settings.Check)
        return PrintSettingsCheck(folder);
    return PrintHouses(folder);
}
