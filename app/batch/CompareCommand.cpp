#include "app/batch/CompareCommand.h"

#include <algorithm>
#include <memory>
#include <unistd.h>

#include "app/batch/CsvCompare.h"
#include "app/batch/InputFile.h"
#include "app/batch/JsonCompare.h"
#include "app/batch/ParallelJson.h"
#include "app/batch/Warnings.h"
#include "base/Text.h"
#include "settings/HouseListFile.h"
#include "ui/HouseScenarios.h"

namespace Ledgrove {

namespace {

std::unique_ptr<ComparisonReader> MakeReader(const CompareRequest& request, const Session& start,
                                             Comparison& comparison, CsvRun& list, const std::string& name) {
    const JsonOptions options{name == "-" ? "" : name, request.Only};
    switch (request.Format) {
    case CompareFormat::JsonLines:
        if (request.Jobs > 1)
            return std::make_unique<ParallelJsonReader>(start, request.Jobs, options);
        return std::make_unique<JsonLinesReader>(comparison, options);
    case CompareFormat::Csv:
        return std::make_unique<CsvReader>(comparison, list);
    case CompareFormat::Json:
        return std::make_unique<JsonReader>(comparison, JsonReader::Result::Json, options);
    case CompareFormat::Text:
        break;
    }
    return std::make_unique<JsonReader>(comparison, JsonReader::Result::Table, options);
}

/// The totals of all files and where the first refusal is.
struct RunTotal {
    Tally Sum;
    std::string FirstFile;
    int Status = AllWell;

    void Add(const Tally& tally, const std::string& file) {
        if (Sum.Refused == 0)
            FirstFile = file;
        Sum.Add(tally);
        if (!tally.AllWell())
            Status = std::max(Status, int{SomeRefused});
    }
};

/// One object has its own message; lists end with their totals.
void TellTotal(const CompareRequest& request, const RunTotal& total) {
    const bool isList = request.Format == CompareFormat::JsonLines || request.Format == CompareFormat::Csv;
    if (!isList || request.Quiet || total.Sum.Refused == 0)
        return;
    std::string place = "line " + std::to_string(total.Sum.FirstRefused);
    if (request.Files.size() > 1)
        place += " of " + Quoted(total.FirstFile);
    const bool one = total.Sum.Refused == 1;
    Complain(std::to_string(total.Sum.Refused) + " of " + std::to_string(total.Sum.Compared) +
                 (one ? " comparisons was refused; it is " : " comparisons were refused; the first is ") +
                 place + ".",
             AllWell);
}

void ReadFile(const std::string& name, bool quiet, ComparisonReader& reader, OutputBuffer& output,
              RunTotal& total) {
    const InputFile file(name);
    if (file.Number() < 0) {
        total.Status = Complain(UnreadableInput(name, file.Failure()), CannotRun);
        return;
    }
    if (!quiet)
        SayIfTerminal(file.Number());
    LineReader lines(file.Number(), [&reader, &output] { reader.BeforeWaiting(output); });
    const Tally tally = reader.Read(lines, output);
    if (!lines.Failure().empty()) {
        total.Status = Complain(UnreadableInput(name, lines.Failure()), CannotRun);
        return;
    }
    if (tally.Empty)
        Complain(EmptyInput(name), SomeRefused);
    total.Add(tally, name);
}

} // namespace

std::string StartWithHouse(Session& session, std::string_view name) {
    const SettingsFile file(session.Folder);
    HouseScenarios scenarios;
    if (const auto fault = Module1::LoadHomeList(file, scenarios.Houses))
        return Sentence(*fault);
    Module1::SelectHouse(scenarios, Module1::FindHouse(scenarios.Houses, name));
    if (!scenarios.HasSelection())
        return "There is no house named " + Quoted(name) + " in " + Quoted(file.Path().string()) +
               ". \"ledgrove-cli settings houses\" lists the saved houses.";
    Module1::ChooseHouse(scenarios, session);
    return {};
}

int PrintResultNames() {
    OutputBuffer output(STDOUT_FILENO);
    output.Text() = ResultNameTable();
    output.Flush();
    return output.Failure().empty() ? AllWell
                                    : Complain(UnwrittenOutput("names", output.Failure()), CannotRun);
}

int RunCompare(const CompareRequest& request, const Session& start) {
    Comparison comparison(start);
    const bool isList = request.Format == CompareFormat::Csv;
    const ChosenNames results = isList && request.Only.empty() ? MainResults() : request.Only;
    if (request.Format != CompareFormat::Text)
        comparison.Show(LabelsFor(results));
    OutputBuffer output(STDOUT_FILENO);
    RunTotal total;
    CsvRun list;
    list.Results = CsvResults(results);
    for (const std::string& name : request.Files.empty() ? std::vector<std::string>{"-"} : request.Files) {
        Warnings warnings(name);
        list.Warn = [&](const std::string& sentence) {
            if (!request.Quiet)
                warnings.Add(sentence);
        };
        list.Refuse = [&warnings](const std::string& sentence) { warnings.Add(sentence); };
        const auto reader = MakeReader(request, start, comparison, list, name);
        ReadFile(name, request.Quiet, *reader, output, total);
    }
    output.Flush();
    if (!output.Failure().empty())
        return Complain(UnwrittenOutput("results", output.Failure()), CannotRun);
    TellTotal(request, total);
    return total.Status;
}

} // namespace Ledgrove
