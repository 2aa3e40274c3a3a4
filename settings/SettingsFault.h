#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace Ledgrove {

/// Why the settings could not be read or saved.
struct SettingsFault {
    enum class Kind {
        Missing,         ///< the settings file does not exist; any other error is Unreadable
        InterruptedSave, ///< only the temporary file of a save exists, at `Path`; it must be renamed to
                         ///< `Text`
        Unreadable,      ///< the settings file exists but cannot be read
        Unwritable,      ///< the save failed at `Path`; the old settings are complete
        Unconfirmed,     ///< the new settings are in place, but a power cut may destroy them
        Busy,            ///< another copy of the program did not finish its save in time
        BadLine,         ///< the line `Line` contains `Text`, which does not convert
        MissingKey,      ///< the file has no line for the key in `Text`, and the key has no default
        RefusedText      ///< `Text` cannot be saved, because of `Reason`
    };

    Kind What = Kind::Missing;
    std::filesystem::path Path; ///< full path of the affected file
    std::string Reason;         ///< the system's reason, or what is wrong with the text
    std::size_t Line = 0;       ///< counted from 1; 0 if the fault is not in a line
    std::string Text;           ///< UTF-8
};

/// The message for a message box or standard error: what happened, the full path of the file, and what to do.
std::string Sentence(const SettingsFault& fault);

/// The result of a reader: the value, or the fault. Functions that fill a record or write the file return
/// std::optional<SettingsFault> instead, empty on success.
template <typename Value>
class Outcome {
public:
    Outcome(Value value)
        : m_content(std::in_place_index<0>, std::move(value)) {}
    Outcome(SettingsFault fault)
        : m_content(std::in_place_index<1>, std::move(fault)) {}

    explicit operator bool() const { return m_content.index() == 0; }

    /// Only valid if there is a value.
    const Value& operator*() const { return *std::get_if<0>(&m_content); }
    const Value* operator->() const { return std::get_if<0>(&m_content); }
    /// Only valid if there is no value.
    const SettingsFault& Fault() const { return *std::get_if<1>(&m_content); }

private:
    std::variant<Value, SettingsFault> m_content;
};

} // namespace Ledgrove
