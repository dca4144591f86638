#include "loadcomb/generation/code_rows.h"

#include "loadcomb/generation/number_token.h"

#include <algorithm>

namespace zel::loadcomb {

namespace {

using codes::Facts;
using codes::Part;
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

bool hasBothSigns(const Row& row)
{
    return row.text.find(codes::plusMinus) != std::string_view::npos;
}

int windMark(With with)
{
    return with < With::w1 ? -1 : static_cast<int>(with) - static_cast<int>(With::w1);
}

class RowWriter {
public:
    RowWriter(const Part& part, const codes::WindScale& wind, Facts facts, const RowValues& values, const std::function<void(const WrittenRow&)>& add)
        : m_part(part), m_wind(wind), m_facts(facts), m_values(values), m_add(add)
    {
        if (part.liveRoofIsSnow) {
            m_facts &= ~codes::fact(Word::LR);
            if ((facts & codes::fact(Word::SL)) != 0)
                m_facts |= codes::fact(Word::LR);
        } else {
            m_facts |= codes::fact(Word::firstPass);
        }
    }

    void writeAll() const
    {
        const std::span<const Row> rows = m_part.rows;
        for (std::size_t i = 0; i < rows.size();) {
            if (!namesX(rows[i])) {
                write(rows[i++], {});
                continue;
            }
            const std::size_t first = i;
            while (i < rows.size() && namesX(rows[i]) && rows[i].block == rows[first].block)
                ++i;
            for (const std::string_view x : eachGroupMeans) {
                for (const Row& row : rows.subspan(first, i - first))
                    write(row, x);
            }
        }
    }

private:
    void write(const Row& row, std::string_view x) const
    {
        const bool increments = row.flag != codes::service && (m_facts & (codes::fact(Word::typeSpecial) | codes::fact(Word::typeUndergroundSpecial))) != 0;
        if (!row.when.met(increments ? m_facts | codes::fact(Word::increments) : m_facts))
            return;
        if (!hasBothSigns(row)) {
            writeSigned(row, x, {}, 1.0);
            return;
        }
        writeSigned(row, x, "+", 1.0);
        writeSigned(row, x, "-", -1.0);
    }

    void writeSigned(const Row& row, std::string_view x, std::string_view sign, double signFactor) const
    {
        WrittenRow written;
        written.block = row.block;
        written.flag = static_cast<int>(row.flag) + (m_part.liveRoofIsSnow ? 10 : 0);
        written.text = row.text;
        replaceAll(written.text, codes::plusMinus, sign);
        if (!x.empty())
            replaceAll(written.text, eachGroup, x);
        const std::string_view governed = codes::signedTerm(row.text);
        for (const codes::Pair& pair : row.pairs) {
            double factor = factorOf(pair);
            if (factor == 0.0)
                continue;
            if (!pair.group.name.empty() && governed.find(pair.group.name) != std::string_view::npos)
                factor *= signFactor;
            written.factors.push_back({groupOf(pair, x), factor});
            if (const int mark = windMark(pair.with); mark >= 0)
                replaceAll(written.text, windMarks[mark], m_wind.w[mark].text);
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

    [[nodiscard]] std::string_view groupOf(const codes::Pair& pair, std::string_view x) const
    {
        if (isX(pair))
            return x;
        return m_part.liveRoofIsSnow && pair.group.name == "LR" ? std::string_view("SL") : pair.group.name;
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

codes::Facts typeFact(int combType)
{
    if (combType < 0 || combType > 4)
        return 0;
    return codes::fact(static_cast<Word>(static_cast<int>(Word::typeStrength) + combType));
}

int countRows(const codes::CodeTable& table)
{
    int count = 0;
    for (const Part& part : table.parts) {
        for (const Row& row : part.rows)
            count += (hasBothSigns(row) ? 2 : 1) * (namesX(row) ? static_cast<int>(std::size(eachGroupMeans)) : 1);
    }
    return count;
}

}  // namespace zel::loadcomb
