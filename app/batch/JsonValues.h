#pragma once

#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include "app/batch/JsonParts.h"

// Members of JSON objects with the library's writer.
namespace Ledgrove::Json {

using Writer = rapidjson::Writer<rapidjson::StringBuffer>;

inline void Key(Writer& json, std::string_view name) {
    json.Key(name.data(), static_cast<rapidjson::SizeType>(name.size()));
}

inline void Text(Writer& json, std::string_view text) {
    json.String(text.data(), static_cast<rapidjson::SizeType>(text.size()));
}

/// A single as its shortest decimal number.
inline void Number(Writer& json, float value) {
    std::string text;
    AppendNumber(text, value);
    json.RawValue(text.data(), text.size(), rapidjson::kNumberType);
}

/// The shortest decimal number that reads back as the same double; a whole number without a point.
inline void Number(Writer& json, double value) {
    constexpr double exactBelow = 9007199254740992;
    if (std::fabs(value) < exactBelow && value == std::floor(value))
        json.Int64(static_cast<std::int64_t>(value));
    else
        json.Double(value);
}

/// null without a value.
template <typename Value>
void Number(Writer& json, const std::optional<Value>& value) {
    if (value)
        Number(json, *value);
    else
        json.Null();
}

template <typename Value>
void Member(Writer& json, std::string_view name, const Value& value) {
    Key(json, name);
    if constexpr (std::is_same_v<Value, bool>)
        json.Bool(value);
    else if constexpr (std::is_convertible_v<Value, std::string_view>)
        Text(json, value);
    else if constexpr (std::is_integral_v<Value>)
        json.Int64(value);
    else
        Number(json, value);
}

} // namespace Ledgrove::Json
