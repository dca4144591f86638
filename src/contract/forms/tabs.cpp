#include "contract/forms/tabs.h"

#include "contract/forms/field_writer.h"
#include "contract/forms/row_numbers.h"

using zel::Taken;

CDlgTabCtrl::CDlgTabCtrl(const zel::Place& place, std::string_view id, zel::Action<> onSelect) : Control(place, id, {}), m_onSelect(std::move(onSelect)) {}

CDlgTabCtrl::~CDlgTabCtrl()
{
    for (const Tab& tab : m_tabs) {
        if (tab.page != nullptr)
            tab.page->setContainer(nullptr);
    }
}

int CDlgTabCtrl::AddPage(const CString& title, CDlgChild& page)
{
    const int index = AddTab(title);
    m_tabs.back().page = &page;
    page.setContainer(this);
    if (IsWindow())
        page.openInside();
    dialog().formChanged();
    return index;
}

int CDlgTabCtrl::AddTab(const CString& title)
{
    m_tabs.push_back({title, nullptr});
    if (m_selected < 0)
        m_selected = 0;
    changed();
    return GetPageCount() - 1;
}

void CDlgTabCtrl::DeleteAllPages()
{
    for (const Tab& tab : m_tabs) {
        if (tab.page == nullptr)
            continue;
        tab.page->closeInside();
        tab.page->setContainer(nullptr);
    }
    m_tabs.clear();
    m_selected = -1;
    dialog().formChanged();
}

CDlgChild* CDlgTabCtrl::GetPage(int index) const
{
    return index >= 0 && index < GetPageCount() ? m_tabs[static_cast<std::size_t>(index)].page : nullptr;
}

const CString& CDlgTabCtrl::GetTitle(int index) const
{
    static const CString nothing;
    return index >= 0 && index < GetPageCount() ? m_tabs[static_cast<std::size_t>(index)].title : nothing;
}

int CDlgTabCtrl::SetCurSel(int index)
{
    if (index < 0 || index >= GetPageCount())
        return 0;
    m_selected = index;
    changed();
    dialog().formChanged();
    return 1;
}

Taken CDlgTabCtrl::choose(const zel::UserValue& value)
{
    if (Taken reached = reach(); !reached)
        return reached;
    std::vector<CString> titles;
    for (const Tab& tab : m_tabs)
        titles.push_back(tab.title);
    const int index = zel::entryNamed(titles, value);
    if (index < 0)
        return refuse(zel::noSuchEntry(titles, value));
    const zel::UserAction action;
    if (Taken focused = focus(); !focused)
        return focused;
    SetCurSel(index);
    fire(m_onSelect);
    return {};
}

void CDlgTabCtrl::describe(zel::IFieldWriter& writer) const
{
    std::vector<CString> titles;
    for (const Tab& tab : m_tabs)
        titles.push_back(tab.title);
    writer.texts("items", titles);
    writer.number("selected", m_selected < 0 ? std::nullopt : std::optional<int>(m_selected));
}

std::vector<zel::Control::Nested> CDlgTabCtrl::nested() const
{
    std::vector<Nested> pages;
    for (int i = 0; i < GetPageCount(); ++i)
        pages.push_back({GetPage(i), GetTitle(i), i == m_selected});
    return pages;
}

void CDlgTabCtrl::forget(const CDialog& page)
{
    for (Tab& tab : m_tabs) {
        if (tab.page == &page)
            tab.page = nullptr;
    }
}
