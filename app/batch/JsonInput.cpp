#include "app/batch/JsonInput.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

namespace Ledgrove {

namespace {

/// False for a text with an unpaired low surrogate: the parser accepts its escape and produces bytes that are
/// not valid UTF-8.
bool IsWhole(std::string_view text) {
    for (std::size_t at = text.find('\xED'); at != text.npos; at = text.find('\xED', at + 1)) {
        if (at + 1 < text.size() && static_cast<unsigned char>(text[at + 1]) >= 0xA0)
            return false;
    }
    return true;
}

/// Stores each value while the text is parsed, so that no document tree is built.
class InputHandler {
public:
    using Ch = char;

    explicit InputHandler(InputRecord& inputs)
        : m_inputs(inputs) {}

    const std::optional<Refusal>& Fault() const { return m_refusal; }

    bool Null() { return RefuseValue("null"); }
    bool Bool(bool value) { return Take(InputKind::Boolean, value ? "true" : "false"); }
    bool RawNumber(const Ch* text, rapidjson::SizeType length, bool) {
        return Take(InputKind::Number, {text, length});
    }
    bool String(const Ch* text, rapidjson::SizeType length, bool) {
        return IsWhole({text, length}) && Take(InputKind::Text, {text, length});
    }
    bool Key(const Ch* name, rapidjson::SizeType length, bool) {
        if (m_depth == 1)
            m_name.assign(name, length);
        return IsWhole({name, length});
    }
    bool StartObject() {
        if (m_depth > 0)
            RefuseValue("{...}");
        ++m_depth;
        return true;
    }
    bool EndObject(rapidjson::SizeType) { return Leave(); }
    bool StartArray() {
        RefuseValue("[...]");
        ++m_depth;
        return true;
    }
    bool EndArray(rapidjson::SizeType) { return Leave(); }

    // Never called, because numbers arrive as texts, but the parser requires these functions.
    bool Int(int) { return false; }
    bool Uint(unsigned) { return false; }
    bool Int64(std::int64_t) { return false; }
    bool Uint64(std::uint64_t) { return false; }
    bool Double(double) { return false; }

private:
    bool Leave() {
        --m_depth;
        return true;
    }

    bool Take(InputKind kind, std::string_view text) {
        if (m_depth > 1)
            return true;
        if (m_depth == 0)
            return RefuseValue(text);
        if (const auto input = InputNamed(m_name)) {
            InputValue& value = m_inputs[*input];
            value.Present = true;
            value.Kind = kind;
            value.Text = text;
        } else if (!m_refusal) {
            m_refusal = UnknownInput(m_name, text);
        }
        return true;
    }

    /// Parsing continues, because invalid JSON is reported first.
    bool RefuseValue(std::string_view text) {
        if (m_depth > 1 || m_refusal)
            return true;
        if (m_depth == 0)
            m_refusal =
                Refusal{0, "", std::string(text), "Write a JSON object, such as {\"ecIncome\": \"72000\"}."};
        else if (!InputNamed(m_name))
            m_refusal = UnknownInput(m_name, text);
        else
            m_refusal =
                Refusal{0, m_name, std::string(text), "The value must be a text, a number, true or false."};
        return true;
    }

    InputRecord& m_inputs;
    std::optional<Refusal> m_refusal;
    std::string m_name;
    int m_depth = 0;
};

Refusal MalformedJson(std::string_view json, std::size_t position) {
    const std::string_view before = json.substr(0, std::min(position, json.size()));
    const auto line = 1 + static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
    return {line, "", "",
            "This is not valid JSON (error at character " + std::to_string(position + 1) +
                "). Write a JSON object, such as {\"ecIncome\": \"72000\"}."};
}

} // namespace

std::optional<Refusal> ReadJsonObject(std::string_view json, InputRecord& inputs) {
    inputs.Clear();
    // The parser would treat a NUL as the end of the text.
    if (const std::size_t nul = json.find('\0'); nul != json.npos)
        return MalformedJson(json, nul);
    // Iterative parsing uses no stack for deep nesting.
    constexpr unsigned flags = rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag |
                               rapidjson::kParseValidateEncodingFlag;
    rapidjson::MemoryStream stream(json.data(), json.size());
    rapidjson::Reader reader;
    InputHandler handler(inputs);
    const rapidjson::ParseResult result = reader.Parse<flags>(stream, handler);
    if (result.IsError())
        return MalformedJson(json, result.Offset());
    auto refusal = handler.Fault();
    if (refusal)
        refusal->Line = 1;
    return refusal;
}

} // namespace Ledgrove
