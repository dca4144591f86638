#pragma once

#include "contract/forms/open_dialogs.h"

#include <memory>
#include <vector>

class CDialog;

namespace zel {

/// The dialogs that are open, front first, and those that were closed and wait to be deleted.
class WindowList {
public:
    static WindowList& instance();

    void toFront(CDialog& dialog);
    void remove(const CDialog& dialog);
    [[nodiscard]] const std::vector<CDialog*>& open() const { return m_open; }

    /// Takes a dialog over that was made by `new`; it is deleted when no user action is under way.
    void deleteLater(CDialog& dialog);
    void deleteClosed();

    void actionBegins() { ++m_actions; }
    void actionEnds();
    [[nodiscard]] bool actionUnderWay() const { return m_actions > 0; }

private:
    std::vector<CDialog*> m_open;
    std::vector<CDialog*> m_closed;
    int m_actions = 0;
};

}  // namespace zel
