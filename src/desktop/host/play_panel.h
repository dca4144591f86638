#pragma once

#include <QDialog>

#include <functional>

class QLabel;
class QProgressBar;

namespace zel::desktop {

/// Shows how far a journal has been played, and stops it. All other windows take no input while it is shown.
class PlayPanel final : public QDialog {
public:
    /// @param lines  of the journal
    /// @param stop   called when the user has had enough
    PlayPanel(QWidget* parent, const QString& name, int lines, std::function<void()> stop);

    void showLine(long line);
    /// Dialogs that were opened since must take no input either.
    void stayInFront();

    void reject() override;

private:
    QLabel* m_text;
    QProgressBar* m_bar;
    int m_lines;
    std::function<void()> m_stop;
};

}  // namespace zel::desktop
