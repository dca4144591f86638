#pragma once

#include "contract/forms/control.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace zel {

/// Items of a text and a value each, kept in the order in which they were added; what combo and list boxes have in common.
class ItemControl : public Control {
public:
    using Control::Control;

    /// Adds an item at the end, or at a place, and returns its index.
    virtual int AddString(const CString& text, std::uintptr_t data = 0);
    /// Adds an item at the end that stands for a code which is a text: "D" for "Dead Load (D)", "" for "None".
    int AddCode(const CString& code, const CString& text);
    virtual int InsertString(int index, const CString& text, std::uintptr_t data = 0);
    /// Returns 0 for an index without an item.
    virtual int DeleteString(int index);
    /// Removes all items; nothing is selected then.
    virtual void ResetContent();

    [[nodiscard]] int GetCount() const { return static_cast<int>(m_items.size()); }
    /// Value of an item, 0 for an index without one.
    [[nodiscard]] std::uintptr_t GetItemData(int index) const;
    /// Returns 0 for an index without an item.
    int SetItemData(int index, std::uintptr_t data);
    /// Text of an item, empty for an index without one.
    [[nodiscard]] const CString& GetItemText(int index) const;
    void GetText(int index, CString& text) const { text = GetItemText(index); }

    /// Index of the first item with that text, case not regarded; -1 if there is none.
    [[nodiscard]] int FindStringExact(const CString& text) const;
    /// Index of the first item with that value; -1 if there is none.
    [[nodiscard]] int FindData(std::uintptr_t data) const;
    /// Index of the first item with that code, exactly; of an item without one its text is its code. -1 if there is none.
    [[nodiscard]] int FindCode(const CString& code) const;
    [[nodiscard]] std::vector<CString> items() const;

protected:
    struct Item {
        CString text;
        std::uintptr_t data = 0;
        std::optional<CString> code = {};

        [[nodiscard]] const CString& ownCode() const { return code ? *code : text; }
    };

    [[nodiscard]] bool has(int index) const { return index >= 0 && index < GetCount(); }
    /// Index of the item that a user names by text (as it stands, else as names of controls are compared) or by place; -1 if none.
    [[nodiscard]] int named(const UserValue& value) const;
    /// "there is no entry "X""
    [[nodiscard]] Taken noEntry(const UserValue& value) const;

    std::vector<Item> m_items;
};

}  // namespace zel

/// A drop-down list of which one item is selected.
class CComboBox : public zel::ItemControl {
public:
    /// @param onSelect  the user has chosen an item
    CComboBox(const zel::Place& place, std::string_view id, CString label, zel::Action<> onSelect = {});
    /// Shows a field: a code, which is the value of an item, or a text, which is the code of an item (AddCode) or its text. The
    /// choices of the field are its items from the start. While nothing is selected the field is left as it is.
    CComboBox(const zel::Place& place, std::string_view id, CString label, const zel::Field& field, zel::Action<> onSelect = {});

    [[nodiscard]] zel::Kind kind() const override { return zel::Kind::combo; }

    void showField(const void* record) override;
    [[nodiscard]] bool readField(void* record) const override;
    /// The text of the item with the field's code; empty if there is none.
    [[nodiscard]] CString fieldText(const void* record) const override;

    /// Selects an item; -1 none. An index that has no item is kept: GetCurSel gives it, and the box shows no text until there is one.
    void SetCurSel(int index);
    [[nodiscard]] int GetCurSel() const { return m_selected; }
    /// Selects the item with that text and returns its index; -1, with the selection as it was, if there is none.
    int SelectString(const CString& text);
    /// Value of the selected item, 0 if none is.
    [[nodiscard]] std::uintptr_t selectedData() const { return GetItemData(m_selected); }

    /// The user may type a text that is no item.
    void setEditable(bool editable = true) { m_editable = editable; }
    [[nodiscard]] bool isEditable() const { return m_editable; }

    void onSelect(zel::Action<> action) { m_onSelect = std::move(action); }
    /// The user has typed a text into an editable box.
    void onEdit(zel::Action<> action) { m_onEdit = std::move(action); }

    /// The text that is shown: of the selected item, or what was typed.
    [[nodiscard]] const CString& GetWindowText() const override;
    using CWnd::GetWindowText;
    /// Shows a text in an editable box; in another one it selects the item of that text, if there is one.
    void SetWindowText(const CString& text) override;

    int InsertString(int index, const CString& text, std::uintptr_t data = 0) override;
    int DeleteString(int index) override;
    void ResetContent() override;

    zel::Taken choose(const zel::UserValue& value) override;
    zel::Taken set(const zel::UserValue& value) override;
    zel::Taken select(const std::vector<int>& rows) override;
    void describe(zel::IFieldWriter& writer) const override;

private:
    /// The item that stands for the field's value; -1 if none does.
    [[nodiscard]] int itemOf(const void* record) const;

    zel::Action<> m_onSelect;
    zel::Action<> m_onEdit;
    int m_selected = -1;
    bool m_editable = false;
};

/// A list of items of which one, or several, are selected.
class CListBox : public zel::ItemControl {
public:
    enum class Selection { single, multiple };

    /// @param onSelect  the user has changed the selection
    CListBox(const zel::Place& place, std::string_view id, CString label, zel::Action<> onSelect = {}, Selection selection = Selection::single);

    [[nodiscard]] zel::Kind kind() const override { return zel::Kind::list; }
    [[nodiscard]] bool isMultiple() const { return m_multiple; }

    /// Selects one item and no other; -1, or an index without an item: none.
    void SetCurSel(int index);
    /// The first selected item; -1 for none.
    [[nodiscard]] int GetCurSel() const;
    /// Selects or unselects an item; in a list of single selection it takes the place of the selected one.
    void SetSel(int index, bool selected = true);
    [[nodiscard]] bool GetSel(int index) const { return has(index) && m_selected[static_cast<std::size_t>(index)]; }
    [[nodiscard]] std::vector<int> GetSelItems() const;

    void onSelect(zel::Action<> action) { m_onSelect = std::move(action); }
    void onDoubleClick(zel::Action<> action) { m_onDoubleClick = std::move(action); }

    int InsertString(int index, const CString& text, std::uintptr_t data = 0) override;
    int DeleteString(int index) override;
    void ResetContent() override;

    zel::Taken select(const std::vector<int>& rows) override;
    zel::Taken choose(const zel::UserValue& value) override;
    zel::Taken set(const zel::UserValue& value) override { return choose(value); }
    zel::Taken doubleClick(int row) override;
    void describe(zel::IFieldWriter& writer) const override;

private:
    zel::Action<> m_onSelect;
    zel::Action<> m_onDoubleClick;
    std::vector<bool> m_selected;
    bool m_multiple;
};

/// A list whose items have check boxes.
class CCheckListBox : public CListBox {
public:
    /// @param onCheck  the user has ticked or cleared an item
    CCheckListBox(const zel::Place& place, std::string_view id, CString label, zel::Action<> onCheck = {});

    [[nodiscard]] zel::Kind kind() const override { return zel::Kind::checklist; }
    void SetCheck(int index, bool checked = true);
    [[nodiscard]] bool GetCheck(int index) const { return has(index) && m_ticked[static_cast<std::size_t>(index)]; }
    [[nodiscard]] std::vector<int> checkedItems() const;
    void onCheck(zel::Action<> action) { m_onCheck = std::move(action); }

    int InsertString(int index, const CString& text, std::uintptr_t data = 0) override;
    int DeleteString(int index) override;
    void ResetContent() override;

    zel::Taken tick(int row, bool on) override;
    void describe(zel::IFieldWriter& writer) const override;

private:
    zel::Action<> m_onCheck;
    std::vector<bool> m_ticked;
};
