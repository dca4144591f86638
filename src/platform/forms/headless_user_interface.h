#pragma once

#include "contract/model_view.h"
#include "contract/user_interface.h"
#include "platform/forms/active_objects.h"

#include <deque>
#include <functional>
#include <optional>
#include <vector>

namespace zel {

/// A model view without a picture: it keeps the mode, the pick and which objects are active.
class HeadlessModelView final : public I_ZELModelBase {
public:
    [[nodiscard]] bool IsPickClosed() const override { return m_closed; }
    void ResetPick() override { m_closed = false; }
    void GetSelectedLines(std::vector<Key>& keys) const override;
    void ActivateOnly(const std::vector<Key>& points, const std::vector<Key>& lines, const std::vector<Key>& areas, bool objectsOnly) override
    {
        m_active.only({points, lines, areas});
        m_objectsOnly = objectsOnly;
    }
    void ActivateCommon(int mode, const std::vector<Key>& points, const std::vector<Key>& lines, const std::vector<Key>& areas, bool objectsOnly) override
    {
        m_active.common(mode, {points, lines, areas});
        m_objectsOnly = objectsOnly;
    }
    void ActivateAll() override { m_active.all(); }
    void setPickClosed(bool closed) override { m_closed = closed; }
    [[nodiscard]] int modelingMode() const override { return m_mode; }
    void setModelingMode(int mode) override { m_mode = mode; }
    [[nodiscard]] std::optional<T_SELECTION> activeObjects() const override { return m_active.selection(); }
    [[nodiscard]] bool showsActiveOnly() const override { return m_objectsOnly; }

    using Objects = ActiveObjects::Keys;
    /// The active objects, each list ascending; none: all are active.
    [[nodiscard]] const std::optional<Objects>& active() const { return m_active.keys(); }

private:
    ActiveObjects m_active;
    int m_mode = -1;
    bool m_objectsOnly = false;
    bool m_closed = false;
};

/// A user interface for tests: it records what happens and answers from queues. It installs itself, with a model view, and puts
/// the former ones back when it goes.
class HeadlessUserInterface : public IUserInterface {
public:
    HeadlessUserInterface();
    ~HeadlessUserInterface() override;

    struct Box {
        CString key;   ///< of its message, where texts show their keys ("[KEY]text")
        CString text;  ///< without the key
        unsigned type = MB_OK;
        int answer = 0;
    };
    struct Command {
        unsigned number = 0;
        bool posted = false;
        bool operator==(const Command&) const = default;
    };
    /// What happened, in order: "opened CCMLoadCaseDlg", "message ...", "posted 32869", "closed ... 2".
    std::vector<CString> events;
    std::vector<Box> boxes;
    std::vector<Command> commands;
    std::vector<CString> outputs;
    std::vector<CString> histories;
    std::vector<CString> fileFilters;
    std::vector<CString> processes;
    std::vector<CString> warnings;  ///< of grids
    std::vector<int> preferencePages;
    HeadlessModelView view;

    // What the user will do.

    /// The answer to the next question that has none yet: IDYES or IDNO. Without one it is Yes; a box with OK alone takes none.
    void answer(int answer) { m_answers.push_back(answer); }
    /// The next file that is asked for; none: cancelled. Without an entry it is cancelled.
    void file(std::optional<CString> path) { m_files.push_back(std::move(path)); }
    /// What the user does in the next modal dialog that opens. If it is still open when the script ends, it is closed by its
    /// close box, and ended as cancelled if even that leaves it open. Without a script it is closed at once.
    void inModal(std::function<void(CDialog&)> script) { m_scripts.push_back(std::move(script)); }
    /// Whether starting a program succeeds.
    bool processesStart = true;
    /// What the host does with a command: at once when it is sent, by runPosted() or when the next modal dialog waits when it is posted.
    std::function<void(unsigned)> onCommand;
    std::chrono::system_clock::time_point clock;
    std::uint64_t memory = 8ULL << 30;
    CString folder = "./";

    /// Keys of all boxes, in order.
    [[nodiscard]] std::vector<CString> keys() const;
    /// Carries the posted commands out that wait.
    void runPosted();
    /// Whether nothing is left that was queued for the user to do.
    [[nodiscard]] bool allDone() const { return m_answers.empty() && m_files.empty() && m_scripts.empty(); }

    int messageBox(const CString& text, unsigned type) override;
    bool openFile(const CString& filter, CString& path) override;
    void runModal(CDialog& dialog) override;
    void dialogOpened(CDialog& dialog) override;
    void dialogActivated(CDialog& dialog) override;
    void dialogClosed(CDialog& dialog) override;
    void sendCommand(unsigned number) override;
    void postCommand(unsigned number) override;
    void showPreferences(int page) override;
    void output(const CString& line) override;
    void history(const CString& line) override;
    void busy(const CString& text) override;
    bool startProcess(const CString& commandLine) override;
    [[nodiscard]] CString programFolder() const override { return folder; }
    [[nodiscard]] std::chrono::system_clock::time_point now() const override { return clock; }
    [[nodiscard]] std::uint64_t physicalMemory() const override { return memory; }
    void gridWarning(Control& grid, const CString& text) override;
    void modelingMode(int mode) override;

private:
    IUserInterface* m_former;
    I_ZELModelBase* m_formerView;
    std::deque<int> m_answers;
    std::deque<std::optional<CString>> m_files;
    std::deque<std::function<void(CDialog&)>> m_scripts;
    std::deque<unsigned> m_posted;
};

}  // namespace zel
