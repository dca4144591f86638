#pragma once

#include "contract/forms/dialog.h"
#include "desktop/forms/control_view.h"
#include "desktop/forms/form_body.h"

#include <memory>
#include <vector>

class QLabel;
class QStackedWidget;

namespace zel::desktop {

/// What stands in a form: its views in reading order, with the labels beside them, and what they are laid out in.
struct FormParts {
    struct Part {
        std::unique_ptr<ControlView> view;
        QLabel* label = nullptr;
    };
    struct Stack {
        Control* tabs;
        QStackedWidget* pages;
    };

    std::vector<Part> parts;
    std::vector<Stack> stacks;
    std::vector<std::unique_ptr<FormBody>> bodies;  ///< of pages and panels before the one around them
};

/// Makes the views of a dialog and lays them out in `window`, from the declarations of its controls alone: labels in one column, fields in the next;
/// what stands in a row side by side; units, spin arrows and "..." buttons beside their fields; frames around groups; buttons at the right.
FormParts layOutForm(CDialog& dialog, FormContext& context, QWidget& window);

/// Takes over which of the widgets are hidden: they leave no gap behind, and the labels of the others stand in one column.
void closeGaps(const FormParts& parts, const QWidget& window);

}  // namespace zel::desktop
