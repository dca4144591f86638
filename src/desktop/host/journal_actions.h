#pragma once

#include "desktop/host/journal_playback.h"

#include <QObject>
#include <QString>

#include <iosfwd>
#include <memory>

class QAction;
class QLabel;
class QMenu;

namespace zel {

class JournalRecorder;

}  // namespace zel

namespace zel::desktop {

class MainWindow;

/// The journal entries of the Tools menu: what the user does at the forms is written as a journal, and journals are played in the window.
class JournalActions final : public QObject {
public:
    JournalActions(MainWindow& window, QMenu& menu);
    ~JournalActions() override;

    /// Records from now on into a new file. False, with the reason, if that can't be written.
    bool startRecording(const QString& path, QString* reason);
    /// Ends the recording, if there is one. A reason is told to the user.
    void stopRecording(const QString& reason = {});
    [[nodiscard]] bool isRecording() const { return m_isRecording; }
    [[nodiscard]] bool isPlaying() const { return m_isPlaying; }
    /// Plays a journal for somebody who watches: errors stand in the output pane, and a last message says how it went.
    /// @param transcript  takes the replies; may be null
    Playback play(const QString& path, std::ostream* transcript = nullptr);

private:
    void askAndRecord();
    void askAndPlay();
    void showState();
    [[nodiscard]] QString folder() const;

    MainWindow& m_window;
    QAction* m_record;
    QAction* m_stop;
    QAction* m_play;
    QLabel* m_mark;
    QString m_path;
    std::unique_ptr<std::ofstream> m_file;
    std::unique_ptr<JournalRecorder> m_recorder;
    bool m_isRecording = false;
    bool m_isPlaying = false;
};

}  // namespace zel::desktop
