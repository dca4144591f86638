#include "contract/document.h"

namespace {

/// The documents that are open, the current one last.
std::vector<CDBDoc*>& openDocuments()
{
    static std::vector<CDBDoc*> documents;
    return documents;
}

}  // namespace

CDBDoc::CDBDoc()
{
    openDocuments().push_back(this);
}

CDBDoc::~CDBDoc()
{
    std::erase(openDocuments(), this);
}

CDBDoc* CDBDoc::GetDocPoint()
{
    return openDocuments().empty() ? nullptr : openDocuments().back();
}
