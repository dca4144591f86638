#pragma once

#include "journal/journal_player.h"

#include <QString>

#include <functional>
#include <iosfwd>
#include <vector>

namespace zel::desktop {

class MainWindow;

/// A command that could not be carried out.
struct PlaybackError {
    long line = 0;
    QString sentence;
};

/// What came of a journal that was played in the window.
struct Playback {
    bool isRead = true;  ///< false: the journal can't be read
    JournalStatus status = JournalStatus::done;
    bool isStopped = false;  ///< by the user
    long line = 0;           ///< of the command that was carried out last
    int commands = 0;
    std::vector<PlaybackError> errors;
};

struct PlaybackOptions {
    /// Shows a panel with the progress, on which the user stops it.
    bool hasPanel = true;
    std::ostream* transcript = nullptr;  ///< takes the replies, if there is one
    /// Called at the end of the script, inside the modal dialogs that are open there. True leaves these to the user, false cancels them.
    std::function<bool(const Playback&)> ended{};
};

/// Plays a journal on the open model, in the forms as they stand on the screen. Returns when it is over and no modal dialog of it is open any more.
/// Meanwhile the user's own input goes to nothing but the panel.
Playback playInWindow(MainWindow& window, const QString& path, const PlaybackOptions& options);

}  // namespace zel::desktop
