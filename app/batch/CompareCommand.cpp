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
                                             Comparison& comparison, CsvRun& list) {
    switch (request.Format) {
    case CompareFormat::JsonLines:
        if (request.Jobs > 1)
            return std::make_unique<ParallelJsonReader>(start, request.Jobs);
        return std::make_unique<JsonLinesReader>(comparison);
    case CompareFormat::Csv:
        return std::make_unique<CsvReader>(comparison, list);
    case CompareFormat::Json:
        return std::make_unique<JsonReader>(comparison, JsonReader::Result::Json);
    case CompareFormat::Text:
        break;
    }
    return std::make_unique<JsonReader>(comparison, JsonReader::Result::Table);
}

int ReadFile(const std::string& name, ComparisonReader& reader, OutputBuffer& output) {
    const InputFile file(name);
    if (file.Number() < 0)
        return Complain(UnreadableInput(name, file.Failure()), CannotRun);
    LineReader lines(file.Number(), [&reader, &output] { reader.BeforeWaiting(output); });
    const bool allWell = reader.Read(lines, output);
    if (!lines.Failure().empty())
        return Complain(UnreadableInput(name, lines.Failure()), CannotRun);
    return allWell ? AllWell : SomeRefused;
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

int RunCompare(const CompareRequest& request, const Session& start) {
    Comparison comparison(start);
    OutputBuffer output(STDOUT_FILENO);
    int status = AllWell;
    CsvRun list;
    for (const std::string& name : request.Files.empty() ? std::vector<std::string>{"-"} : request.Files) {
        Warnings warnings(name);
        list.Warn = [&warnings](const std::string& sentence) { warnings.Add(sentence); };
        const auto reader = MakeReader(request, start, comparison, list);
        status = std::max(status, ReadFile(name, *reader, output));
    }
    output.Flush();
    if (!output.Failure().empty())
        return Complain(UnwrittenOutput("results", output.Failure()), CannotRun);
    return status;
}

} // namespace Ledgrove
