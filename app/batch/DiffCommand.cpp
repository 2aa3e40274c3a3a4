#include "app/batch/DiffCommand.h"

#include <algorithm>
#include <optional>
#include <unistd.h>
#include <utility>

#include "app/batch/Comparison.h"
#include "app/batch/ExitStatus.h"
#include "app/batch/InputFile.h"
#include "app/batch/JsonText.h"
#include "app/batch/JsonValues.h"
#include "app/batch/ObjectInput.h"
#include "app/batch/OutputBuffer.h"
#include "app/batch/SettingsCommand.h"
#include "ui/StartUp.h"

namespace Ledgrove {

namespace {

int Print(std::string text) {
    OutputBuffer output(STDOUT_FILENO);
    output.Text() = std::move(text);
    output.Flush();
    return output.Failure().empty() ? AllWell
                                    : Complain(UnwrittenOutput("differences", output.Failure()), CannotRun);
}

/// One of the two comparisons.
struct Side {
    std::string File; ///< empty for standard input
    MainScreen Screen;
    std::optional<Refusal> Refused;
    std::string Missing; ///< why it has no figures; empty if it has
};

std::string Named(const Side& side, const std::string& sentence) {
    return (side.File.empty() ? "standard input" : side.File) + ": " + sentence;
}

/// {"missing": ...} with the file, as refusals have it.
std::string MissingJson(const Side& side) {
    rapidjson::StringBuffer buffer;
    Json::Writer json(buffer);
    json.StartObject();
    if (!side.File.empty())
        Json::Member(json, "file", side.File);
    Json::Member(json, "missing", side.Missing);
    json.EndObject();
    return {buffer.GetString(), buffer.GetSize()};
}

/// Says why a comparison cannot be used.
int Refuse(const Side& side, bool asJson) {
    if (!asJson)
        return Complain(Named(side, side.Refused ? RefusalSentence(*side.Refused) : side.Missing),
                        SomeRefused);
    std::string out;
    if (side.Refused)
        AppendRefusalJson(out, *side.Refused, side.File);
    else
        out = MissingJson(side);
    return std::max(Print(out + '\n'), int{SomeRefused});
}

/// Returns a message if the file cannot be read, else "".
std::string ReadSide(const std::string& file, const Session& start, Side& side) {
    if (file == "-")
        SayIfTerminal(STDIN_FILENO);
    Comparison comparison(start);
    ObjectInput read = RunObjectFile(file, comparison);
    if (!read.Unreadable.empty())
        return UnreadableInput(file, read.Unreadable);
    side.File = file == "-" ? "" : file;
    side.Refused = std::move(read.Refused);
    side.Screen = comparison.State().Screen;
    if (!side.Refused)
        side.Missing = Insight(side.Screen, start).Missing();
    return {};
}

} // namespace

std::string DiffCommand::ReadFormat(const std::string& name, const WordFault& fault) {
    return ReadFormatName(name, {"text", "json"}, m_format, fault);
}

int DiffCommand::Run(const std::filesystem::path& folder, const std::string& a, const std::string& b) const {
    if (a == "-" && b == "-")
        return Complain("Standard input can be only one of the two comparisons. Give a file for the other.",
                        CannotRun);
    Session start;
    CollectingHost host;
    if (const auto fault = Module1::LoadMainScreen(start, host, folder))
        return Complain(Sentence(*fault), CannotRun);
    WarnOfSettings(folder);
    Side sideA;
    Side sideB;
    for (const auto& [file, side] : {std::pair(a, &sideA), std::pair(b, &sideB)}) {
        if (const std::string fault = ReadSide(file, start, *side); !fault.empty())
            return Complain(fault, CannotRun);
        if (side->Refused || !side->Missing.empty())
            return Refuse(*side, m_format == Format::Json);
    }
    const Diff diff = ComputeDiff(Insight(sideA.Screen, start), Insight(sideB.Screen, start));
    std::string out;
    if (m_format == Format::Text) {
        AppendDiffText(out, diff);
    } else {
        AppendDiffJson(out, diff);
        out += '\n';
    }
    return Print(std::move(out));
}

} // namespace Ledgrove
