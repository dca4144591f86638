#include "contract/notices.h"

#include "contract/document.h"

#include <stdexcept>

CDBUpdateConnector::CDBUpdateConnector()
{
    if (CDBDoc* document = CDBDoc::GetDocPoint())
        document->join(*this);
}

CDBUpdateConnector::~CDBUpdateConnector()
{
    if (CDBDoc* document = CDBDoc::GetDocPoint())
        document->leave(*this);
}

T_UDRD_BUFFER CViewBuff::GetNextBuffer(POSITION& position) const
{
    const T_UDRD_BUFFER current = *position;
    const T_UDRD_BUFFER* next = position + 1;
    position = next != m_buffers.data() + m_buffers.size() ? next : nullptr;
    return current;
}

const CViewBuff::Entry& CViewBuff::at(int index) const
{
    if (index < 0 || static_cast<std::size_t>(index) >= m_entries.size())
        throw std::invalid_argument("index outside the change buffer");
    return m_entries[static_cast<std::size_t>(index)];
}

void CViewBuff::assign(std::vector<Entry> entries)
{
    m_entries = std::move(entries);
    m_buffers.clear();
    m_buffers.reserve(m_entries.size());
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        m_entries[i].buffer.dataIndex = static_cast<std::int32_t>(i);
        m_buffers.push_back(m_entries[i].buffer);
    }
}

void CViewBuff::swap(CViewBuff& other) noexcept
{
    m_entries.swap(other.m_entries);
    m_buffers.swap(other.m_buffers);
}
