#pragma once

#include "contract/document.h"

namespace zel {

/// Several writes that are one change of the model. What is not ended by `end` is taken back.
class ChangeScope {
public:
    ChangeScope(CDBDoc& document, const CString& name, CDBDoc::NoticeTime notices) : m_document(document) { m_document.beginChange(name, notices); }
    ChangeScope(const ChangeScope&) = delete;
    ChangeScope& operator=(const ChangeScope&) = delete;
    ~ChangeScope()
    {
        if (m_ended)
            return;
        try {
            m_document.endChange(0);
        } catch (...) {  // without memory even taking back can fail; the file has done it by then
        }
    }

    /// Keeps the writes. Returns 0 when the file refused them: then nothing is changed.
    int end()
    {
        m_ended = true;
        return m_document.endChange(1);
    }

private:
    CDBDoc& m_document;
    bool m_ended = false;
};

}  // namespace zel
