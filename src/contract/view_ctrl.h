#pragma once

#include "contract/table_store.h"

#include <vector>

class CView;

/// Object and node keys by kind, for one call that selects or unselects several kinds.
struct T_SELECTION {
    std::vector<zel::Key> points;
    std::vector<zel::Key> lines;
    std::vector<zel::Key> areas;
    std::vector<zel::Key> nodes;
    std::vector<zel::Key> elements;

    bool operator==(const T_SELECTION&) const = default;
};

/// The selection of the model views. Every change of it reaches the listeners with hint 5. All lists are in ascending order.
///
/// "Unselected" are the keys that exist and are not selected; "current" is what the selection had before it was last changed
/// by picking: here the same as the selection.
class CViewCtrl {
public:
    CViewCtrl() = default;
    CViewCtrl(const CViewCtrl&) = delete;
    CViewCtrl& operator=(const CViewCtrl&) = delete;
    virtual ~CViewCtrl() = default;

    virtual void GetAllSelectedNode(std::vector<zel::Key>& keys) const = 0;
    virtual void GetAllSelectedElem(std::vector<zel::Key>& keys) const = 0;
    virtual void GetAllSelectedPont(std::vector<zel::Key>& keys) const = 0;
    virtual void GetAllSelectedLine(std::vector<zel::Key>& keys) const = 0;
    virtual void GetAllSelectedArea(std::vector<zel::Key>& keys) const = 0;

    virtual void GetAllUnSelectedNode(std::vector<zel::Key>& keys) const = 0;
    virtual void GetAllUnSelectedElem(std::vector<zel::Key>& keys) const = 0;
    virtual void GetAllUnSelectedPont(std::vector<zel::Key>& keys) const = 0;
    virtual void GetAllUnSelectedLine(std::vector<zel::Key>& keys) const = 0;
    virtual void GetAllUnSelectedArea(std::vector<zel::Key>& keys) const = 0;

    void GetCurrentNode(std::vector<zel::Key>& keys) const { GetAllSelectedNode(keys); }
    void GetCurrentElem(std::vector<zel::Key>& keys) const { GetAllSelectedElem(keys); }
    void GetCurrentPont(std::vector<zel::Key>& keys) const { GetAllSelectedPont(keys); }
    void GetCurrentLine(std::vector<zel::Key>& keys) const { GetAllSelectedLine(keys); }
    void GetCurrentArea(std::vector<zel::Key>& keys) const { GetAllSelectedArea(keys); }

    /// Adds the keys to the selection, or with `replace` makes them the selection. Keys without an object are left out.
    virtual void select(const T_SELECTION& keys, bool replace) = 0;
    virtual void unselect(const T_SELECTION& keys) = 0;
    /// Restores the selection before the last change of it.
    virtual void SelectPrevious() = 0;
    virtual void UnselectAll(CView* view) = 0;

    [[nodiscard]] virtual T_SELECTION selection() const = 0;
};
