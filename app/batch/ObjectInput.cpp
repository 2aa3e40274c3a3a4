#include "app/batch/ObjectInput.h"

#include "app/batch/InputFile.h"
#include "app/batch/JsonInput.h"

namespace Ledgrove {

namespace {

std::optional<std::string> ReadWhole(LineReader& lines, std::size_t& tooLongLine) {
    std::string text;
    while (const auto line = lines.Next()) {
        if (line->TooLong || text.size() + line->Text.size() > LongestLine) {
            tooLongLine = line->Number;
            return std::nullopt;
        }
        text.append(line->Text).append("\n");
    }
    return text;
}

} // namespace

std::optional<Refusal> RunObject(LineReader& lines, Comparison& comparison, InputRecord& inputs) {
    std::size_t tooLongLine = 0;
    const auto json = ReadWhole(lines, tooLongLine);
    if (!json)
        return InputTooLong(tooLongLine);
    if (auto refusal = ReadJsonObject(*json, inputs))
        return refusal;
    auto refusal = comparison.Run(inputs);
    if (refusal)
        refusal->Line = 1;
    return refusal;
}

ObjectInput RunObjectFile(const std::string& name, Comparison& comparison) {
    const InputFile file(name);
    if (file.Number() < 0)
        return {file.Failure(), {}, {}};
    LineReader lines(file.Number(), [] {});
    ObjectInput read;
    read.Refused = RunObject(lines, comparison, read.Inputs);
    if (!lines.Failure().empty())
        read.Unreadable = lines.Failure();
    return read;
}

} // namespace Ledgrove
