#include "app/batch/JsonInput.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <string>
#include <utility>

#include <nlohmann/json.hpp>

namespace Ledgrove {

namespace {

/// Takes the values as the parser meets them, so that no tree is built.
class InputHandler : public nlohmann::json_sax<nlohmann::json> {
public:
    explicit InputHandler(InputRecord& inputs)
        : m_inputs(inputs) {}

    const std::optional<Refusal>& Fault() const { return m_refusal; }
    std::size_t BadPosition() const { return m_badPosition; }

    bool null() override { return RefuseValue("null"); }
    bool boolean(bool value) override { return Take(InputKind::Boolean, value ? "true" : "false"); }
    bool number_integer(number_integer_t value) override {
        return Take(InputKind::Number, std::to_string(value));
    }
    bool number_unsigned(number_unsigned_t value) override {
        return Take(InputKind::Number, std::to_string(value));
    }
    bool number_float(number_float_t, const string_t& text) override { return Take(InputKind::Number, text); }
    bool string(string_t& text) override { return Take(InputKind::Text, text); }
    bool binary(binary_t&) override { return false; }

    bool start_object(std::size_t) override {
        if (m_depth > 0)
            RefuseValue("{...}");
        ++m_depth;
        return true;
    }
    bool end_object() override {
        --m_depth;
        return true;
    }
    bool start_array(std::size_t) override {
        RefuseValue("[...]");
        ++m_depth;
        return true;
    }
    bool end_array() override {
        --m_depth;
        return true;
    }
    bool key(string_t& name) override {
        if (m_depth == 1)
            m_name = name;
        return true;
    }
    bool parse_error(std::size_t position, const std::string&, const nlohmann::detail::exception&) override {
        m_badPosition = position;
        return false;
    }

private:
    bool Take(InputKind kind, std::string_view text) {
        if (m_depth > 1)
            return true;
        if (m_depth == 0)
            return RefuseValue(text);
        if (InputValue* value = m_inputs.Find(m_name)) {
            value->Present = true;
            value->Kind = kind;
            value->Text = text;
        } else if (!m_refusal) {
            m_refusal = UnknownInput(m_name, text);
        }
        return true;
    }

    /// Reading goes on, to learn whether the rest is JSON at all.
    bool RefuseValue(std::string_view text) {
        if (m_depth > 1 || m_refusal)
            return true;
        if (m_depth == 0)
            m_refusal =
                Refusal{0, "", std::string(text), "Write a JSON object, such as {\"ecIncome\": \"72000\"}."};
        else if (!m_inputs.Find(m_name))
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
    std::size_t m_badPosition = 0;
};

Refusal MalformedJson(std::string_view json, std::size_t position) {
    const std::string_view before = json.substr(0, std::min(position, json.size()));
    const auto line = 1 + static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
    return {line, "", "",
            "This is malformed JSON (at character " + std::to_string(position) +
                "). Write a JSON object, such as {\"ecIncome\": \"72000\"}."};
}

} // namespace

std::optional<Refusal> ReadJsonObject(std::string_view json, InputRecord& inputs) {
    inputs.Clear();
    InputHandler handler(inputs);
    if (!nlohmann::json::sax_parse(json.begin(), json.end(), &handler))
        return MalformedJson(json, handler.BadPosition());
    auto refusal = handler.Fault();
    if (refusal)
        refusal->Line = 1;
    return refusal;
}

} // namespace Ledgrove
