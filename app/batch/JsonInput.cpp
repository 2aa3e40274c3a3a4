#include "app/batch/JsonInput.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>

#include <rapidjson/reader.h>
#include <rapidjson/stream.h>

#include "base/Text.h"

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

    /// Only an escape can be an unpaired surrogate.
    InputHandler(InputRecord& inputs, bool hasEscapes)
        : m_inputs(inputs)
        , m_hasEscapes(hasEscapes) {}

    /// A result's other members only count as known beside its fields.
    std::optional<Refusal> Fault() const {
        if (!m_refusal && !m_sawFields && !m_resultMember.empty())
            return UnknownInput(m_resultMember, "{...}");
        return m_refusal;
    }

    bool Null() { return RefuseValue("null"); }
    bool Bool(bool value) { return Take(InputKind::Boolean, value ? "true" : "false"); }
    bool RawNumber(const Ch* text, rapidjson::SizeType length, bool) {
        return Take(InputKind::Number, {text, length});
    }
    bool String(const Ch* text, rapidjson::SizeType length, bool) {
        return IsReadable({text, length}) && Take(InputKind::Text, {text, length});
    }
    bool Key(const Ch* name, rapidjson::SizeType length, bool) {
        if (m_depth == 1 || InFields())
            m_name.assign(name, length);
        return IsReadable({name, length});
    }
    bool StartObject() {
        const bool fields = m_depth == 1 && m_name == fieldsMember;
        if (m_depth > 0 && !fields && !IsResultMember())
            RefuseValue("{...}");
        ++m_depth;
        m_sawFields = m_sawFields || fields;
        m_inFields = m_inFields || fields;
        return true;
    }
    bool EndObject(rapidjson::SizeType) { return Leave(); }
    bool StartArray() {
        if (!IsResultMember())
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
    static constexpr std::string_view fieldsMember = "fields";

    bool IsReadable(std::string_view text) const { return !m_hasEscapes || IsWhole(text); }

    /// Directly in the fields of a result, whose texts are inputs.
    bool InFields() const { return m_inFields && m_depth == 2; }

    /// Whether the value belongs to a result's member that is worked out again; remembers it.
    bool IsResultMember() {
        constexpr std::string_view members[] = {"labels",  "Scenario", "StdCase",
                                                "GMHCase", "messages", "dataCheck"};
        // What a comparison's file keeps beside its inputs.
        if (m_depth == 1 && m_name == "versions")
            return true;
        const bool isOne =
            m_depth == 1 && std::find(std::begin(members), std::end(members), m_name) != std::end(members);
        if (isOne)
            m_resultMember = m_name;
        return isOne;
    }

    bool Leave() {
        if (--m_depth == 1)
            m_inFields = false;
        return true;
    }

    bool Take(InputKind kind, std::string_view text) {
        if (InFields()) {
            // An empty field of a result was not entered.
            if (text.empty())
                return true;
        } else if (m_depth > 1) {
            return true;
        } else if (m_depth == 0) {
            return RefuseValue(text);
        }
        if (const auto input = InputNamed(m_name)) {
            InputValue& value = m_inputs[*input];
            value.Present = true;
            value.Kind = kind;
            value.Text = text;
        } else if (!IsResultMember() && !m_refusal) {
            m_refusal = UnknownInput(m_name, text);
        }
        return true;
    }

    /// Parsing continues, because invalid JSON is reported first.
    bool RefuseValue(std::string_view text) {
        if ((m_depth > 1 && !InFields()) || m_refusal)
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
    bool m_hasEscapes;
    std::optional<Refusal> m_refusal;
    std::string m_name;
    std::string m_resultMember; ///< the last one found
    bool m_sawFields = false;
    bool m_inFields = false;
    int m_depth = 0;
};

/// Without an early exit, the compiler can vectorise this loop.
bool IsAscii(std::string_view text) {
    unsigned char all = 0;
    for (const char c : text)
        all |= static_cast<unsigned char>(c);
    return all < 0x80;
}

Refusal MalformedJson(std::string_view json, std::size_t position) {
    const std::string_view before = json.substr(0, std::min(position, json.size()));
    const auto line = 1 + static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
    return {line, "", "",
            "This is not valid JSON (error at character " + std::to_string(position + 1) +
                "). Write a JSON object, such as {\"ecIncome\": \"72000\"}."};
}

} // namespace

struct JsonObjectReader::Memory {
    std::string Copy;
    rapidjson::Reader Parser;
};

JsonObjectReader::JsonObjectReader()
    : m_memory(std::make_unique<Memory>()) {}

JsonObjectReader::~JsonObjectReader() = default;

std::optional<Refusal> ReadJsonObject(std::string_view json, InputRecord& inputs) {
    return JsonObjectReader().Read(json, inputs);
}

std::optional<Refusal> JsonObjectReader::Read(std::string_view json, InputRecord& inputs) {
    inputs.Clear();
    if (IsBlank(json, " \t\r\n"))
        return Refusal{1, "", "",
                       "The input is empty. Write a JSON object, such as {\"ecIncome\": \"72000\"}."};
    // The parser would treat a NUL as the end of the text.
    if (const std::size_t nul = json.find('\0'); nul != json.npos)
        return MalformedJson(json, nul);
    // Iterative parsing uses no stack for deep nesting. Texts are unescaped in place, in a copy of the line,
    // which takes 30 % fewer instructions than on the parser's stack.
    constexpr unsigned plainFlags =
        rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseInsituFlag;
    constexpr unsigned flags = plainFlags | rapidjson::kParseValidateEncodingFlag;
    std::string& copy = m_memory->Copy;
    copy = json;
    rapidjson::InsituStringStream stream(copy.data());
    rapidjson::Reader& reader = m_memory->Parser;
    InputHandler handler(inputs, json.find('\\') != json.npos);
    // Most lines are ASCII, which needs no validation: it would take a tenth of the comparison.
    const rapidjson::ParseResult result =
        IsAscii(json) ? reader.Parse<plainFlags>(stream, handler) : reader.Parse<flags>(stream, handler);
    if (result.IsError())
        return MalformedJson(json, result.Offset());
    auto refusal = handler.Fault();
    if (refusal)
        refusal->Line = 1;
    return refusal;
}

} // namespace Ledgrove
