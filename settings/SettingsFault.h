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
        Missing,         ///< there is no settings file: exactly "no such file", no other error
        InterruptedSave, ///< only the temporary file of a rewrite is there; `Path` names it, `Text` is the
                         ///< file name that it should have
        Unreadable,      ///< the settings file is there but cannot be read
        Unwritable,      ///< the save failed at `Path`; the old settings are whole
        Unconfirmed,     ///< the new settings are in place, but may not outlive a power cut
        Busy,            ///< another copy of the program did not finish its save
        BadLine,         ///< `Line` holds `Text`, which does not convert
        MissingKey,      ///< no line of the key in `Text`, which has no default
        RefusedText      ///< `Text` cannot be saved, because of `Reason`
    };

    Kind What = Kind::Missing;
    std::filesystem::path Path; ///< full path of the file concerned
    std::string Reason;         ///< the system's, or what is wrong with the text
    std::size_t Line = 0;       ///< counted from 1; 0 where no line is concerned
    std::string Text;           ///< UTF-8
};

/// What happened, to which file (its full path) and what to do, for a message box or standard error.
std::string Sentence(const SettingsFault& fault);

/// What a reader gives: the value, or why there is none. Procedures that fill a record or write the file give
/// std::optional<SettingsFault> instead, empty on success.
template <typename Value>
class Outcome {
public:
    Outcome(Value value)
        : m_content(std::in_place_index<0>, std::move(value)) {}
    Outcome(SettingsFault fault)
        : m_content(std::in_place_index<1>, std::move(fault)) {}

    explicit operator bool() const { return m_content.index() == 0; }

    /// Only where there is a value.
    const Value& operator*() const { return *std::get_if<0>(&m_content); }
    const Value* operator->() const { return std::get_if<0>(&m_content); }
    /// Only where there is none.
    const SettingsFault& Fault() const { return *std::get_if<1>(&m_content); }

private:
    std::variant<Value, SettingsFault> m_content;
};

} // namespace Ledgrove
