#include "desktop/host/journal_playback.h"

#include "contract/forms/open_dialogs.h"
#include "desktop/forms/form_window.h"
#include "desktop/forms/text.h"
#include "desktop/host/main_window.h"
#include "desktop/host/play_panel.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <memory>
#include <sstream>

namespace zel::desktop {

namespace {

class Playing {
public:
    Playing(MainWindow& window, const QString& path, const PlaybackOptions& options) : m_window(window), m_path(path), m_options(options) {}

    Playback run();

private:
    [[nodiscard]] JournalOptions playerOptions();
    void pause();
    void note(const JournalReply& reply);
    bool end(JournalStatus status);
    void raiseFront();

    MainWindow& m_window;
    const QString& m_path;
    const PlaybackOptions& m_options;
    std::unique_ptr<PlayPanel> m_panel;
    JournalPlayer* m_player = nullptr;
    Playback m_playback;
};

Playback Playing::run()
{
    QFile file(m_path);
    m_playback.isRead = file.open(QIODevice::ReadOnly);
    if (!m_playback.isRead)
        return m_playback;
    const std::string text = file.readAll().toStdString();
    std::istringstream script(text);
    std::ostringstream unread;
    JournalPlayer player(m_window.document(), script, m_options.transcript != nullptr ? *m_options.transcript : unread, playerOptions());
    m_player = &player;
    if (m_options.hasPanel) {
        const auto lines = std::count(text.begin(), text.end(), '\n') + (text.empty() || text.back() == '\n' ? 0 : 1);
        m_panel = std::make_unique<PlayPanel>(&m_window, QFileInfo(m_path).fileName(), static_cast<int>(lines), [this] {
            m_playback.isStopped = true;
            m_player->stop();
        });
    }
    m_window.hand().setLocked(true);
    player.play();
    return m_playback;
}

JournalOptions Playing::playerOptions()
{
    JournalOptions options;
    options.watching = &m_window.services();
    options.host = &m_window.services().hostCommands();
    options.pause = [this] { pause(); };
    options.replied = [this](const JournalReply& reply) { note(reply); };
    options.ended = [this](JournalStatus status) { return end(status); };
    return options;
}

void Playing::pause()
{
    if (m_panel) {
        m_panel->showLine(m_playback.line);
        m_panel->stayInFront();
    }
    QCoreApplication::processEvents();
}

void Playing::note(const JournalReply& reply)
{
    m_playback.line = reply.line;
    ++m_playback.commands;
    if (reply.error.empty())
        return;
    m_playback.errors.push_back({reply.line, toQt(reply.error)});
    m_window.addOutput(QStringLiteral("Line %1: %2").arg(reply.line).arg(toQt(reply.error)));
}

bool Playing::end(JournalStatus status)
{
    m_playback.status = status;
    m_panel.reset();
    m_window.hand().setLocked(false);
    raiseFront();
    return !m_options.ended || m_options.ended(m_playback);
}

/// The panel had the keyboard: it goes to the form that the journal has left in front.
void Playing::raiseFront()
{
    const CDialog* front = activeDialog();
    QWidget* window = front != nullptr ? m_window.services().windowOf(*front) : nullptr;
    if (window == nullptr)
        window = &m_window;
    window->raise();
    window->activateWindow();
}

}  // namespace

Playback playInWindow(MainWindow& window, const QString& path, const PlaybackOptions& options)
{
    return Playing(window, path, options).run();
}

}  // namespace zel::desktop
