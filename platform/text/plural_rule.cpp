#include "platform/text/plural_rule.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace skyvane {

namespace {

using Number = std::uint64_t;

struct Operator {
    std::string_view sign;
    int precedence;
    Number (*apply)(Number left, Number right);
};

/// A sign that begins with another one stands before it.
constexpr std::array operators{
    Operator{"||", 1, [](Number left, Number right) -> Number { return left != 0 || right != 0; }},
    Operator{"&&", 2, [](Number left, Number right) -> Number { return left != 0 && right != 0; }},
    Operator{"==", 3, [](Number left, Number right) -> Number { return left == right; }},
    Operator{"!=", 3, [](Number left, Number right) -> Number { return left != right; }},
    Operator{"<=", 4, [](Number left, Number right) -> Number { return left <= right; }},
    Operator{">=", 4, [](Number left, Number right) -> Number { return left >= right; }},
    Operator{"<", 4, [](Number left, Number right) -> Number { return left < right; }},
    Operator{">", 4, [](Number left, Number right) -> Number { return left > right; }},
    Operator{"+", 5, [](Number left, Number right) { return left + right; }},
    Operator{"-", 5, [](Number left, Number right) { return left - right; }},
    Operator{"*", 6, [](Number left, Number right) { return left * right; }},
    Operator{"/", 6, [](Number left, Number right) { return right != 0 ? left / right : 0; }},
    Operator{"%", 6, [](Number left, Number right) { return right != 0 ? left % right : 0; }},
};

/// Works an expression out while it reads it, for one value of n.
class Evaluation {
public:
    Evaluation(std::string_view expression, Number n) : m_rest(expression), m_n(n) { }

    /// Absent for what is no expression.
    std::optional<Number> value()
    {
        const Number value = conditional();
        skipBlanks();
        return m_isBroken || !m_rest.empty() ? std::nullopt : std::optional{value};
    }

private:
    Number conditional()
    {
        const Number condition = operation(0);
        if (!take("?"))
            return condition;
        const Number then = conditional();
        require(":");
        const Number otherwise = conditional();
        return condition != 0 ? then : otherwise;
    }

    /// Of operators that bind more tightly than this.
    Number operation(int precedence)
    {
        Number left = operand();
        while (const Operator* next = takeOperator(precedence))
            left = next->apply(left, operation(next->precedence));
        return left;
    }

    Number operand()
    {
        if (take("!"))
            return operand() == 0 ? 1 : 0;
        if (take("n"))
            return m_n;
        if (take("(")) {
            const Number value = conditional();
            require(")");
            return value;
        }
        return literal();
    }

    Number literal()
    {
        Number value = 0;
        const auto [end, error] = std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), value);
        m_isBroken = m_isBroken || error != std::errc{};
        m_rest.remove_prefix(static_cast<std::size_t>(end - m_rest.data()));
        return value;
    }

    const Operator* takeOperator(int precedence)
    {
        skipBlanks();
        const auto* next = std::ranges::find_if(
            operators, [&](const Operator& candidate) { return m_rest.starts_with(candidate.sign); });
        if (next == operators.end() || next->precedence <= precedence)
            return nullptr;
        m_rest.remove_prefix(next->sign.size());
        return next;
    }

    bool take(std::string_view sign)
    {
        skipBlanks();
        if (!m_rest.starts_with(sign))
            return false;
        m_rest.remove_prefix(sign.size());
        return true;
    }

    void require(std::string_view sign) { m_isBroken = !take(sign) || m_isBroken; }

    void skipBlanks() { m_rest.remove_prefix(std::min(m_rest.find_first_not_of(' '), m_rest.size())); }

    std::string_view m_rest;
    Number m_n;
    bool m_isBroken = false;
};

} // namespace

PluralRule::PluralRule(std::string_view catalogueHead)
{
    constexpr std::size_t longest = 1000; // Bytes; one of a few hundred is the longest in use.
    constexpr std::string_view name = "plural=";
    const std::size_t line = catalogueHead.find("Plural-Forms:");
    const std::size_t start = catalogueHead.find(name, std::min(line, catalogueHead.size()));
    if (start == std::string_view::npos)
        return;
    const std::string_view rest = catalogueHead.substr(start + name.size());
    const std::string_view expression = rest.substr(0, rest.find_first_of(";\n"));
    if (expression.size() <= longest)
        m_expression = expression;
}

std::size_t PluralRule::form(std::uint64_t count) const
{
    return static_cast<std::size_t>(Evaluation{m_expression, count}.value().value_or(count != 1 ? 1 : 0));
}

} // namespace skyvane
