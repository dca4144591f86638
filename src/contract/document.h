#pragma once

#include "contract/notices.h"
#include "contract/table_store.h"
#include "contract/text.h"

#include <vector>

class CDlgModelessMgr;
class CInitCtrl;
class CLoadDB;
class CMatlDB;
class CPileDB;
class CSectDB;
class CUnitCtrl;
class CViewCtrl;

/// The model document: its tables and services. One document is current at a time; it enters itself when it is made and
/// leaves when it is destroyed, so that no document outlives its owner.
class CDBDoc {
public:
    CDBDoc();
    CDBDoc(const CDBDoc&) = delete;
    CDBDoc& operator=(const CDBDoc&) = delete;
    virtual ~CDBDoc();

    /// The current document; null if no model is open.
    static CDBDoc* GetDocPoint();

    virtual CDlgModelessMgr* GetDlgCtrl() = 0;
    virtual CInitCtrl* GetInitCtrl() = 0;
    virtual CUnitCtrl* GetUnitCtrl() = 0;
    virtual CViewCtrl* GetViewCtrl() = 0;
    virtual CViewBuff* GetViewBuff() = 0;
    virtual CLoadDB* GetLoadDB() = 0;
    virtual CMatlDB* GetMatlDB() = 0;
    virtual CPileDB* GetPileDB() = 0;
    virtual CSectDB* GetSectDB() = 0;

    /// Path of the model file; empty for a model in memory.
    [[nodiscard]] virtual CString GetPathName() const = 0;
    /// Asks the user for a model file. Returns 0 when it was cancelled.
    virtual int PromptModelFile(CString& path) = 0;

    virtual zel::ITable& table(Table table) = 0;

    /// Listeners of change notices; for CDBUpdateConnector. A listener may join or leave from inside a notice.
    virtual void join(CDBUpdateConnector& listener) = 0;
    virtual void leave(CDBUpdateConnector& listener) = 0;
    /// Calls every listener with this hint; for the services of the document.
    virtual void notify(CView* sender, long long hint, CObject* object) = 0;

    /// Takes the last change back, or makes it again. Return 0 when there is none or the file refused it.
    virtual int Undo() = 0;
    virtual int Redo() = 0;
    /// What the next undo or redo concerns, for a menu: "Add static load case \"DL\""; empty when there is none.
    [[nodiscard]] virtual CString undoName() const = 0;
    [[nodiscard]] virtual CString redoName() const = 0;

    /// Changes made between these two calls are one change: one transaction, one undo step. They nest. Listeners get one notice at the
    /// end, or with `NoticeTime::each` one at each write, as if it stood alone. `endChange` with 0 takes everything since
    /// `beginChange` back; it returns 0 when nothing was kept.
    enum class NoticeTime { atEnd, each };
    virtual void beginChange(const CString& name, NoticeTime notices = NoticeTime::atEnd) = 0;
    virtual int endChange(int keep) = 0;
};
