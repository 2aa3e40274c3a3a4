#include "app/pages/ResultPages.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

#include "app/batch/CsvResults.h"
#include "app/batch/ResultNames.h"

namespace Ledgrove {

namespace {

using Writer = rapidjson::PrettyWriter<rapidjson::StringBuffer>;

void Put(Writer& writer, std::string_view key, std::string_view text) {
    writer.Key(key.data(), static_cast<rapidjson::SizeType>(key.size()));
    writer.String(text.data(), static_cast<rapidjson::SizeType>(text.size()));
}

void PutKey(Writer& writer, std::string_view key) {
    writer.Key(key.data(), static_cast<rapidjson::SizeType>(key.size()));
}

void PutList(Writer& writer, std::string_view key, const std::vector<std::string>& texts) {
    PutKey(writer, key);
    writer.StartArray();
    for (const std::string& text : texts)
        writer.String(text.c_str());
    writer.EndArray();
}

void PutReference(Writer& writer, std::string_view definition) {
    Put(writer, "$ref", "#/$defs/" + std::string(definition));
}

std::string Described(const ResultName& name) {
    return name.Unit == "as shown" ? name.Meaning : name.Meaning + " (" + name.Unit + ")";
}

void PutType(Writer& writer, const ResultName& name) {
    if (std::holds_alternative<Label MainScreen::*>(name.Value))
        return PutReference(writer, "label");
    if (std::holds_alternative<const FigureEntry*>(name.Value))
        return Put(writer, "type", "number");
    const ResultPart* const part = std::get_if<ResultPart>(&name.Value);
    if (!part)
        return Put(writer, "type", "string");
    switch (*part) {
    case ResultPart::DownOption:
        PutKey(writer, "enum");
        writer.StartArray();
        writer.Int(0);
        writer.Int(1);
        writer.EndArray();
        return;
    case ResultPart::YearsInHome:
        return Put(writer, "type", "integer");
    case ResultPart::Messages:
        Put(writer, "type", "array");
        PutKey(writer, "items");
        writer.StartObject();
        PutReference(writer, "message");
        writer.EndObject();
        return;
    case ResultPart::DataCheck:
        return Put(writer, "type", "string");
    case ResultPart::TaxBox:
    case ResultPart::DownAsPercent:
    case ResultPart::EEMNoticeFlag:
        return Put(writer, "type", "boolean");
    }
}

void PutProperty(Writer& writer, std::string_view key, const ResultName& name) {
    PutKey(writer, key);
    writer.StartObject();
    Put(writer, "description", Described(name));
    PutType(writer, name);
    writer.EndObject();
}

/// The members of a result in their order.
std::vector<std::string> Members() {
    std::vector<std::string> members;
    for (const ResultName& name : ResultNames())
        if (members.empty() || members.back() != name.Member)
            members.push_back(name.Member);
    return members;
}

std::vector<std::string> KeysOf(std::string_view member) {
    std::vector<std::string> keys;
    for (const ResultName& name : ResultNames())
        if (name.Member == member && !name.Key.empty())
            keys.push_back(name.Key);
    return keys;
}

/// The definition of a member, first without required keys, as --only gives it.
void PutMember(Writer& writer, const std::string& member) {
    PutKey(writer, member);
    writer.StartObject();
    Put(writer, "type", "object");
    PutKey(writer, "properties");
    writer.StartObject();
    for (const ResultName& name : ResultNames())
        if (name.Member == member)
            PutProperty(writer, name.Key, name);
    writer.EndObject();
    writer.EndObject();
}

/// Every member, as far as it was asked for.
void PutPart(Writer& writer) {
    PutKey(writer, "part");
    writer.StartObject();
    Put(writer, "description", "What --only gives: these members as far as they were asked for");
    Put(writer, "type", "object");
    PutKey(writer, "properties");
    writer.StartObject();
    for (const std::string& member : Members()) {
        if (const ResultName* const whole = FindResultName(member)) {
            PutProperty(writer, member, *whole);
            continue;
        }
        PutKey(writer, member);
        writer.StartObject();
        PutReference(writer, member);
        writer.EndObject();
    }
    writer.EndObject();
    writer.EndObject();
}

/// A whole result: a part with everything in it.
void PutResult(Writer& writer) {
    PutKey(writer, "result");
    writer.StartObject();
    PutReference(writer, "part");
    PutList(writer, "required", Members());
    PutKey(writer, "properties");
    writer.StartObject();
    for (const std::string& member : Members()) {
        if (FindResultName(member))
            continue;
        PutKey(writer, member);
        writer.StartObject();
        PutList(writer, "required", KeysOf(member));
        writer.EndObject();
    }
    writer.EndObject();
    writer.EndObject();
}

struct Part {
    std::string Key;
    std::vector<std::string> Choices; ///< empty: any value of the type
    std::string Type = "string";
    bool IsOptional = false;
};

/// An object with these members.
void PutObject(Writer& writer, std::string_view key, std::string_view description,
               const std::vector<Part>& parts) {
    PutKey(writer, key);
    writer.StartObject();
    Put(writer, "description", description);
    Put(writer, "type", "object");
    PutKey(writer, "properties");
    writer.StartObject();
    std::vector<std::string> required;
    for (const Part& part : parts) {
        PutKey(writer, part.Key);
        writer.StartObject();
        if (part.Choices.empty())
            Put(writer, "type", part.Type);
        else
            PutList(writer, "enum", part.Choices);
        writer.EndObject();
        if (!part.IsOptional)
            required.push_back(part.Key);
    }
    writer.EndObject();
    PutList(writer, "required", required);
    writer.EndObject();
}

void PutRefusal(Writer& writer) {
    PutKey(writer, "refusal");
    writer.StartObject();
    Put(writer, "type", "object");
    PutKey(writer, "properties");
    writer.StartObject();
    PutObject(writer, "error", "Why an input was refused; file is absent for standard input",
              {{"file", {}, "string", true},
               {"line", {}, "integer"},
               {"control", {}},
               {"value", {}},
               {"message", {}}});
    writer.EndObject();
    PutList(writer, "required", {"error"});
    writer.EndObject();
}

} // namespace

std::string ResultSchema() {
    rapidjson::StringBuffer text;
    Writer writer(text);
    writer.SetIndent(' ', 2);
    writer.StartObject();
    Put(writer, "$schema", "https://json-schema.org/draft/2020-12/schema");
    Put(writer, "title", "A result of ledgrove-cli compare");
    PutKey(writer, "oneOf");
    writer.StartArray();
    for (const std::string_view kind : {"result", "refusal"}) {
        writer.StartObject();
        PutReference(writer, kind);
        writer.EndObject();
    }
    writer.EndArray();
    PutKey(writer, "$defs");
    writer.StartObject();
    PutResult(writer);
    PutPart(writer);
    for (const std::string& member : Members())
        if (!FindResultName(member))
            PutMember(writer, member);
    PutObject(writer, "label", "A label of a result tab",
              {{"text", {}}, {"color", {"#000000", "#ff0000", "#808080"}}, {"visible", {}, "boolean"}});
    PutObject(writer, "message", "A message of the program, as its window shows it",
              {{"title", {}},
               {"text", {}},
               {"icon", {"none", "information", "exclamation", "question"}},
               {"buttons", {"ok", "yesno"}}});
    PutRefusal(writer);
    writer.EndObject();
    writer.EndObject();
    return std::string(text.GetString(), text.GetSize()) + '\n';
}

std::string ResultRows() {
    const ChosenNames main = MainResults();
    std::string rows;
    for (const ResultName& name : ResultNames()) {
        const bool isMain = std::find(main.begin(), main.end(), &name) != main.end();
        rows += "| `" + name.Name + "` | " + name.Unit + " | " + name.Meaning + " | " +
                (isMain ? "yes" : "") + " |\n";
    }
    return rows;
}

} // namespace Ledgrove
