#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

// The inputs of one comparison in a file: values for the main screen's input controls, by name, and what else
// a saved screen needs to open as it was.
namespace Ledgrove {

/// The main screen's input controls. They are entered in this order, which decides the input that is refused
/// first.
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
    PctDownConverted, ///< true or false: `ecPctDown` stands as it is, and a number above 100 is not dollars
    lblHomeName,      ///< the house scenario whose prices and utility costs these are
};

struct NamedInput {
    Input Which;
    std::string_view Name; ///< with a terminating NUL
};

/// The names of the inputs, in the order of `Input`. JSON keys, CSV headings and the controls in refusals all
/// use them.
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
    {Input::PctDownConverted, "PctDownConverted"},
    {Input::lblHomeName, "lblHomeName"},
};

constexpr std::string_view NameOf(Input input) {
    return InputTable[static_cast<std::size_t>(input)].Name;
}

/// The input with this name; empty if there is none.
std::optional<Input> InputNamed(std::string_view name);

enum class InputKind { Text, Number, Boolean };

struct InputValue {
    bool Present = false;
    InputKind Kind = InputKind::Text;
    std::string Text; ///< as typed; a number as it is written in the file

    bool operator==(const InputValue&) const = default;
};

class InputRecord {
public:
    /// Removes all values and keeps their memory.
    void Clear();

    InputValue& operator[](Input input) { return m_values[static_cast<std::size_t>(input)]; }
    const InputValue& operator[](Input input) const { return m_values[static_cast<std::size_t>(input)]; }

    bool operator==(const InputRecord&) const = default;

private:
    std::array<InputValue, std::size(InputTable)> m_values;
};

/// Why an input was refused: the line, the control, its text, and a message that says what to do.
struct Refusal {
    std::size_t Line = 0; ///< counted from 1
    std::string Control;  ///< empty if no single control is at fault
    std::string Value;
    std::string Message;
};

/// The refusal of a name that is not an input.
Refusal UnknownInput(std::string_view name, std::string_view value);

/// The refusal of a single comparison as one line for standard error: the message, the place and the text.
std::string RefusalSentence(const Refusal& refusal);

/// The refusal of an input that exceeds the size limit.
Refusal InputTooLong(std::size_t line);

} // namespace Ledgrove
