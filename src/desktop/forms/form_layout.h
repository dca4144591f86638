#pragma once

#include "contract/forms/dialog.h"
#include "desktop/forms/control_view.h"

#include <memory>
#include <vector>

class QBoxLayout;
class QGroupBox;
class QLabel;
class QStackedWidget;

namespace zel::desktop {

/// What stands in a form: its views in reading order, with the labels beside them, and its containers.
struct FormParts {
    struct Part {
        std::unique_ptr<ControlView> view;
        QLabel* label = nullptr;
    };
    struct Frame {
        CGroup* group;
        QGroupBox* box;
        std::vector<const Control*> controls;
    };
    struct Stack {
        Control* tabs;
        QStackedWidget* pages;
    };

    std::vector<Part> parts;
    std::vector<Frame> frames;
    std::vector<Stack> stacks;
    bool isTall = false;  ///< something in it grows with the window
};

/// Lays the controls of a dialog out in `window`, from their declarations alone: labels in one column, fields in the next; what stands in a
/// row side by side; units, spin arrows and "..." buttons beside their fields; frames around groups, in two columns where they would
/// get too high; buttons at the right.
FormParts layOutForm(CDialog& dialog, FormContext& context, QWidget& window);

}  // namespace zel::desktop
