#include "desktop/host/new_model_dialog.h"

#include "desktop/host/unit_choice.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace zel::desktop {

namespace {

/// A name of a new file in a folder: "Untitled.qvx", "Untitled 2.qvx", ...
QString freeName(const QString& folder)
{
    const QDir place(folder);
    QString name = QStringLiteral("Untitled.qvx");
    for (int number = 2; place.exists(name); ++number)
        name = QStringLiteral("Untitled %1.qvx").arg(number);
    return place.filePath(name);
}

}  // namespace

QString withModelEnding(const QString& path)
{
    return path.isEmpty() || !QFileInfo(path).suffix().isEmpty() ? path : path + QStringLiteral(".qvx");
}

QString modelFileFilter()
{
    return QStringLiteral("ZEL models (*.qvx);;All files (*)");
}

NewModelDialog::NewModelDialog(QWidget* parent, const QString& folder, const T_UNIT_INDEX& units) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("New Model"));
    m_path = new QLineEdit(freeName(folder));
    m_path->setMinimumWidth(380);
    m_path->setAccessibleName(QStringLiteral("File"));
    auto* browse = new QPushButton(QStringLiteral("&Browse..."));
    browse->setAutoDefault(false);
    m_length = new QComboBox;
    m_force = new QComboBox;
    fillLengthUnits(*m_length);
    fillForceUnits(*m_force);
    m_length->setCurrentIndex(units.length);
    m_force->setCurrentIndex(units.force);
    m_hint = new QLabel;
    m_hint->setWordWrap(true);
    m_hint->setMinimumHeight(2 * fontMetrics().lineSpacing());
    m_hint->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    auto* file = new QHBoxLayout;
    file->addWidget(m_path, 1);
    file->addWidget(browse);
    auto* fields = new QFormLayout;
    auto* fileLabel = new QLabel(QStringLiteral("&File:"));
    fileLabel->setBuddy(m_path);
    fields->addRow(fileLabel, file);
    fields->addRow(QStringLiteral("Unit of &length:"), m_length);
    fields->addRow(QStringLiteral("Unit of f&orce:"), m_force);
    fields->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_create = buttons->addButton(QStringLiteral("&Create"), QDialogButtonBox::AcceptRole);
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(fields);
    rows->addWidget(m_hint);
    rows->addWidget(buttons);

    QObject::connect(browse, &QPushButton::clicked, this, [this] { this->browse(); });
    QObject::connect(m_path, &QLineEdit::textChanged, this, [this] { check(); });
    QObject::connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    m_create->setDefault(true);
    check();
    m_path->setFocus();
    m_path->setSelection(static_cast<int>(m_path->text().lastIndexOf(QLatin1Char('/'))) + 1,
                         static_cast<int>(QFileInfo(m_path->text()).completeBaseName().size()));
}

QString NewModelDialog::path() const
{
    return withModelEnding(QDir::fromNativeSeparators(m_path->text().trimmed()));
}

T_UNIT_INDEX NewModelDialog::units() const
{
    return {m_length->currentIndex(), m_force->currentIndex()};
}

void NewModelDialog::browse()
{
    const QString chosen =
        QFileDialog::getSaveFileName(this, QStringLiteral("New Model"), path(), modelFileFilter(), nullptr, QFileDialog::DontConfirmOverwrite);
    if (!chosen.isEmpty())
        m_path->setText(withModelEnding(chosen));
}

/// A new model never takes the place of a file.
void NewModelDialog::check()
{
    const QFileInfo file(path());
    QString fault;
    if (path().isEmpty())
        fault = QStringLiteral("Give the file a name.");
    else if (file.exists())
        fault = QStringLiteral("A file of that name is there already. Choose another name.");
    else if (!file.dir().exists())
        fault = QStringLiteral("That folder does not exist.");
    m_create->setEnabled(fault.isEmpty());
    m_hint->setText(fault.isEmpty() ? QStringLiteral("Every change of the model is kept in this file at once.") : fault);
}

}  // namespace zel::desktop
