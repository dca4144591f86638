// The formula of a cell from any text. A sound one has a finite value in the range of cells, which parentheses around it don't change.

#include "contract/forms/expression.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    const zel::Expression read = zel::evaluateExpression(text);
    if (read.fault != zel::ExpressionFault::none)
        return 0;
    if (!std::isfinite(read.value) || std::abs(read.value) > 1e30)
        std::abort();
    const zel::Expression again = zel::evaluateExpression("( " + text + " )");
    if (again.fault != zel::ExpressionFault::none || again.value != read.value)
        std::abort();
    return 0;
}
