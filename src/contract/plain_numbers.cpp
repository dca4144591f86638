#include "contract/plain_numbers.h"

#include <clocale>

namespace zel {

PlainNumbers::PlainNumbers()
{
    static const locale_t plain = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr));
    m_former = uselocale(plain);
}

PlainNumbers::~PlainNumbers()
{
    uselocale(static_cast<locale_t>(m_former));
}

}  // namespace zel
