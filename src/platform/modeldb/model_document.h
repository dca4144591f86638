#pragma once

#include "contract/document.h"
#include "contract/forms/dlg_modeless_mgr.h"
#include "contract/records/unit_index.h"
#include "platform/catalogue/load_types.h"
#include "platform/modeldb/change.h"
#include "platform/modeldb/model_file.h"
#include "platform/modeldb/settings.h"
#include "platform/modeldb/stored_table.h"
#include "platform/modeldb/unit_ctrl.h"
#include "platform/modeldb/view_ctrl.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

namespace zel {

/// The open model: tables in memory, written through to its file, with undo, notices and the services of a document.
///
/// A model without a file lives in memory alone. Making one makes it the current document.
class ModelDocument final : public CDBDoc, private ChangeSink {
public:
    /// A new empty model in memory, in millimetres and kilonewtons unless said otherwise.
    static std::unique_ptr<ModelDocument> inMemory(const T_UNIT_INDEX& units = {});

    /// Makes a new empty model file and opens it.
    /// @throws FileRefusal
    static std::unique_ptr<ModelDocument> create(const std::filesystem::path& path, const T_UNIT_INDEX& units = {});

    /// Opens a model file and checks that it is exactly what was stored. Opened for reading only, it is the model as it stands now: it needs no lock,
    /// leaves no trace, and refuses every change.
    /// @throws FileRefusal
    static std::unique_ptr<ModelDocument> open(const std::filesystem::path& path, ModelFile::Access access = ModelFile::Access::write);

    ~ModelDocument() override;

    /// Writes the whole model to a new file; this document stays with its own.
    /// @throws FileRefusal
    void saveCopy(const std::filesystem::path& path, bool replace) const;

    /// Checks the structure of the model's file, beyond the contents that opening has checked.
    /// @throws FileRefusal
    void checkStructure() const;

    /// Ends the work on the file: the model stays in memory, without one. The destructor does the same and tells nothing.
    /// @throws FileRefusal  when the path no longer leads to the file that was opened; what was written is in that one
    void close();

    /// Whether every change is refused, because the file was opened for reading only.
    [[nodiscard]] bool isReadOnly() const { return m_file && m_file->isReadOnly(); }

    /// Facts about the model's file; nothing for a model in memory.
    [[nodiscard]] std::optional<FileFacts> fileFacts() const;
    [[nodiscard]] T_UNIT_INDEX units() const { return m_storedUnits; }

    CDlgModelessMgr* GetDlgCtrl() override { return &m_dialogs; }
    CInitCtrl* GetInitCtrl() override { return &m_settings; }
    CUnitCtrl* GetUnitCtrl() override { return &m_units; }
    CViewCtrl* GetViewCtrl() override { return &m_view; }
    CViewBuff* GetViewBuff() override { return &m_viewBuffer; }
    CLoadDB* GetLoadDB() override { return &m_loadTypes; }
    CMatlDB* GetMatlDB() override { return nullptr; }
    CPileDB* GetPileDB() override { return nullptr; }
    CSectDB* GetSectDB() override { return nullptr; }
    [[nodiscard]] CString GetPathName() const override;
    int PromptModelFile(CString& path) override;
    ITable& table(Table table) override { return *m_tables[static_cast<std::size_t>(table)]; }
    void join(CDBUpdateConnector& listener) override;
    void leave(CDBUpdateConnector& listener) override;
    void notify(CView* sender, long long hint, CObject* object) override;
    int Undo() override;
    int Redo() override;
    [[nodiscard]] CString undoName() const override { return m_undo.empty() ? CString() : m_undo.back().name; }
    [[nodiscard]] CString redoName() const override { return m_redo.empty() ? CString() : m_redo.back().name; }
    /// How many changes can be taken back, and made again.
    [[nodiscard]] std::size_t undoCount() const { return m_undo.size(); }
    [[nodiscard]] std::size_t redoCount() const { return m_redo.size(); }
    /// Takes back all changes since the model was opened, in one transaction: after a crash either all or none of them are taken back. Listeners
    /// get one notice of what differs, and hint 4 if the units do. Redo makes the changes again one by one. Returns 0 when there is none or the
    /// file refused it.
    int undoAll();
    void beginChange(const CString& name, NoticeTime notices = NoticeTime::atEnd) override;
    int endChange(int keep) override;

private:
    explicit ModelDocument(const T_UNIT_INDEX& units, std::unique_ptr<ModelFile> file);

    // ChangeSink
    int make(const CString& name, Batch&& batch) override;
    [[nodiscard]] CString usersOf(Table table, const std::vector<Key>& keys) const override;

    [[nodiscard]] bool perform(Batch batch);
    [[nodiscard]] bool performAll(const ChangeRecord& change);
    [[nodiscard]] bool commitRunning();
    void takeBack();
    void load(StoredTable& table);
    int convertModel(const T_UNIT_INDEX& units);
    int replay(std::vector<ChangeRecord>& from, std::vector<ChangeRecord>& to, long long hint);
    void tell(const ChangeRecord& change, long long hint);
    [[nodiscard]] std::vector<Batch> everything() const;

    std::unique_ptr<ModelFile> m_file;
    std::vector<std::unique_ptr<StoredTable>> m_tables;
    T_UNIT_INDEX m_storedUnits;
    UnitCtrl m_units;
    Settings m_settings;
    ViewCtrl m_view;
    CViewBuff m_viewBuffer;
    LoadTypes m_loadTypes;
    CDlgModelessMgr m_dialogs;

    std::vector<CDBUpdateConnector*> m_listeners;  // null where one left during a notice
    int m_notifying = 0;

    ChangeRecord m_running;  // the change between beginChange and endChange
    int m_depth = 0;
    bool m_failed = false;
    NoticeTime m_noticeTime = NoticeTime::atEnd;
    std::vector<ChangeRecord> m_undo;
    std::vector<ChangeRecord> m_redo;
};

}  // namespace zel
