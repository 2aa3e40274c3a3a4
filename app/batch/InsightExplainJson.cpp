#include "app/batch/InsightExplainJson.h"

namespace Ledgrove::Json {

namespace {

void WriteFigure(Writer& json, const Explanation& explanation, const ExplainedFigure& figure) {
    json.StartObject();
    Member(json, "figure", figure.Figure);
    Key(json, "labels");
    json.StartArray();
    for (const std::string_view label : figure.Labels)
        Text(json, label);
    json.EndArray();
    Member(json, "caption", figure.Caption);
    Member(json, "text", figure.Text);
    Member(json, "value", figure.Value);
    if (figure.IsLeaf()) {
        Member(json, "from", figure.From);
    } else {
        Member(json, "expression", figure.Expression);
        Key(json, "values");
        json.StartObject();
        for (const std::string& name : figure.Values)
            Member(json, name, explanation.Find(name)->Value);
        json.EndObject();
    }
    Member(json, "because", figure.Because);
    json.EndObject();
}

} // namespace

void WriteTakeaway(Writer& json, const Takeaway& takeaway) {
    json.StartObject();
    Key(json, "sentences");
    json.StartArray();
    for (const std::string& sentence : takeaway.Sentences)
        Text(json, sentence);
    json.EndArray();
    json.EndObject();
}

void WriteExplanation(Writer& json, const Explanation& explanation) {
    json.StartObject();
    Key(json, "figures");
    json.StartArray();
    for (const ExplainedFigure& figure : explanation.Figures)
        WriteFigure(json, explanation, figure);
    json.EndArray();
    json.EndObject();
}

} // namespace Ledgrove::Json
