#pragma once

#include "loadcomb/generation/expansion.h"

namespace zel::loadcomb {

template <class Make> void RowExpansion::replaceEach(std::size_t timesMore, const Make& make)
{
    Drafts replaced;
    replaced.started = true;
    replaced.list.reserve(m_drafts.list.size() * timesMore);
    for (std::size_t from = 0; from < m_drafts.list.size(); ++from)
        make(m_drafts.list[from], from, replaced);
    m_drafts = std::move(replaced);
}

}  // namespace zel::loadcomb
