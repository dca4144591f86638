#include "desktop/host/journal_actions.h"

#include "contract/forms/dialog.h"
#include "contract/forms/open_dialogs.h"
#include "desktop/forms/text.h"
#include "desktop/host/main_window.h"
#include "desktop/host/model_errors.h"
#include "journal/journal_recorder.h"
#include "platform/modeldb/file_header.h"

#include <QAction>
#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QStatusBar>
#include <QTimer>

#include <fstream>
#include <utility>

namespace zel::desktop {

namespace {

constexpr int messageTime = 10'000;  ///< [ms]

QString journalFilter()
{
    return QStringLiteral("Journals (*.jsonl);;All files (*)");
}

QString commandsText(int count)
{
    return count == 1 ? QStringLiteral("1 command") : QStringLiteral("%1 commands").arg(count);
}

/// How a journal went, in a sentence or two.
QString endText(const Playback& playback)
{
    QString text = commandsText(playback.commands) + QStringLiteral(" played.");
    if (playback.isStopped)
        text = QStringLiteral("Stopped behind line %1. What was done until then stays; Undo takes it back.").arg(playback.line);
    const CDialog* front = activeDialog();
    if (front != nullptr && front->isModal())
        text += QStringLiteral(" \"%1\" is open still: it is yours now.").arg(toQt(front->GetWindowText()));
    return text;
}

}  // namespace

JournalActions::JournalActions(MainWindow& window, QMenu& menu) : QObject(&window), m_window(window), m_mark(new QLabel)
{
    const auto add = [&](const char* text, auto&& run) {
        QAction* action = menu.addAction(QString::fromLatin1(text));
        QObject::connect(action, &QAction::triggered, this, std::forward<decltype(run)>(run));
        return action;
    };
    m_record = add("&Record Journal...", [this] { askAndRecord(); });
    m_stop = add("&Stop Recording", [this] { stopRecording(); });
    m_play = add("&Play Journal...", [this] { askAndPlay(); });
    m_mark->setObjectName(QStringLiteral("recording"));
    m_mark->setContentsMargins(6, 0, 6, 0);
    window.statusBar()->addPermanentWidget(m_mark);
    showState();
}

JournalActions::~JournalActions() = default;

void JournalActions::showState()
{
    m_record->setEnabled(!m_isRecording && !m_isPlaying);
    m_play->setEnabled(!m_isRecording && !m_isPlaying);
    m_stop->setEnabled(m_isRecording);
    m_mark->setVisible(m_isRecording);
    if (!m_isRecording)
        return;
    const QString dot = QStringLiteral("<span style=\"color:#d02020\">%1</span> ").arg(QChar(0x25CF));
    m_mark->setText(dot + QStringLiteral("Recording ") + QFileInfo(m_path).fileName().toHtmlEscaped());
    m_mark->setToolTip(QDir::toNativeSeparators(m_path));
    m_mark->setAccessibleName(QStringLiteral("Recording ") + QFileInfo(m_path).fileName());
}

QString JournalActions::folder() const
{
    const QString model = toQt(m_window.document().GetPathName());
    if (!m_path.isEmpty())
        return QFileInfo(m_path).path();
    return model.isEmpty() ? QDir::currentPath() : QFileInfo(model).path();
}

// Recording

void JournalActions::askAndRecord()
{
    QString path =
        QFileDialog::getSaveFileName(&m_window, QStringLiteral("Record Journal"), QDir(folder()).filePath(QStringLiteral("journal.jsonl")), journalFilter());
    if (path.isEmpty())
        return;
    if (QFileInfo(path).suffix().isEmpty())
        path += QStringLiteral(".jsonl");
    QString reason;
    if (!startRecording(path, &reason))
        tellFault(&m_window, QStringLiteral("The journal can't be recorded."), reason);
}

bool JournalActions::startRecording(const QString& path, QString* reason)
{
    stopRecording();
    const QString model = toQt(m_window.document().GetPathName());
    if (QFileInfo::exists(path) && QFileInfo(path).canonicalFilePath() == QFileInfo(model).canonicalFilePath()) {
        *reason = QStringLiteral("\"%1\" is the open model. Choose another name.").arg(path);
        return false;
    }
    if (isModelFile(fromQt(path))) {
        *reason = QStringLiteral("\"%1\" is a model file, which would be lost. Choose another name.").arg(path);
        return false;
    }
    auto file = std::make_unique<std::ofstream>(fromQt(path), std::ios::binary | std::ios::trunc);
    if (!*file) {
        *reason = QStringLiteral("\"%1\" can't be written. Check the folder and its permissions, or choose another place.").arg(path);
        return false;
    }
    m_recorder.reset();
    m_file = std::move(file);
    m_path = path;
    RecorderOptions options;
    options.onFailure = [this] {  // it is told when the step is over that it happened in
        QTimer::singleShot(0, this, [this] {
            stopRecording();
            tellFault(QApplication::activeWindow(), QStringLiteral("The recording has ended."),
                      QStringLiteral("\"%1\" can't be written any more. Make room on the disk, or record to another place.").arg(m_path));
        });
    };
    m_recorder = std::make_unique<JournalRecorder>(m_window.document(), *m_file, options);
    m_recorder->note(fromQt(QStringLiteral("Recorded by %1 on %2, model %3")
                                .arg(QApplication::applicationName(), QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm")),
                                     model.isEmpty() ? QStringLiteral("in no file") : QFileInfo(model).fileName())));
    m_recorder->writeStart(m_window.services().hostCommands());
    m_window.hand().setRecorder(m_recorder.get());
    m_isRecording = true;
    showState();
    return true;
}

void JournalActions::stopRecording(const QString& reason)
{
    if (!m_isRecording)
        return;
    m_window.hand().setRecorder(nullptr);
    m_recorder->stop();  // it is deleted with the next one: a modal dialog that waits may have been opened through it
    m_file->close();
    m_isRecording = false;
    showState();
    if (m_recorder->hasFailed())
        return;
    const QString text = (reason.isEmpty() ? QString() : reason + QLatin1Char(' ')) +
        QStringLiteral("%1 recorded in %2.").arg(commandsText(static_cast<int>(m_recorder->commandCount())), QDir::toNativeSeparators(m_path));
    m_window.statusBar()->showMessage(text, messageTime);
    if (!reason.isEmpty())
        m_window.addOutput(text);
}

// Playing

void JournalActions::askAndPlay()
{
    const QString path = QFileDialog::getOpenFileName(&m_window, QStringLiteral("Play Journal"), folder(), journalFilter());
    if (!path.isEmpty() && !play(path).isRead)
        tellFault(&m_window, QStringLiteral("The journal can't be read."), QStringLiteral("Check \"%1\" and its permissions.").arg(path));
}

Playback JournalActions::play(const QString& path, std::ostream* transcript)
{
    m_path = path;
    m_isPlaying = true;
    showState();
    PlaybackOptions options;
    options.transcript = transcript;
    options.ended = [this](const Playback& playback) {
        m_isPlaying = false;
        showState();
        const QString text = endText(playback);
        m_window.statusBar()->showMessage(text, messageTime);
        if (!playback.errors.empty())
            tellFault(QApplication::activeWindow(),
                      QStringLiteral("%1 of %2 could not be carried out.").arg(playback.errors.size()).arg(commandsText(playback.commands)),
                      QStringLiteral("The output pane has the reasons. ") + text);
        return true;
    };
    Playback playback = playInWindow(m_window, path, options);
    m_isPlaying = false;
    showState();
    return playback;
}

}  // namespace zel::desktop
