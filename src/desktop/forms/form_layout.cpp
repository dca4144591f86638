#include "desktop/forms/form_layout.h"

#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace zel::desktop {

namespace {

void addForm(CDialog& dialog, FormContext& context, QWidget& window, FormParts& parts);

/// Makes the page of a dialog inside a control.
QWidget* addPage(CDialog& inside, FormContext& context, QWidget& parent, FormParts& parts)
{
    auto* page = new QWidget(&parent);
    addForm(inside, context, *page, parts);
    page->layout()->setContentsMargins(0, 0, 0, 0);
    return page;
}

/// The pages of tabs, one over the other, so that the form keeps its size when another one is chosen; or what a panel shows.
void addInside(Control& control, FormContext& context, SectionLayout& section, QWidget& window, FormParts& parts)
{
    QStackedWidget* stack = nullptr;
    for (const Control::Nested& inside : control.nested()) {
        if (inside.dialog == nullptr)
            continue;
        if (control.kind() != Kind::tabs) {
            section.addInside(*addPage(*inside.dialog, context, window, parts));
            continue;
        }
        if (stack == nullptr) {
            stack = new QStackedWidget(&window);
            section.addInside(*stack);
            parts.stacks.push_back({&control, stack});
        }
        stack->addWidget(addPage(*inside.dialog, context, *stack, parts));
    }
}

void addForm(CDialog& dialog, FormContext& context, QWidget& window, FormParts& parts)
{
    auto body = std::make_unique<FormBody>(window);
    for (Control* control : dialog.ownControls()) {
        SectionLayout& section = control->group() != nullptr ? body->frame(*control->group()) : body->plain();
        if (std::unique_ptr<ControlView> view = control->isListed() ? makeControlView(*control, context, section.block()) : nullptr) {
            view->show();
            FormParts::Part part{std::move(view), nullptr};
            part.label = section.add(*control, *part.view);
            parts.parts.push_back(std::move(part));
        }
        addInside(*control, context, section, section.block(), parts);
    }
    body->finish();
    parts.bodies.push_back(std::move(body));
}

}  // namespace

FormParts layOutForm(CDialog& dialog, FormContext& context, QWidget& window)
{
    FormParts parts;
    addForm(dialog, context, window, parts);
    return parts;
}

void closeGaps(const FormParts& parts, const QWidget& window)
{
    int widest = 0;
    for (const std::unique_ptr<FormBody>& body : parts.bodies) {
        body->follow();
        widest = std::max(widest, body->labelWidth(window));
    }
    for (const std::unique_ptr<FormBody>& body : parts.bodies)
        body->alignLabels(window, widest);
}

}  // namespace zel::desktop
