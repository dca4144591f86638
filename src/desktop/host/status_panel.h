#pragma once

#include <QObject>

class QComboBox;
class QLabel;
class QString;

namespace zel::desktop {

class MainWindow;

/// What the status bar holds beside passing texts: what is selected, the units, and whether the model is in its file.
class StatusPanel final : public QObject {
public:
    explicit StatusPanel(MainWindow& window);

    /// Follows another document, or a notice of it.
    void showDocument();
    void showNotice(long long hint);
    /// The state of the file; empty: that of the open document.
    void showState(const QString& text);

private:
    void showUnits();
    void showSelection();
    void chooseUnits();

    MainWindow& m_window;
    QLabel* m_selection;
    QComboBox* m_length;
    QComboBox* m_force;
    QLabel* m_state;
};

/// "3 points, 2 lines", or "Nothing selected".
struct SelectedCounts {
    std::size_t points = 0;
    std::size_t lines = 0;
    std::size_t areas = 0;
    std::size_t nodes = 0;
    std::size_t elements = 0;
};
QString selectionText(const SelectedCounts& counts);

}  // namespace zel::desktop
