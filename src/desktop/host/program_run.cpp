#include "desktop/host/program_run.h"

#include "desktop/forms/text.h"
#include "desktop/host/file_actions.h"
#include "desktop/host/journal_actions.h"
#include "desktop/host/journal_playback.h"
#include "desktop/host/main_window.h"
#include "desktop/host/screen_picture.h"

#include <QApplication>
#include <QTimer>

#include <iostream>

namespace zel::desktop {

namespace {

constexpr int failure = 2;

class Run {
public:
    Run(MainWindow& window, const RunOptions& options) : m_window(window), m_options(options) {}

    int toEnd();

private:
    void fail(const QString& sentence);
    bool openModel();
    void begin();
    bool beginRecording();
    Playback playForPicture();
    void playJournal();
    void takePicture();

    MainWindow& m_window;
    const RunOptions& m_options;
    int m_status = 0;
};

/// Waits until the windows have been laid out and painted.
void settle()
{
    constexpr int rounds = 5;
    constexpr int patience = 20;  ///< [ms]
    for (int i = 0; i < rounds; ++i)
        QCoreApplication::processEvents(QEventLoop::AllEvents, patience);
}

int Run::toEnd()
{
    if (!m_options.journal.isEmpty() && !m_options.record.isEmpty())
        fail(QStringLiteral("a journal that is played is not recorded. Leave out --journal or --record."));
    else if (!m_options.isForSomebody() && !openModel())
        return failure;
    if (m_status != 0)
        return m_status;
    m_window.show();
    QTimer::singleShot(0, &m_window, [this] { begin(); });
    const int code = QApplication::exec();
    return m_status != 0 ? m_status : code;
}

void Run::fail(const QString& sentence)
{
    std::cerr << "zel-desktop: " << fromQt(sentence) << '\n';
    m_status = failure;
}

/// Opens the model where nobody can be asked.
bool Run::openModel()
{
    try {
        if (!m_options.model.isEmpty())
            m_window.replaceDocument([&] { return ModelDocument::open(fromQt(m_options.model)); });
    } catch (const FileRefusal& refusal) {
        fail(toQt(refusal.what()));
    }
    return m_status == 0;
}

void Run::begin()
{
    if (m_options.isForSomebody() && !m_options.model.isEmpty())
        m_window.files().open(m_options.model);
    if (!m_options.record.isEmpty() && !beginRecording()) {
        QApplication::exit(m_status);
        return;
    }
    if (!m_options.journal.isEmpty())
        playJournal();
    else if (!m_options.screenshot.isEmpty())
        takePicture();
    if (!m_options.screenshot.isEmpty())
        QApplication::exit(m_status);
}

bool Run::beginRecording()
{
    QString reason;
    if (!m_window.journals().startRecording(m_options.record, &reason))
        fail(reason);
    return m_status == 0;
}

/// With a picture at its end, for nobody: without the panel, and modal dialogs that are open there are cancelled behind the picture.
Playback Run::playForPicture()
{
    PlaybackOptions playing;
    playing.hasPanel = false;
    playing.transcript = &std::cout;
    playing.ended = [this](const Playback&) {
        takePicture();
        return false;
    };
    return playInWindow(m_window, m_options.journal, playing);
}

void Run::playJournal()
{
    Playback playback;
    try {
        playback = m_options.screenshot.isEmpty() ? m_window.journals().play(m_options.journal, &std::cout) : playForPicture();
    } catch (const std::exception& fault) {
        fail(toQt(fault.what()) + QStringLiteral(". Check where standard output goes."));
    }
    if (!playback.isRead) {
        fail(QStringLiteral("the journal \"%1\" can't be read. Check its name and its permissions.").arg(m_options.journal));
        QApplication::exit(m_status);
    }
    for (const PlaybackError& error : playback.errors)
        fail(QStringLiteral("%1, line %2: %3").arg(m_options.journal).arg(error.line).arg(error.sentence));
}

void Run::takePicture()
{
    settle();
    if (!pictureOf(m_window, m_options.frontOnly).save(m_options.screenshot))
        fail(QStringLiteral("the picture \"%1\" can't be written. Check the folder, its permissions and the ending of the name.").arg(m_options.screenshot));
}

}  // namespace

int runProgram(MainWindow& window, const RunOptions& options)
{
    return Run(window, options).toEnd();
}

}  // namespace zel::desktop
