#pragma once

#include <QPlainTextEdit>

namespace zel::desktop {

/// Lines that the program tells, the newest at the end: to read, to copy and to clear. The oldest go when there are 10,000.
class LinePane final : public QPlainTextEdit {
public:
    LinePane(const QString& name, QWidget* parent);

    /// Adds a line. The view follows, unless the user has scrolled back.
    void add(const QString& line);

    [[nodiscard]] QSize sizeHint() const override { return {400, 120}; }

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
};

}  // namespace zel::desktop
