#pragma once

#include "contract/document.h"
#include "contract/view_ctrl.h"

#include <array>
#include <set>
#include <vector>

namespace zel {

/// The selection, kept beside the model: it is not stored and has no undo but `SelectPrevious`.
class ViewCtrl final : public CViewCtrl {
public:
    explicit ViewCtrl(CDBDoc& document) : m_document(document) {}

    void GetAllSelectedNode(std::vector<Key>& keys) const override { keys = listed(nodes); }
    void GetAllSelectedElem(std::vector<Key>& keys) const override { keys = listed(elements); }
    void GetAllSelectedPont(std::vector<Key>& keys) const override { keys = listed(points); }
    void GetAllSelectedLine(std::vector<Key>& keys) const override { keys = listed(lines); }
    void GetAllSelectedArea(std::vector<Key>& keys) const override { keys = listed(areas); }
    void GetAllUnSelectedNode(std::vector<Key>& keys) const override { keys = others(nodes); }
    void GetAllUnSelectedElem(std::vector<Key>& keys) const override { keys = others(elements); }
    void GetAllUnSelectedPont(std::vector<Key>& keys) const override { keys = others(points); }
    void GetAllUnSelectedLine(std::vector<Key>& keys) const override { keys = others(lines); }
    void GetAllUnSelectedArea(std::vector<Key>& keys) const override { keys = others(areas); }

    void select(const T_SELECTION& keys, bool replace) override;
    void unselect(const T_SELECTION& keys) override;
    void SelectPrevious() override;
    void UnselectAll(CView* view) override;
    [[nodiscard]] T_SELECTION selection() const override;

    /// Drops the keys whose objects a change of the model has deleted. Tells nobody: the change's own notice does.
    void dropMissing();

private:
    enum Kind : std::size_t { points, lines, areas, nodes, elements, kindCount };
    using Selection = std::array<std::set<Key>, kindCount>;

    [[nodiscard]] static const std::vector<Key>& of(const T_SELECTION& keys, std::size_t kind);
    [[nodiscard]] static Table tableOf(std::size_t kind);
    [[nodiscard]] std::vector<Key> listed(std::size_t kind) const;
    [[nodiscard]] std::vector<Key> others(std::size_t kind) const;
    void take(Selection selection);

    CDBDoc& m_document;
    Selection m_selected;
    Selection m_before;
};

}  // namespace zel
