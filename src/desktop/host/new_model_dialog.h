#pragma once

#include "contract/records/unit_index.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace zel::desktop {

/// Asks for the file and the units of a new model.
class NewModelDialog final : public QDialog {
public:
    NewModelDialog(QWidget* parent, const QString& folder, const T_UNIT_INDEX& units);

    /// The chosen path, with the ending of model files.
    [[nodiscard]] QString path() const;
    [[nodiscard]] T_UNIT_INDEX units() const;

private:
    void browse();
    void check();

    QLineEdit* m_path;
    QComboBox* m_length;
    QComboBox* m_force;
    QLabel* m_hint;
    QPushButton* m_create;
};

/// A path for a model file: with the ending ".qvx" where it has none.
QString withModelEnding(const QString& path);

/// The filter of model files for file dialogs.
QString modelFileFilter();

}  // namespace zel::desktop
