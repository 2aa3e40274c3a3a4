#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

// One comparison as a script states it: values of the main screen's input controls by name.
namespace Ledgrove {

enum class InputKind { Text, Number, Boolean };

struct InputValue {
    bool Present = false;
    InputKind Kind = InputKind::Text;
    std::string Text; ///< as typed; a number stands for its own text
};

/// The order in which inputs are entered, and so the order in which a fault is met.
inline constexpr std::array<std::string_view, 17> InputNames{
    "ecIncome",  "ecMonthlyDebt", "optDownPayment",   "ecPctDown",        "ecFixedDown", "ecStdHome",
    "ecGMHHome", "ecStdUtil",     "ecGMHUtil",        "ecStdRate",        "ecGMHRate",   "ecStdStr",
    "ecGMHStr",  "cboMortTerm",   "cboStdMortOption", "cboGMHMortOption", "chkDoTax0"};

class InputRecord {
public:
    /// Forgets all values, keeping their memory.
    void Clear();

    /// The value of the input with this name, nullptr when there is no such input.
    InputValue* Find(std::string_view name);

    /// The value of an input that InputNames lists.
    const InputValue& At(std::string_view name) const;

private:
    std::array<InputValue, InputNames.size()> m_values;
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
