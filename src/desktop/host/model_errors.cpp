#include "desktop/host/model_errors.h"

#include "desktop/forms/text.h"

#include <QApplication>
#include <QGridLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QSpacerItem>

namespace zel::desktop {

namespace {

using Reason = FileRefusal::Reason;

QString headingOf(Reason reason)
{
    switch (reason) {
    case Reason::missing:
        return QStringLiteral("The model is not there.");
    case Reason::exists:
        return QStringLiteral("A file of that name is there already.");
    case Reason::notAModel:
        return QStringLiteral("This is not a model file.");
    case Reason::newer:
        return QStringLiteral("The model was made by a newer version.");
    case Reason::damaged:
        return QStringLiteral("The model file is damaged.");
    case Reason::companion:
        return QStringLiteral("Something that is not its own stands beside the model.");
    case Reason::moved:
        return QStringLiteral("The model file has been moved.");
    case Reason::locked:
        return QStringLiteral("The model is open elsewhere.");
    case Reason::readOnly:
        return QStringLiteral("The model can't be changed.");
    case Reason::unsafe:
    case Reason::failed:
        break;
    }
    return QStringLiteral("The model file can't be used.");
}

/// Makes a box wide enough for a path; after its texts and buttons, for which it lays itself out anew.
void widen(QMessageBox& box)
{
    constexpr int letters = 60;
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    if (grid != nullptr)
        grid->addItem(new QSpacerItem(letters * box.fontMetrics().averageCharWidth(), 0), grid->rowCount(), 0, 1, grid->columnCount());
}

void setUp(QMessageBox& box, const QString& heading, const QString& reason)
{
    box.setIcon(QMessageBox::Warning);
    box.setWindowTitle(QApplication::applicationDisplayName());
    box.setTextFormat(Qt::PlainText);
    box.setText(heading);
    box.setInformativeText(reason);
}

}  // namespace

WayOut tellRefusal(QWidget* parent, const FileRefusal& refusal, bool isRecent)
{
    QMessageBox box(parent);
    QString sentence = toQt(refusal.what());
    sentence.remove(QStringLiteral(", or make a new model with \"zel new\""));  // advice for a command line
    setUp(box, headingOf(refusal.reason()), sentence);
    const Reason reason = refusal.reason();
    QPushButton* retry = nullptr;
    QPushButton* reading = nullptr;
    QPushButton* copy = nullptr;
    QPushButton* forget = nullptr;
    if (reason == Reason::locked)
        retry = box.addButton(QStringLiteral("&Try Again"), QMessageBox::AcceptRole);
    if (reason == Reason::locked || reason == Reason::readOnly)
        reading = box.addButton(QStringLiteral("Open &Read-Only"), QMessageBox::AcceptRole);
    if (reason == Reason::readOnly)
        copy = box.addButton(QStringLiteral("Open a &Copy..."), QMessageBox::AcceptRole);
    if (reason == Reason::missing && isRecent)
        forget = box.addButton(QStringLiteral("&Remove from Recent"), QMessageBox::AcceptRole);
    QPushButton* another = box.addButton(QStringLiteral("Open &Another..."), QMessageBox::ActionRole);
    QPushButton* none = box.addButton(QMessageBox::Cancel);
    QPushButton* best = retry != nullptr ? retry : copy != nullptr ? copy : forget != nullptr ? forget : another;
    box.setDefaultButton(best);
    box.setEscapeButton(none);
    widen(box);
    box.exec();

    const QAbstractButton* clicked = box.clickedButton();
    if (clicked == nullptr || clicked == none)
        return WayOut::none;
    if (clicked == retry)
        return WayOut::retry;
    if (clicked == reading)
        return WayOut::readOnly;
    if (clicked == copy)
        return WayOut::openCopy;
    return clicked == forget ? WayOut::forget : WayOut::openAnother;
}

void tellFault(QWidget* parent, const QString& heading, const QString& reason)
{
    QMessageBox box(parent);
    setUp(box, heading, reason);
    box.setStandardButtons(QMessageBox::Ok);
    widen(box);
    box.exec();
}

}  // namespace zel::desktop
