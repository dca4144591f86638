#pragma once

namespace zel {

/// A dialog with pages, which a host may open at one of them.
class IPagedDialog {
public:
    IPagedDialog() = default;
    IPagedDialog(const IPagedDialog&) = delete;
    IPagedDialog& operator=(const IPagedDialog&) = delete;
    virtual ~IPagedDialog() = default;

    /// Shows a page; before the window is made, the one on which it opens. Which numbers there are is the dialog's own matter.
    virtual void ActivateTab(int page) = 0;
};

}  // namespace zel
