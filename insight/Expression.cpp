#include "insight/Expression.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "base/Text.h"
#include "engine/FinancialFunctions.h"
#include "engine/NumberText.h"

namespace Ledgrove {

namespace {

using Amounts = std::span<const double>;

struct Function {
    std::string_view Name;
    std::size_t Count; ///< of its amounts; min and max take any number from here on
    bool AnyMore;
    double (*Of)(Amounts amounts);
};

constexpr std::array functions{
    Function{"min", 1, true, [](Amounts a) { return *std::min_element(a.begin(), a.end()); }},
    Function{"max", 1, true, [](Amounts a) { return *std::max_element(a.begin(), a.end()); }},
    Function{"PMT", 3, false, [](Amounts a) { return Module1::PMT(a[0], a[1], a[2]); }},
    Function{"IPMT", 4, false, [](Amounts a) { return Module1::IPMT(a[0], a[1], a[2], a[3]); }},
    Function{"PV", 3, false, [](Amounts a) { return Module1::PV(a[0], a[1], a[2]); }},
    Function{"FV", 3, false, [](Amounts a) { return Module1::FV(a[0], a[1], a[2]); }},
};

const Function* FindFunction(std::string_view name) {
    const auto* const found = std::find_if(functions.begin(), functions.end(),
                                           [name](const Function& one) { return one.Name == name; });
    return found == functions.end() ? nullptr : found;
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool BeginsName(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
}

/// Reads one text from left to right. After a fault it reads on without effect.
class Parser {
public:
    explicit Parser(std::string_view text)
        : m_text(text) {}

    ExpressionPart Read() {
        ExpressionPart whole = ReadSum();
        if (Next() != '\0')
            Fail("an operator is missing");
        return m_fault.empty() ? std::move(whole) : ExpressionPart();
    }

    const std::string& Fault() const { return m_fault; }

private:
    static constexpr int deepest = 100;

    void Fail(const std::string& what) {
        if (m_fault.empty())
            m_fault = "Column " + std::to_string(m_at + 1) + ": " + what + ".";
        m_at = m_text.size();
    }

    /// The next character after blanks; 0 at the end.
    char Next() {
        while (m_at < m_text.size() && m_text[m_at] == ' ')
            ++m_at;
        return m_at < m_text.size() ? m_text[m_at] : '\0';
    }

    bool Take(char c) {
        if (Next() != c)
            return false;
        ++m_at;
        return true;
    }

    static ExpressionPart Pair(ExpressionKind kind, ExpressionPart first, ExpressionPart second) {
        ExpressionPart pair{kind, {}, 0, {}};
        pair.Parts.reserve(2);
        pair.Parts.push_back(std::move(first));
        pair.Parts.push_back(std::move(second));
        return pair;
    }

    ExpressionPart ReadSum() {
        ExpressionPart sum = ReadProduct();
        for (;;) {
            if (Take('+'))
                sum = Pair(ExpressionKind::Sum, std::move(sum), ReadProduct());
            else if (Take('-'))
                sum = Pair(ExpressionKind::Difference, std::move(sum), ReadProduct());
            else
                return sum;
        }
    }

    ExpressionPart ReadProduct() {
        ExpressionPart product = ReadSigned();
        for (;;) {
            if (Take('*'))
                product = Pair(ExpressionKind::Product, std::move(product), ReadSigned());
            else if (Take('/'))
                product = Pair(ExpressionKind::Quotient, std::move(product), ReadSigned());
            else
                return product;
        }
    }

    ExpressionPart ReadSigned() {
        if (m_depth >= deepest) {
            Fail("the parts are nested too deeply");
            return {};
        }
        ++m_depth;
        ExpressionPart part;
        if (Take('-')) {
            part.Kind = ExpressionKind::Negative;
            part.Parts.push_back(ReadSigned());
        } else {
            part = ReadPrimary();
        }
        --m_depth;
        return part;
    }

    ExpressionPart ReadPrimary() {
        const char next = Next();
        if (IsDigit(next) || next == '.')
            return ReadNumber();
        if (BeginsName(next))
            return ReadName();
        if (!Take('(')) {
            Fail("a number, a name or \"(\" is missing");
            return {};
        }
        ExpressionPart inner = ReadSum();
        if (!Take(')'))
            Fail("\")\" is missing");
        return inner;
    }

    ExpressionPart ReadNumber() {
        const std::size_t start = m_at;
        while (m_at < m_text.size() && (IsDigit(m_text[m_at]) || m_text[m_at] == '.'))
            ++m_at;
        ExpressionPart number{ExpressionKind::Number, std::string(m_text.substr(start, m_at - start)), 0, {}};
        if (const auto value = Module1::ReadNumber(number.Text))
            number.Number = *value;
        else
            Fail(Quoted(number.Text) + " is not a number");
        return number;
    }

    ExpressionPart ReadName() {
        const std::size_t start = m_at;
        while (m_at < m_text.size() &&
               (BeginsName(m_text[m_at]) || IsDigit(m_text[m_at]) || m_text[m_at] == '.'))
            ++m_at;
        std::string name(m_text.substr(start, m_at - start));
        if (Next() == '(')
            return ReadCall(std::move(name));
        return {ExpressionKind::Name, std::move(name), 0, {}};
    }

    ExpressionPart ReadCall(std::string name) {
        const Function* const function = FindFunction(name);
        if (!function) {
            Fail(Quoted(name) + " is not a function");
            return {};
        }
        ExpressionPart call{ExpressionKind::Call, std::move(name), 0, {}};
        Take('(');
        do
            call.Parts.push_back(ReadSum());
        while (Take(','));
        if (!Take(')'))
            Fail("\")\" is missing");
        const std::size_t count = call.Parts.size();
        if (count != function->Count && !(function->AnyMore && count > function->Count))
            Fail(call.Text + " takes " + std::to_string(function->Count) + " amounts, not " +
                 std::to_string(count));
        return call;
    }

    std::string_view m_text;
    std::size_t m_at = 0;
    int m_depth = 0;
    std::string m_fault;
};

void CollectNames(const ExpressionPart& part, std::vector<std::string>& names) {
    if (part.Kind == ExpressionKind::Name && std::find(names.begin(), names.end(), part.Text) == names.end())
        names.push_back(part.Text);
    for (const ExpressionPart& inner : part.Parts)
        CollectNames(inner, names);
}

/// Computes a tree, and keeps the first fault.
class Computation {
public:
    explicit Computation(const Expression::ValueOf& valueOf)
        : m_valueOf(valueOf) {}

    ExpressionValue Of(const ExpressionPart& whole) {
        double number = Value(whole);
        if (!std::isfinite(number))
            Fail("The result is not a finite number.");
        if (!m_fault.empty())
            number = 0;
        return {number, m_fault};
    }

private:
    void Fail(std::string fault) {
        if (m_fault.empty())
            m_fault = std::move(fault);
    }

    double NamedValue(const std::string& name) {
        const auto value = m_valueOf(name);
        if (!value)
            Fail(Quoted(name) + " has no value.");
        return value.value_or(0);
    }

    double Quotient(double dividend, double divisor) {
        if (divisor == 0)
            Fail("A division by 0 has no result.");
        return dividend / divisor;
    }

    double Called(const ExpressionPart& call) {
        std::vector<double> amounts;
        amounts.reserve(call.Parts.size());
        for (const ExpressionPart& part : call.Parts)
            amounts.push_back(Value(part));
        return FindFunction(call.Text)->Of(amounts);
    }

    double Value(const ExpressionPart& part) {
        switch (part.Kind) {
        case ExpressionKind::Number:
            return part.Number;
        case ExpressionKind::Name:
            return NamedValue(part.Text);
        case ExpressionKind::Negative:
            return -Value(part.Parts[0]);
        case ExpressionKind::Sum:
            return Value(part.Parts[0]) + Value(part.Parts[1]);
        case ExpressionKind::Difference:
            return Value(part.Parts[0]) - Value(part.Parts[1]);
        case ExpressionKind::Product:
            return Value(part.Parts[0]) * Value(part.Parts[1]);
        case ExpressionKind::Quotient:
            return Quotient(Value(part.Parts[0]), Value(part.Parts[1]));
        case ExpressionKind::Call:
            return Called(part);
        }
        return 0;
    }

    const Expression::ValueOf& m_valueOf;
    std::string m_fault;
};

} // namespace

Expression::Expression(std::string_view text) {
    Parser parser(text);
    m_whole = parser.Read();
    m_fault = parser.Fault();
    CollectNames(m_whole, m_names);
}

ExpressionValue Expression::Evaluate(const ValueOf& valueOf) const {
    if (!m_fault.empty())
        return {0, m_fault};
    return Computation(valueOf).Of(m_whole);
}

} // namespace Ledgrove
