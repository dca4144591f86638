// Hostile files of 64 MiB: what the reader holds meanwhile is counted by the allocations of the whole program.

#include "../../bench/counted_memory.h"
#include "loadcomb/editor/lcb_import.h"
#include "platform/modeldb/model_document.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <istream>
#include <streambuf>
#include <string>

namespace {

/// A piece of text over and over, up to a size.
class Repeated : public std::streambuf {
public:
    Repeated(const std::string& piece, std::size_t size) : m_left(size)
    {
        while (m_block.size() < std::max<std::size_t>(piece.size(), 1U << 16))
            m_block += piece;
    }

protected:
    int_type underflow() override
    {
        const std::size_t size = std::min(m_left, m_block.size());
        m_left -= size;
        setg(m_block.data(), m_block.data(), m_block.data() + size);
        return size == 0 ? traits_type::eof() : traits_type::to_int_type(m_block[0]);
    }

private:
    std::string m_block;
    std::size_t m_left;
};

struct Reading {
    zel::lcb::Contents contents;
    std::ptrdiff_t peak = 0;    ///< memory held meanwhile [bytes]
};

Reading read(std::streambuf& buffer)
{
    const auto model = zel::ModelDocument::inMemory();
    const std::vector<zel::Key> cases{1, 2, 3};
    std::istream file(&buffer);
    using zel::bench::memory;
    memory = {true, 0, 0};
    Reading reading{zel::lcb::read(file, cases), 0};
    memory.on = false;
    reading.peak = memory.peak;
    return reading;
}

constexpr std::size_t hostileSize = 64U << 20;
constexpr std::ptrdiff_t little = 256 << 10;

TEST(HostileLcb, LinesThatMakeNoRecordsTakeNoMemory)
{
    std::string pairs;
    for (int i = 0; i < 50; ++i)
        pairs += ",1,0";
    const std::string lines[] = {
        "** " + std::string(1000, '-') + "\n",
        std::string(1000, ' ') + "\n",
        std::string(1000, ',') + "\n",
        std::string(500, '\r') + "\n",
        "5," + std::string(800, 'x') + pairs + "\n",
    };
    for (const std::string& line : lines) {
        Repeated file(line, hostileSize / line.size() * line.size());
        const Reading reading = read(file);
        EXPECT_FALSE(reading.contents.fault.has_value()) << line.substr(0, 20) << reading.contents.fault->text;
        EXPECT_LE(reading.contents.combinations.size(), 1U);
        EXPECT_LT(reading.peak, little) << line.substr(0, 20);
    }
}

TEST(HostileLcb, AFileWithoutEndsOfLinesStopsAtOnce)
{
    for (const std::string& piece : {std::string("x"), std::string(1, '\0'), std::string(","), std::string("1,"), std::string("\xFF")}) {
        Repeated file(piece, hostileSize);
        const Reading reading = read(file);
        ASSERT_TRUE(reading.contents.fault.has_value());
        EXPECT_STREQ(reading.contents.fault->key, "IDS_ZEL_CMD__Error___Invalid_LCB_file_format_");
        EXPECT_LT(reading.peak, little);
    }
}

TEST(HostileLcb, DeepExpressionsInAFactorAreJudgedWithoutACrash)
{
    for (const char* piece : {"(", "-", "1^", "2*", "((1)", "1e9^"}) {
        std::string factor;
        while (factor.size() < 1000)
            factor += piece;
        for (const std::string& line : {"1,x,1," + factor.substr(0, 1000), "1,x,1," + factor.substr(0, 1000) + "1"}) {
            Repeated file(line + "\n", line.size() + 1);
            (void)read(file);    // any answer will do
        }
    }
}

/// As many records as a size holds: each line a new ID.
class Counting : public std::streambuf {
public:
    explicit Counting(std::size_t size) : m_left(size) {}

protected:
    int_type underflow() override
    {
        m_line = std::to_string(m_id++) + ",x,1,1\n";
        if (m_line.size() > m_left)
            return traits_type::eof();
        m_left -= m_line.size();
        setg(m_line.data(), m_line.data(), m_line.data() + m_line.size());
        return traits_type::to_int_type(m_line[0]);
    }

private:
    std::string m_line;
    std::size_t m_left;
    int m_id = 0;
};

TEST(HostileLcb, ManySmallRecordsTakeMemoryInProportion)
{
    Counting file(4U << 20);
    const Reading reading = read(file);
    ASSERT_FALSE(reading.contents.fault.has_value());
    const auto count = static_cast<std::ptrdiff_t>(reading.contents.combinations.size());
    EXPECT_GT(count, 300000);
    constexpr std::ptrdiff_t record = sizeof(T_LCOM_D) + sizeof(T_LCOM_ITEM);
    EXPECT_LT(reading.peak, 4 * record * count) << "the list that grows, the list of IDs, and what the allocator adds";
}

}  // namespace
