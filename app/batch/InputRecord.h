#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

// One comparison as a script states it: values of the main screen's input controls by name.
namespace Ledgrove {

/// The main screen's input controls, in the order in which they are entered, and so in which a fault is met.
enum class Input : std::uint8_t {
    ecIncome,
    ecMonthlyDebt,
    optDownPayment,
    ecPctDown,
    ecFixedDown,
    ecStdHome,
    ecGMHHome,
    ecStdUtil,
    ecGMHUtil,
    ecStdRate,
    ecGMHRate,
    ecStdStr,
    ecGMHStr,
    cboMortTerm,
    cboStdMortOption,
    cboGMHMortOption,
    chkDoTax0,
};

struct NamedInput {
    Input Which;
    std::string_view Name; ///< ended by a NUL
};

/// The one place where inputs have names, in the order of Input: a key of JSON, a heading of CSV, the control
/// of a refusal.
inline constexpr NamedInput InputTable[] = {
    {Input::ecIncome, "ecIncome"},
    {Input::ecMonthlyDebt, "ecMonthlyDebt"},
    {Input::optDownPayment, "optDownPayment"},
    {Input::ecPctDown, "ecPctDown"},
    {Input::ecFixedDown, "ecFixedDown"},
    {Input::ecStdHome, "ecStdHome"},
    {Input::ecGMHHome, "ecGMHHome"},
    {Input::ecStdUtil, "ecStdUtil"},
    {Input::ecGMHUtil, "ecGMHUtil"},
    {Input::ecStdRate, "ecStdRate"},
    {Input::ecGMHRate, "ecGMHRate"},
    {Input::ecStdStr, "ecStdStr"},
    {Input::ecGMHStr, "ecGMHStr"},
    {Input::cboMortTerm, "cboMortTerm"},
    {Input::cboStdMortOption, "cboStdMortOption"},
    {Input::cboGMHMortOption, "cboGMHMortOption"},
    {Input::chkDoTax0, "chkDoTax0"},
};

constexpr std::string_view NameOf(Input input) {
    return InputTable[static_cast<std::size_t>(input)].Name;
}

/// The input of this name; nothing where there is none.
std::optional<Input> InputNamed(std::string_view name);

enum class InputKind { Text, Number, Boolean };

struct InputValue {
    bool Present = false;
    InputKind Kind = InputKind::Text;
    std::string Text; ///< as typed; a number stands for its own text

    bool operator==(const InputValue&) const = default;
};

class InputRecord {
public:
    /// Forgets all values, keeping their memory.
    void Clear();

    InputValue& operator[](Input input) { return m_values[static_cast<std::size_t>(input)]; }
    const InputValue& operator[](Input input) const { return m_values[static_cast<std::size_t>(input)]; }

    bool operator==(const InputRecord&) const = default;

private:
    std::array<InputValue, std::size(InputTable)> m_values;
};

/// Why an input was refused: which line, which control, its text, and what to do.
struct Refusal {
    std::size_t Line = 0; ///< counted from 1
    std::string Control;  ///< "" when no single control is at fault
    std::string Value;
    std::string Message;
};

/// The refusal of a name that is no input.
Refusal UnknownInput(std::string_view name, std::string_view value);

/// The refusal of a single comparison in one sentence, for standard error: what is wrong, where, with which
/// text.
std::string RefusalSentence(const Refusal& refusal);

/// The refusal of an input beyond all measure.
Refusal InputTooLong(std::size_t line);

} // namespace Ledgrove
