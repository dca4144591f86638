#include "desktop/forms/form_layout.h"

#include "contract/forms/buttons.h"
#include "contract/forms/tabs.h"
#include "desktop/forms/section_layout.h"
#include "desktop/forms/text.h"

#include <QGroupBox>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace zel::desktop {

namespace {

constexpr int highestColumn = 520;  ///< [pixels] above which a run of groups is set in two columns

/// Lays one form out: the dialog, a page of it or the child in a panel.
class Form {
public:
    Form(FormParts& parts, FormContext& context, QWidget& window) : m_parts(parts), m_context(context), m_window(window) { m_body = new QVBoxLayout(&window); }

    void add(CDialog& dialog)
    {
        for (Control* control : dialog.ownControls())
            place(*control);
        finishRun();
        if (!m_tall)
            m_body->addStretch(0);
    }

    [[nodiscard]] bool isTall() const { return m_tall; }

private:
    void place(Control& control)
    {
        if (CGroup* group = control.group()) {
            m_plain.reset();
            put(control, sectionOf(*group));
        } else {
            finishRun();
            if (!m_plain) {
                m_plain = std::make_unique<SectionLayout>(m_window);
                m_body->addLayout(&m_plain->layout());
                m_plainItem = m_body->count() - 1;
            }
            put(control, *m_plain);
        }
        placeInside(control);
    }

    void put(Control& control, SectionLayout& section)
    {
        std::unique_ptr<ControlView> view = control.isListed() ? makeControlView(control, m_context, section.parent()) : nullptr;
        if (!view)
            return;
        FormParts::Part part{std::move(view), nullptr};
        part.label = section.add(control, *part.view);
        if (part.view->isTall()) {
            m_tall = true;
            if (control.group() == nullptr)
                m_body->setStretch(m_plainItem, 1);
            else
                m_frames.back().tall = true;
        }
        m_parts.parts.push_back(std::move(part));
    }

    /// The pages of tabs, or the child in a panel.
    void placeInside(Control& control)
    {
        QStackedWidget* stack = nullptr;
        for (const Control::Nested& inside : control.nested()) {
            if (inside.dialog == nullptr)
                continue;
            auto* page = new QWidget(&m_window);
            Form form(m_parts, m_context, *page);
            page->layout()->setContentsMargins(0, 0, 0, 0);
            form.add(*inside.dialog);
            m_tall = m_tall || form.isTall();
            if (control.kind() != Kind::tabs) {
                m_body->addWidget(page, form.isTall() ? 1 : 0);
                continue;
            }
            if (stack == nullptr) {
                stack = new QStackedWidget(&m_window);
                m_body->addWidget(stack, 1);
                m_parts.stacks.push_back({&control, stack});
            }
            stack->addWidget(page);
        }
        if (!control.nested().empty() && (stack != nullptr || control.kind() != Kind::tabs))
            m_plain.reset();
    }

    struct Frame {
        CGroup* group;
        QGroupBox* box;
        std::unique_ptr<SectionLayout> section;
        bool tall = false;
    };

    SectionLayout& sectionOf(CGroup& group)
    {
        const auto found = std::find_if(m_frames.begin(), m_frames.end(), [&](const Frame& each) { return each.group == &group; });
        if (found == m_frames.end()) {
            auto* box = new QGroupBox(drawnLabel(group.GetWindowText()), &m_window);
            auto* inner = new QVBoxLayout(box);
            m_frames.push_back({&group, box, std::make_unique<SectionLayout>(*box)});
            inner->addLayout(&m_frames.back().section->layout(), 1);
            m_parts.frames.push_back({&group, box, {}});
        } else {
            std::rotate(found, found + 1, m_frames.end());
        }
        return *m_frames.back().section;
    }

    /// Puts the frames that have gathered into the body: one below the other, or in two columns of like height.
    void finishRun()
    {
        if (m_frames.empty())
            return;
        std::vector<int> heights;
        int height = 0;
        for (const Frame& frame : m_frames) {
            const bool visible = frame.group->IsWindowVisible();
            heights.push_back(visible ? frame.box->sizeHint().height() : 0);
            height += heights.back();
        }
        if (height <= highestColumn || m_frames.size() < 2) {
            for (const Frame& frame : m_frames)
                m_body->addWidget(frame.box, frame.tall ? 1 : 0);
        } else {
            setInColumns(heights, height);
        }
        m_frames.clear();
    }

    void setInColumns(const std::vector<int>& heights, int height)
    {
        std::size_t split = 1;
        int left = heights[0];
        int sum = heights[0];
        int best = std::max(left, height - left);
        for (std::size_t i = 1; i + 1 < heights.size(); ++i) {
            sum += heights[i];
            if (std::max(sum, height - sum) < best) {
                best = std::max(sum, height - sum);
                split = i + 1;
            }
        }
        auto* columns = new QHBoxLayout;
        m_body->addLayout(columns, 1);
        std::size_t i = 0;
        for (const std::size_t end : {split, m_frames.size()}) {
            auto* column = new QVBoxLayout;
            columns->addLayout(column, 1);
            bool tall = false;
            for (; i < end; ++i) {
                column->addWidget(m_frames[i].box, m_frames[i].tall ? 1 : 0);
                tall = tall || m_frames[i].tall;
            }
            if (!tall)
                column->addStretch(1);
        }
    }

    FormParts& m_parts;
    FormContext& m_context;
    QWidget& m_window;
    QVBoxLayout* m_body = nullptr;
    std::unique_ptr<SectionLayout> m_plain;
    int m_plainItem = 0;
    std::vector<Frame> m_frames;
    bool m_tall = false;
};

}  // namespace

FormParts layOutForm(CDialog& dialog, FormContext& context, QWidget& window)
{
    FormParts parts;
    Form form(parts, context, window);
    form.add(dialog);
    parts.isTall = form.isTall();
    for (const FormParts::Part& part : parts.parts) {
        for (FormParts::Frame& frame : parts.frames) {
            if (part.view->control()->group() == frame.group)
                frame.controls.push_back(part.view->control());
        }
    }
    return parts;
}

}  // namespace zel::desktop
