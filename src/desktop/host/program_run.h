#pragma once

#include <QString>

namespace zel::desktop {

class MainWindow;

/// What the command line asks for. Empty texts: not asked for.
struct RunOptions {
    QString model;
    QString journal;     ///< to play in the window
    QString record;      ///< to record from the start
    QString screenshot;  ///< picture to take at the end, when the program ends too
    bool frontOnly = false;

    /// Whether a person sits before the window: nobody can be asked while a journal plays or a picture is taken.
    [[nodiscard]] bool isForSomebody() const { return journal.isEmpty() && screenshot.isEmpty(); }
};

/// Does in the window what the command line asks for, and handles events until the program ends.
/// @return the exit status: 0, or 2 when a file could not be read or written or a command of the journal could not be carried out; standard
///         error has the reasons then. The replies to the journal go to standard output.
int runProgram(MainWindow& window, const RunOptions& options);

}  // namespace zel::desktop
