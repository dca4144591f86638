#pragma once

#include "contract/model_view.h"
#include "platform/forms/active_objects.h"

#include <functional>

namespace zel::desktop {

/// What the forms ask of the model view: the mouse mode, the outline under way and which objects are active. It makes itself the active view
/// and puts the former one back when it goes.
class DesktopModelView final : public I_ZELModelBase {
public:
    DesktopModelView() : m_former(setCurrent(this)) {}
    ~DesktopModelView() override { setCurrent(m_former); }

    /// Called after each change that is seen in the picture.
    void onChange(std::function<void()> action) { m_onChange = std::move(action); }
    /// Starts anew, for another model.
    void reset();

    [[nodiscard]] const std::optional<ActiveObjects::Keys>& active() const { return m_active.keys(); }
    /// Whether objects that are not active are left out of the picture; else they are drawn faint.
    [[nodiscard]] bool objectsOnly() const { return m_objectsOnly; }

    [[nodiscard]] bool IsPickClosed() const override { return m_closed; }
    void ResetPick() override { setPickClosed(false); }
    void GetSelectedLines(std::vector<Key>& keys) const override;
    void ActivateOnly(const std::vector<Key>& points, const std::vector<Key>& lines, const std::vector<Key>& areas, bool objectsOnly) override;
    void ActivateCommon(int mode, const std::vector<Key>& points, const std::vector<Key>& lines, const std::vector<Key>& areas, bool objectsOnly) override;
    void ActivateAll() override;
    void setPickClosed(bool closed) override;
    [[nodiscard]] int modelingMode() const override { return m_mode; }
    void setModelingMode(int mode) override;
    [[nodiscard]] std::optional<T_SELECTION> activeObjects() const override { return m_active.selection(); }
    [[nodiscard]] bool showsActiveOnly() const override { return m_objectsOnly; }

private:
    void changed() const;

    I_ZELModelBase* m_former;
    std::function<void()> m_onChange;
    ActiveObjects m_active;
    bool m_objectsOnly = false;
    bool m_closed = false;
    int m_mode = -1;
};

}  // namespace zel::desktop
