#include "contract/forms/wnd.h"

void CWnd::SetWindowText(const CString& text)
{
    m_text = text;
    changed();
}

void CWnd::EnableWindow(bool enable)
{
    m_enabled = enable;
    changed();
}

void CWnd::ShowWindow(bool show)
{
    m_shown = show;
    shown(show);
}
