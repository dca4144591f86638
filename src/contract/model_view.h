#pragma once

#include "contract/table_store.h"
#include "contract/view_ctrl.h"

#include <optional>
#include <vector>

/// The active model view. Modelling modes: -1 none, 26 drawing an outline.
class I_ZELModelBase {
public:
    I_ZELModelBase() = default;
    I_ZELModelBase(const I_ZELModelBase&) = delete;
    I_ZELModelBase& operator=(const I_ZELModelBase&) = delete;
    virtual ~I_ZELModelBase() = default;

    /// The active view; null if there is none.
    static I_ZELModelBase* GetCurMySelfST();
    /// Sets the mouse mode of the active view; -1 ends any mode.
    static void SetModelingModeST(int mode);
    /// Makes `view` the active one and returns the former; for hosts.
    static I_ZELModelBase* setCurrent(I_ZELModelBase* view);

    /// Whether the outline that is being picked is closed.
    [[nodiscard]] virtual bool IsPickClosed() const = 0;
    virtual void ResetPick() = 0;
    /// The lines that are selected in the view, in ascending order.
    virtual void GetSelectedLines(std::vector<zel::Key>& keys) const = 0;

    /// Make the given objects the active ones; mode 1 adds them to the active ones, mode 2 takes them out; activate everything.
    /// @param objectsOnly  state of "Activated Object Only"
    virtual void ActivateOnly(const std::vector<zel::Key>& points, const std::vector<zel::Key>& lines, const std::vector<zel::Key>& areas,
                              bool objectsOnly) = 0;
    virtual void ActivateCommon(int mode, const std::vector<zel::Key>& points, const std::vector<zel::Key>& lines, const std::vector<zel::Key>& areas,
                                bool objectsOnly) = 0;
    virtual void ActivateAll() = 0;

    // The user's side.
    virtual void setPickClosed(bool closed) = 0;
    [[nodiscard]] virtual int modelingMode() const = 0;
    virtual void setModelingMode(int mode) = 0;
    /// The objects that are active, each list in ascending order; nothing while all are.
    [[nodiscard]] virtual std::optional<T_SELECTION> activeObjects() const = 0;
    /// State of "Activated Object Only", as the last activation gave it.
    [[nodiscard]] virtual bool showsActiveOnly() const = 0;
};
