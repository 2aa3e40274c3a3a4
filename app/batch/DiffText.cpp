#include "app/batch/DiffCommand.h"
#include "app/batch/InsightText.h"
#include "app/batch/JsonValues.h"

namespace Ledgrove {

namespace {

/// As in the fields of a result, the tax box is true or false.
void InputMember(Json::Writer& json, std::string_view name, const DiffInput& input, const std::string& text) {
    if (input.Input == "chkDoTax0")
        Json::Member(json, name, text == "true");
    else
        Json::Member(json, name, text);
}

void WriteParts(Json::Writer& json, const Diff& diff, const DiffFigure& figure) {
    Json::Key(json, "parts");
    if (!figure.Parts) {
        json.Null();
        return;
    }
    json.StartArray();
    for (std::size_t at = 0; at < diff.Inputs.size(); ++at) {
        json.StartObject();
        Json::Member(json, "input", diff.Inputs[at].Input);
        Json::Member(json, "amount", (*figure.Parts)[at]);
        json.EndObject();
    }
    json.EndArray();
}

void WriteInput(Json::Writer& json, const DiffInput& input) {
    json.StartObject();
    Json::Member(json, "input", input.Input);
    InputMember(json, "a", input, input.A);
    InputMember(json, "b", input, input.B);
    json.EndObject();
}

void WriteFigure(Json::Writer& json, const Diff& diff, const DiffFigure& figure) {
    json.StartObject();
    Json::Member(json, "figure", figure.Figure);
    Json::Member(json, "label", figure.Label);
    Json::Member(json, "a", figure.A);
    Json::Member(json, "b", figure.B);
    Json::Member(json, "change", figure.Change());
    WriteParts(json, diff, figure);
    json.EndObject();
}

} // namespace

void AppendDiffJson(std::string& out, const Diff& diff) {
    rapidjson::StringBuffer buffer;
    Json::Writer json(buffer);
    json.StartObject();
    Json::Key(json, "inputs");
    json.StartArray();
    for (const DiffInput& input : diff.Inputs)
        WriteInput(json, input);
    json.EndArray();
    Json::Key(json, "figures");
    json.StartArray();
    for (const DiffFigure& figure : diff.Figures)
        WriteFigure(json, diff, figure);
    json.EndArray();
    json.EndObject();
    out.append(buffer.GetString(), buffer.GetSize());
}

void AppendDiffText(std::string& out, const Diff& diff) {
    if (diff.Inputs.empty()) {
        out += DiffInputsSheet(diff).Sentence + "\n";
        return;
    }
    AppendSheetText(out, DiffInputsSheet(diff));
    out += '\n';
    if (diff.Figures.empty()) {
        out += DiffFiguresSheet(diff).Sentence + "\n";
        return;
    }
    AppendSheetText(out, DiffFiguresSheet(diff));
    out += '\n';
    AppendSheetText(out, DiffPartsSheet(diff, *diff.MainFigure()));
}

} // namespace Ledgrove
