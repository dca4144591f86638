#pragma once

#include "contract/forms/dialog.h"
#include "desktop/forms/form_layout.h"

#include <QDialog>
#include <QTimer>

#include <vector>

namespace zel::desktop {

/// The window of one dialog, drawn from the declarations of its controls. It follows the controller: what changes there is shown when the
/// current event is over, and what the user does is handed on at once.
class FormWindow final : public QDialog, private IFormObserver {
public:
    FormWindow(CDialog& dialog, UserHand& hand, QWidget* parent);
    ~FormWindow() override;

    /// The controller; null once its dialog has closed.
    [[nodiscard]] CDialog* dialog() const { return m_dialog; }
    /// The dialog has closed: lets go of it. The window is hidden and deletes itself.
    void letGo();
    /// Shows now what has changed since the last event.
    void showChanges();
    /// The view of a control; null if it has none.
    [[nodiscard]] ControlView* viewOf(const Control& control) const;
    [[nodiscard]] const FormParts& parts() const { return m_parts; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void reject() override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    // IFormObserver
    void controlChanged(Control& control) override;
    void formChanged(CDialog& dialog) override;

    void build();
    void drop();
    void rebuild();
    void deleteFormer();
    void deleteWhenIdle();
    void detachMissing();
    void nameParts();
    [[nodiscard]] bool labelsChanged();
    void showState();
    void showPart(const FormParts::Part& part);
    void fit(QSize former);
    void focusFirst();
    void showFocus();
    [[nodiscard]] Control* controlOf(const QObject* widget) const;

    CDialog* m_dialog;
    FormContext m_context;
    std::vector<Control*> m_controls;  ///< as they were when the form was built
    QWidget* m_sheet = nullptr;        ///< holds all widgets of the form
    FormParts m_parts;
    std::vector<CString> m_labels;  ///< of the parts, as they were named last
    /// What the form was built of before: its widgets may be handling the event that changed it.
    struct Former {
        QWidget* sheet;
        FormParts parts;
    };
    std::vector<Former> m_former;
    std::vector<const Control*> m_changed;
    bool m_formChanged = false;
    bool m_fontChanged = false;
    QSize m_wanted;  ///< size that the form asked for when it was fitted last
    QTimer m_timer;
};

}  // namespace zel::desktop
