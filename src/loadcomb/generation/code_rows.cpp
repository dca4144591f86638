#include "loadcomb/generation/code_rows.h"

#include "loadcomb/generation/number_token.h"

#include <algorithm>

namespace zel::loadcomb {

namespace {

using codes::Facts;
using codes::Part;
using codes::Pass;
using codes::Row;
using codes::With;
using codes::Word;

constexpr std::string_view eachGroup = "X";
constexpr std::string_view eachGroupMeans[] = {"LR", "SL", "RL"};
constexpr std::string_view windMarks[] = {"w1", "w2", "w3", "w4"};

bool isX(const codes::Pair& pair)
{
    return pair.group.name == eachGroup;
}

bool namesX(const Row& row)
{
    return std::any_of(std::begin(row.pairs), std::end(row.pairs), isX);
}

int windMark(With with)
{
    return with < With::w1 ? -1 : static_cast<int>(with) - static_cast<int>(With::w1);
}

/// A group of a row as the pass of its part means it.
std::string_view meant(std::string_view group, Pass pass)
{
    return pass == Pass::liveRoofIsSnow && group == "LR" ? std::string_view("SL") : group;
}

/// Gives each row of a part to `use`, with the group that its X stands for, in the order in which rows are added: those with an X that
/// follow each other in one block are walked together.
template <class Use> void walk(const Part& part, const Use& use)
{
    for (std::size_t i = 0; i < part.rows.size();) {
        if (!namesX(part.rows[i])) {
            use(part.rows[i++], std::string_view());
            continue;
        }
        const std::size_t first = i;
        while (i < part.rows.size() && namesX(part.rows[i]) && part.rows[i].block == part.rows[first].block)
            ++i;
        for (const std::string_view x : eachGroupMeans) {
            for (const Row& row : part.rows.subspan(first, i - first))
                use(row, x);
        }
    }
}

struct Sign {
    std::string_view text;
    double factor;
};
constexpr Sign plusThenMinus[] = {{"+", 1.0}, {"-", -1.0}};
constexpr Sign noSign[] = {{"", 1.0}};

/// The signs that a row is written out with.
std::span<const Sign> signsOf(const Row& row)
{
    return row.text.find(codes::plusMinus) != std::string_view::npos ? std::span<const Sign>(plusThenMinus) : std::span<const Sign>(noSign);
}

/// The formula of a row for one sign and one group in the place of X.
std::string formulaOf(const Part& part, const codes::WindScale& wind, const Row& row, std::string_view x, const Sign& sign)
{
    std::string text(row.text);
    replaceAll(text, codes::plusMinus, sign.text);
    if (!x.empty())
        replaceAll(text, eachGroup, x);
    if (part.pass == Pass::liveRoofIsSnow)
        replaceAll(text, "LR", meant("LR", part.pass));
    for (const codes::Pair& pair : row.pairs) {
        if (const int mark = windMark(pair.with); mark >= 0)
            replaceAll(text, windMarks[mark], wind.w[mark].text);
    }
    return text;
}

class RowWriter {
public:
    RowWriter(const Part& part, const codes::WindScale& wind, Facts facts, const RowValues& values, const std::function<void(const WrittenRow&)>& add)
        : m_part(part), m_wind(wind), m_facts(facts), m_values(values), m_add(add)
    {
        if (part.pass == Pass::liveRoofIsSnow) {
            m_facts &= ~codes::fact(Word::LR);
            if ((facts & codes::fact(Word::SL)) != 0)
                m_facts |= codes::fact(Word::LR);
        } else {
            m_facts |= codes::fact(Word::firstPass);
        }
    }

    void writeAll() const
    {
        walk(m_part, [this](const Row& row, std::string_view x) {
            if (!isMet(row))
                return;
            for (const Sign& sign : signsOf(row))
                write(row, x, sign);
        });
    }

private:
    [[nodiscard]] bool isMet(const Row& row) const
    {
        const bool increments = row.flag != codes::service && (m_facts & (codes::fact(Word::typeSpecial) | codes::fact(Word::typeUndergroundSpecial))) != 0;
        return row.when.met(increments ? m_facts | codes::fact(Word::increments) : m_facts);
    }

    void write(const Row& row, std::string_view x, const Sign& sign) const
    {
        WrittenRow written;
        written.block = row.block;
        written.flag = row.flag;
        written.clause = m_part.clause;
        written.text = formulaOf(m_part, m_wind, row, x, sign);
        written.factors.reserve(std::size(row.pairs));
        const std::string_view governed = codes::signedTerm(row.text);
        for (const codes::Pair& pair : row.pairs) {
            double factor = factorOf(pair);
            if (factor == 0.0)
                continue;
            if (!pair.group.name.empty() && governed.find(pair.group.name) != std::string_view::npos)
                factor *= sign.factor;
            written.factors.push_back({meant(isX(pair) ? x : pair.group.name, m_part.pass), factor});
        }
        m_add(written);
    }

    [[nodiscard]] double factorOf(const codes::Pair& pair) const
    {
        const double spectrum = m_values.shortPeriodCoefficient * m_values.verticalLoadFactor;
        switch (pair.with) {
        case With::nothing:
            return pair.factor;
        case With::alphaH:
            return pair.factor * m_values.alphaH;
        case With::plusSpectrum:
            return pair.factor + spectrum;
        case With::minusSpectrum:
            return pair.factor - spectrum;
        case With::verticalForce:
            return pair.factor * m_values.verticalForceFactor;
        default:
            return pair.factor * m_wind.w[windMark(pair.with)].factor;
        }
    }

    const Part& m_part;
    const codes::WindScale& m_wind;
    Facts m_facts;
    const RowValues& m_values;
    const std::function<void(const WrittenRow&)>& m_add;
};

}  // namespace

void writeRows(const codes::Part& part, const codes::WindScale& wind, codes::Facts facts, const RowValues& values,
               const std::function<void(const WrittenRow&)>& add)
{
    RowWriter(part, wind, facts, values, add).writeAll();
}

codes::Facts typeFact(codes::CombType type)
{
    const bool isType = std::ranges::find(codes::combTypes, type) != std::end(codes::combTypes);
    return isType ? codes::fact(codes::wordOf(type)) : 0;
}

std::vector<ListedRow> listRows(const codes::CodeTable& table)
{
    std::vector<ListedRow> list;
    for (const Part& part : table.parts) {
        walk(part, [&](const Row& row, std::string_view x) {
            for (const Sign& sign : signsOf(row))
                list.push_back({row.block, row.flag, formulaOf(part, table.wind, row, x, sign), part.when.text, row.when.text, part.title, part.clause});
        });
    }
    return list;
}

int countRows(const codes::CodeTable& table)
{
    return static_cast<int>(listRows(table).size());
}

}  // namespace zel::loadcomb
