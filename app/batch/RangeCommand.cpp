#include "app/batch/RangeCommand.h"

#include <algorithm>
#include <unistd.h>
#include <utility>

#include "app/batch/Comparison.h"
#include "app/batch/ExitStatus.h"
#include "app/batch/InputFile.h"
#include "app/batch/InsightText.h"
#include "app/batch/JsonText.h"
#include "app/batch/ObjectInput.h"
#include "app/batch/OutputBuffer.h"
#include "app/batch/RangeText.h"
#include "app/batch/SettingsCommand.h"
#include "base/Text.h"
#include "settings/HouseListFile.h"
#include "ui/HouseRange.h"
#include "ui/StartUp.h"

namespace Ledgrove {

namespace {

constexpr std::string_view allPairs = "all";

std::vector<std::string> OptionNames() {
    std::vector<std::string> names;
    for (const OptionPair& pair : OptionPairs())
        names.emplace_back(pair.Labelled.Text);
    return names;
}

int Print(const std::string& text) {
    OutputBuffer output(STDOUT_FILENO);
    output.Text() = text;
    output.Flush();
    return output.Failure().empty() ? AllWell
                                    : Complain(UnwrittenOutput("rows", output.Failure()), CannotRun);
}

} // namespace

std::string RangeCommand::ReadFormat(const std::string& name, const WordFault& fault) {
    return ReadFormatName(name, {"text", "json", "csv"}, m_format, fault);
}

std::string RangeCommand::ReadOptions(const std::string& list, const WordFault& fault) {
    const auto pairs = OptionPairs();
    const std::vector<std::string> names = OptionNames();
    std::vector<bool> isChosen(pairs.size(), Trimmed(list, " ") == allPairs);
    for (std::size_t start = 0; start <= list.size() && !isChosen.front();) {
        const std::size_t end = std::min(list.find(',', start), list.size());
        const std::string name(Trimmed(std::string_view(list).substr(start, end - start), " "));
        start = end + 1;
        const auto found = std::find(names.begin(), names.end(), name);
        if (found == names.end())
            return fault("mortgage option", name, names);
        isChosen[static_cast<std::size_t>(found - names.begin())] = true;
    }
    // The rows have the order of the lists, and each pair once.
    m_pairs.clear();
    for (std::size_t at = 0; at < pairs.size(); ++at) {
        if (isChosen[at])
            m_pairs.push_back(pairs[at]);
    }
    return {};
}

Range RangeCommand::Compute(const Session& session, const HouseList& houses) const {
    return ComputeHouseRange(session, houses, {m_pairs, !WithoutLimits}).value_or(Range());
}

int RangeCommand::Write(const Range& range) const {
    std::string out;
    switch (m_format) {
    case Format::Text:
        AppendSheetText(out, RangeSheet(range));
        break;
    case Format::Json:
        AppendRangeJson(out, range);
        out += '\n';
        break;
    case Format::Csv:
        AppendRangeCsv(out, range);
        break;
    }
    const int status = Print(out);
    return status == AllWell ? TellRowsWithout(range) : status;
}

int RangeCommand::Run(const std::filesystem::path& folder, const std::string& file) const {
    Session start;
    CollectingHost host;
    if (const auto fault = Module1::LoadMainScreen(start, host, folder))
        return Complain(Sentence(*fault), CannotRun);
    WarnOfSettings(folder);
    HouseList houses;
    if (const std::string fault = LoadHouses(folder, houses); !fault.empty())
        return Complain(fault, CannotRun);
    if (file == "-")
        SayIfTerminal(STDIN_FILENO);
    Comparison comparison(start);
    const ObjectInput read = RunObjectFile(file, comparison);
    if (!read.Unreadable.empty())
        return Complain(UnreadableInput(file, read.Unreadable), CannotRun);
    const std::string name = file == "-" ? "" : file;
    if (read.Refused && m_format == Format::Json) {
        std::string out;
        AppendRefusalJson(out, *read.Refused, name);
        return std::max(Print(out + '\n'), int{SomeRefused});
    }
    if (read.Refused)
        return Complain((name.empty() ? "" : name + ": ") + RefusalSentence(*read.Refused), SomeRefused);
    return Write(Compute(comparison.State(), houses));
}

std::string LoadHouses(const std::filesystem::path& folder, HouseList& houses) {
    const auto fault = Module1::LoadHomeList(SettingsFile(folder), houses);
    return fault ? Sentence(*fault) : "";
}

int TellRowsWithout(const Range& range) {
    const auto lacks = [](const RangeRow& row) { return !row.Missing.empty(); };
    const auto lacking = std::count_if(range.Rows.begin(), range.Rows.end(), lacks);
    if (lacking == 0)
        return AllWell;
    const RangeRow& first = *std::find_if(range.Rows.begin(), range.Rows.end(), lacks);
    return Complain(std::to_string(lacking) + " of " + std::to_string(range.Rows.size()) +
                        (lacking == 1 ? " rows has no figures; it is that of the house "
                                      : " rows have no figures; the first is that of the house ") +
                        Quoted(first.House) + ": " + first.Missing,
                    SomeRefused);
}

} // namespace Ledgrove
