// Reading of key lists and numbers from any text. What is read is written and read again, and must be the same.

#include "contract/key_text.h"
#include "contract/number_text.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <numeric>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const CString text(reinterpret_cast<const char*>(data), size);

    CArray<std::uint32_t> keys(200);
    std::iota(keys.begin(), keys.end(), 1U);
    CArray<std::uint32_t> read;
    if (CNumericOptimizer::SelectNumByStr(keys, text, read) != 0) {
        CArray<std::uint32_t> again;
        if (CNumericOptimizer::SelectNumByStr(keys, CNumericOptimizer::Optimize(read), again) == 0 || again != read)
            std::abort();
    }

    MyParser parser;
    double value = 0.0;
    for (int left = parser.ParsingNumberArg(text); left > 0; --left) {
        if (parser.GetNumberData(value) == 0)
            std::abort();
    }
    if (parser.GetNumberData(value) != 0)
        std::abort();
    return 0;
}
