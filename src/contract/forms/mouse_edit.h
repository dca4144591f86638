#pragma once

#include "contract/forms/edit.h"
#include "contract/table_store.h"

#include <vector>

/// An edit field that collects the keys of what is picked in the model view, in the order of picking. Keys can also be typed; the
/// text is the only state: keys separated by commas or blanks.
class CMouseEdit : public CEdit {
public:
    CMouseEdit(const zel::Place& place, std::string_view id, CString label, zel::Action<> onChange = {});

    [[nodiscard]] zel::Kind kind() const override { return zel::Kind::pick; }

    /// It collects keys of objects (of nodes).
    void SetAttObjectKeyList() { m_takesNodes = false; }
    void SetAttNodeList() { m_takesNodes = true; }
    [[nodiscard]] bool takesNodes() const { return m_takesNodes; }
    /// The pick mode of the view while it has the focus: 100 objects, 37 nodes in order.
    void SetModeToUse(int mode) { m_mode = mode; }
    [[nodiscard]] int modeToUse() const { return m_mode; }
    /// How many keys a pick may bring it to; 0 for no limit.
    void SetMaxObjectKeyNum(int count) { m_limit = count; }
    void SetMaxNodeKeyNum(int count) { m_limit = count; }

    /// The keys in the field; what is no key is passed over. Return 0 when there are none.
    int GetObjectKList(std::vector<zel::Key>& keys) const;
    int GetNodeKList(std::vector<zel::Key>& keys) const { return GetObjectKList(keys); }
    /// Shows keys, joined by `separator`.
    void SetKeyList(const std::vector<zel::Key>& keys, const CString& separator = ",");
    void ClearNodeKeyList() { SetWindowText({}); }
    void ClearObjectKeyList() { SetWindowText({}); }

    /// The user has clicked in the model view while the field had the focus. Enter and Escape: CEdit.
    void onMouse(zel::Action<> action) { m_onMouse = std::move(action); }

    /// Appends the keys that it does not hold yet; refused as a whole if they are more than it may hold.
    zel::Taken pick(const std::vector<unsigned>& keys, bool closed) override;
    void describe(zel::IFieldWriter& writer) const override;

private:
    zel::Action<> m_onMouse;
    int m_mode = 0;
    int m_limit = 0;
    bool m_takesNodes = false;
};
