#include "contract/forms/mouse_edit.h"

#include "contract/format_text.h"
#include "contract/forms/field_writer.h"
#include "contract/model_view.h"
#include "contract/number_text.h"

#include <algorithm>
#include <string>

using zel::Taken;

CMouseEdit::CMouseEdit(const zel::Place& place, std::string_view id, CString label, zel::Action<> onChange)
    : CEdit(place, id, std::move(label), std::move(onChange))
{
}

int CMouseEdit::GetObjectKList(std::vector<zel::Key>& keys) const
{
    constexpr const char* separators = ", \t";
    keys.clear();
    const CString& text = GetWindowText();
    std::size_t begin = text.find_first_not_of(separators);
    while (begin != CString::npos) {
        const std::size_t end = text.find_first_of(separators, begin);
        const std::optional<int> key = zel::number::readInteger(std::string_view(text).substr(begin, end - begin));
        if (key && *key > 0)
            keys.push_back(static_cast<zel::Key>(*key));
        begin = text.find_first_not_of(separators, end);
    }
    return keys.empty() ? 0 : 1;
}

void CMouseEdit::SetKeyList(const std::vector<zel::Key>& keys, const CString& separator)
{
    CString text;
    for (const zel::Key key : keys)
        text += (text.empty() ? "" : separator) + std::to_string(key);
    SetWindowText(text);
}

Taken CMouseEdit::pick(const std::vector<unsigned>& picked, bool closed)
{
    if (Taken reached = reach(); !reached)
        return reached;
    const zel::UserAction action;
    if (Taken focused = focus(); !focused)  // first: a handler of the focus may empty the field
        return focused;

    std::vector<zel::Key> keys;
    GetObjectKList(keys);
    for (const zel::Key key : picked) {
        if (std::find(keys.begin(), keys.end(), key) == keys.end())
            keys.push_back(key);
    }
    if (m_limit > 0 && keys.size() > static_cast<std::size_t>(m_limit))
        return refuse(zel::formatText("holds at most %d %s", m_limit, m_takesNodes ? "nodes" : "objects"));
    SetKeyList(keys);
    if (I_ZELModelBase* view = I_ZELModelBase::GetCurMySelfST())
        view->setPickClosed(closed);
    fire(m_onMouse);
    return {};
}

void CMouseEdit::describe(zel::IFieldWriter& writer) const
{
    std::vector<zel::Key> keys;
    GetObjectKList(keys);
    CEdit::describe(writer);
    writer.keys("keys", keys);
}
