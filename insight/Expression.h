#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Arithmetic as text, "GMHCase.Cost - GMHCase.DownPayment", so that a person or a program can follow it:
// + - * / ( ), numbers, names, and the functions min, max, PMT, IPMT, PV and FV. The financial functions take
// the same amounts as those of the engine: PMT(rate, periods, present value), IPMT(rate, period, periods,
// present value), PV and FV(rate, periods, payment), with a rate per period.
namespace Ledgrove {

enum class ExpressionKind : std::uint8_t { Number, Name, Negative, Sum, Difference, Product, Quotient, Call };

struct ExpressionPart {
    ExpressionKind Kind = ExpressionKind::Number;
    std::string Text;  ///< of a name, a function or a number
    double Number = 0; ///< of a number
    std::vector<ExpressionPart> Parts;
};

/// A number, or a sentence that says why there is none.
struct ExpressionValue {
    double Number = 0;
    std::string Fault; ///< empty if there is a number
};

class Expression {
public:
    using ValueOf = std::function<std::optional<double>(std::string_view name)>;

    explicit Expression(std::string_view text);

    /// Why the text cannot be read, as a sentence with the column; empty if it can.
    const std::string& Fault() const { return m_fault; }

    /// The names in the order in which they first appear, each once.
    const std::vector<std::string>& Names() const { return m_names; }

    /// The whole expression; a number 0 after a fault.
    const ExpressionPart& Whole() const { return m_whole; }

    /// Computes in double precision. `valueOf` gives nothing for an unknown name. Unknown names, divisions by
    /// 0 and results that are not finite are faults.
    ExpressionValue Evaluate(const ValueOf& valueOf) const;

private:
    std::string m_fault;
    std::vector<std::string> m_names;
    ExpressionPart m_whole;
};

} // namespace Ledgrove
