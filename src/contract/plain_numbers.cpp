#include "contract/plain_numbers.h"

#include <clocale>

namespace zel {

#ifdef _WIN32

PlainNumbers::PlainNumbers() : m_former(nullptr)
{
    _configthreadlocale(_ENABLE_PER_THREAD_LOCALE);
    std::setlocale(LC_NUMERIC, "C");
}

PlainNumbers::~PlainNumbers()
{
    _configthreadlocale(_DISABLE_PER_THREAD_LOCALE);
}

#else

PlainNumbers::PlainNumbers()
{
    static const locale_t plain = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr));
    m_former = uselocale(plain);
}

PlainNumbers::~PlainNumbers()
{
    uselocale(static_cast<locale_t>(m_former));
}

#endif

}  // namespace zel
