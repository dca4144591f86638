#include "loadcomb/formula_factors.h"

#include "loadcomb/tables/code_table.h"

#include <cctype>
#include <charconv>
#include <stdexcept>

namespace tables {

namespace {

/// A number and a multiple of each group.
struct Sum {
    double number = 0.0;
    std::map<std::string, double> groups;
};

Sum times(const Sum& left, const Sum& right)
{
    if (!left.groups.empty() && !right.groups.empty())
        throw std::invalid_argument("a product of groups");
    Sum product{left.number * right.number, {}};
    for (const auto& [group, factor] : left.groups)
        product.groups[group] = factor * right.number;
    for (const auto& [group, factor] : right.groups)
        product.groups[group] = left.number * factor;
    return product;
}

class Reader {
public:
    Reader(std::string_view text, const std::map<std::string, double>& known) : m_rest(text), m_known(known) {}

    Sum all()
    {
        const Sum sum = readSum();
        if (!m_rest.empty())
            throw std::invalid_argument("unread: " + std::string(m_rest));
        return sum;
    }

private:
    bool take(std::string_view sign)
    {
        while (m_rest.starts_with(' '))
            m_rest.remove_prefix(1);
        if (!m_rest.starts_with(sign))
            return false;
        m_rest.remove_prefix(sign.size());
        return true;
    }

    Sum readSum()
    {
        double sign = take("-") ? -1.0 : 1.0;
        Sum sum;
        while (true) {
            const Sum term = times({sign, {}}, readProduct());
            sum.number += term.number;
            for (const auto& [group, factor] : term.groups)
                sum.groups[group] += factor;
            if (take("+") || take(zel::codes::plusMinus))
                sign = 1.0;
            else if (take("-"))
                sign = -1.0;
            else
                return sum;
        }
    }

    Sum readProduct()
    {
        Sum product = readFactor();
        while (true) {
            if (take("/"))
                product = times({1.0 / readFactor().number, {}}, product);
            else if (take("*") || m_rest.starts_with('(') || startsWord())
                product = times(product, readFactor());
            else
                return product;
        }
    }

    [[nodiscard]] bool startsWord() const { return !m_rest.empty() && std::isalpha(static_cast<unsigned char>(m_rest.front())) != 0; }

    Sum readFactor()
    {
        if (take("(")) {
            const Sum inner = readSum();
            if (!take(")"))
                throw std::invalid_argument("no \")\" before: " + std::string(m_rest));
            return inner;
        }
        if (startsWord())
            return readWord();
        double number = 0.0;
        const auto [end, error] = std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), number);
        if (error != std::errc())
            throw std::invalid_argument("no factor: " + std::string(m_rest));
        m_rest.remove_prefix(static_cast<std::size_t>(end - m_rest.data()));
        return {number, {}};
    }

    Sum readWord()
    {
        std::size_t length = 0;
        while (length < m_rest.size() && std::isalnum(static_cast<unsigned char>(m_rest[length])) != 0)
            ++length;
        const std::string word(m_rest.substr(0, length));
        m_rest.remove_prefix(length);
        const auto number = m_known.find(word);
        return number != m_known.end() ? Sum{number->second, {}} : Sum{0.0, {{word, 1.0}}};
    }

    std::string_view m_rest;
    const std::map<std::string, double>& m_known;
};

}  // namespace

std::map<std::string, double> formulaFactors(std::string_view text, const std::map<std::string, double>& known)
{
    const Sum sum = Reader(text, known).all();
    if (sum.number != 0.0)
        throw std::invalid_argument("a term without a group");
    return sum.groups;
}

}  // namespace tables
