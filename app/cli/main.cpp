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
#include "app/batch/DiffCommand.h"
#include "app/batch/SettingsCommand.h"
#include "app/cli/CommandWords.h"
#include "app/options/CommandLine.h"
#include "app/options/CommandTable.h"
#include "app/options/InsightOptions.h"
#include "app/options/RangeOptions.h"
#include "base/ProgramFolder.h"
#include "base/SystemError.h"
#include "base/Text.h"
#include "ui/StartUp.h"

namespace {

using namespace Ledgrove;

/// What needs Qt is done by separate programs in the same folder. They get the words with the command in
/// front; `needing` names the command or option in a message.
int HandOver(const std::string& name, const std::string& needing, const std::vector<std::string>& words) {
    const std::string program = (ProgramFolder() / name).string();
    std::vector<char*> arguments;
    for (const std::string& word : words)
        arguments.push_back(const_cast<char*>(word.c_str())); // execv does not change them
    arguments.push_back(nullptr);
    ::execv(program.c_str(), arguments.data());
    const int error = errno;
    return Complain(Quoted(program) + " cannot be started (" + Describe(error) + "). The " + needing +
                        " needs that program in the folder of ledgrove-cli.",
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

/// A command of ledgrove-cli with its row's words.
CLI::App* AddCommand(CLI::App& app, const std::string& name, const std::string& fullName) {
    return app.add_subcommand(name, std::string(CommandNamed(fullName).Summary));
}

CLI::App* AddCompare(CLI::App& app, std::string& folder, CompareRequest& request) {
    CLI::App* const compare = AddCommand(app, "compare", "ledgrove-cli compare");
    CommandOptions options(*compare, "ledgrove-cli compare", folder);
    const auto readNames = [&](const std::string& names) {
        request.Only.clear();
        return ReadResultNames(names, request.Only);
    };
    options.Read("--format", [&](const std::string& name) { return ReadFormat(name, request.Format); });
    options.Read("--columns", readNames);
    options.Read("--only", readNames);
    options.Flag("--list-names", request.ListNames);
    options.Take("--house", request.House);
    options.Flag("--quiet", request.Quiet);
    request.Jobs = std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
    options.Number("--jobs", request.Jobs, 1, mostJobs);
    options.Take("FILE", request.Files);
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

/// Runs a command that prints, or that writes PDF with --output.
template <typename Arguments>
int PrintOrWrite(const CLI::App& app, const std::filesystem::path& folder, const Arguments& arguments,
                 const std::vector<std::string>& words) {
    if (const std::string fault = PaperChoiceFault(app); !fault.empty())
        return Complain(fault, CannotRun);
    if (app.count("--output") > 0)
        return HandOver("ledgrove-report", "option --output", words);
    return arguments.Command.Run(folder, arguments.Input);
}

struct DiffRequest {
    DiffCommand Command;
    std::string A;
    std::string B;
};

CLI::App* AddDiff(CLI::App& app, std::string& folder, DiffRequest& request) {
    CLI::App* const diff = AddCommand(app, "diff", "ledgrove-cli diff");
    CommandOptions options(*diff, "ledgrove-cli diff", folder);
    options.Read("--format",
                 [&](const std::string& name) { return request.Command.ReadFormat(name, UnknownWord); });
    options.Take("A", request.A);
    options.Take("B", request.B);
    return diff;
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
    CLI::App* const settings = AddCommand(app, "settings", "ledgrove-cli settings");
    const CommandOptions common(*settings, "ledgrove-cli settings", folder);
    settings->require_subcommand(1);
    const auto add = [&](const std::string& verb) {
        return AddCommand(*settings, verb, "ledgrove-cli settings " + verb);
    };
    const SettingsActions actions{add("get"), add("set"), add("check"), add("houses")};
    CommandOptions get(*actions.Get, "ledgrove-cli settings get", folder);
    get.Take("KEY", request.Key);
    CommandOptions set(*actions.Set, "ledgrove-cli settings set", folder);
    set.Flag("--force", request.Force);
    set.Take("KEY", request.Key);
    set.Take("VALUE", request.Value);
    const CommandOptions check(*actions.Check, "ledgrove-cli settings check", folder);
    const CommandOptions houses(*actions.Houses, "ledgrove-cli settings houses", folder);
    return actions;
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> words = CommandFirst(WordsOf(argc, argv));
    if (const std::string fault = CommandFault(words); !fault.empty())
        return Complain(fault, CannotRun);
    // The other programs parse their own arguments.
    const std::string& command = words.front();
    if (command == "report" || command == "brief" || command == "chart")
        return HandOver(command == "chart" ? "ledgrove-chart" : "ledgrove-report",
                        "command " + Quoted(command), words);
    CLI::App app(SummaryOf("ledgrove-cli"), "ledgrove-cli");
    std::string folder = ProgramFolder().string();
    const CommandOptions common(app, "ledgrove-cli", folder);
    app.require_subcommand(1);
    SettingsRequest setting;
    CompareRequest request;
    const CLI::App* compare = AddCompare(app, folder, request);
    InsightArguments insight;
    CLI::App* const answers = AddCommand(app, "insight", "ledgrove-cli insight");
    AddInsightOptions(*answers, folder, insight, "ledgrove-cli");
    RangeArguments range;
    CLI::App* const rows = AddCommand(app, "range", "ledgrove-cli range");
    AddRangeOptions(*rows, folder, range, "ledgrove-cli");
    DiffRequest diff;
    CLI::App* const differences = AddDiff(app, folder, diff);
    AddCommand(app, "report", "ledgrove-cli report");
    AddCommand(app, "brief", "ledgrove-cli brief");
    AddCommand(app, "chart", "ledgrove-cli chart");
    const SettingsActions settings = AddSettings(app, folder, setting);
    if (const auto status = Parse(app, ParserWords(words)))
        return *status;
    if (*compare) {
        const std::string fault = ChoiceFault(*compare, request);
        return fault.empty() ? Compare(folder, request) : Complain(fault, CannotRun);
    }
    if (*answers)
        return PrintOrWrite(*answers, folder, insight, words);
    if (*rows)
        return PrintOrWrite(*rows, folder, range, words);
    if (*differences)
        return diff.Command.Run(folder, diff.A, diff.B);
    if (*settings.Get)
        return PrintSetting(folder, setting.Key);
    if (*settings.Set)
        return ChangeSetting(folder, setting.Key, setting.Value,
                             setting.Force ? UnknownKeys::Accepted : UnknownKeys::Refused);
    if (*settings.Check)
        return PrintSettingsCheck(folder);
    return PrintHouses(folder);
}
