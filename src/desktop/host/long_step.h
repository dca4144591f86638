#pragma once

#include "contract/long_run.h"

#include <QObject>
#include <QPointer>
#include <QProgressDialog>
#include <QString>

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>

namespace zel::desktop {

/// A long step keeps the thread. Whenever it says something, what it has said so far is painted, while input waits; a busy cursor shows while it goes
/// on, and from its first text to its last the status line tells what it is busy with. A long run that can be stopped shows how far it is beside a button
/// that stops it, which is all that takes input meanwhile.
class LongStep final : public QObject, private RunWatcher {
public:
    /// @param show  shows a text in the status line; an empty one clears it
    explicit LongStep(std::function<void(const QString&)> show);
    ~LongStep() override;

    /// What it is busy with; an empty text ends it.
    void busy(const QString& text);
    /// It has written a line somewhere.
    void spoke();
    /// Whether windows are being painted inside a step: nothing else may be begun then.
    [[nodiscard]] bool isPainting() const { return m_painting; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Time = std::chrono::steady_clock::time_point;

    bool goOn(RunPhase phase, std::size_t done, std::size_t total) override;
    void showProgress(RunPhase phase, std::size_t done, std::size_t total);
    void paint();
    void setCursor(bool busy);
    void end();

    std::function<void(const QString&)> m_show;
    std::optional<Time> m_began;  ///< when it spoke first
    Time m_painted;
    bool m_hasText = false;
    bool m_hasCursor = false;
    bool m_painting = false;
    QPointer<QProgressDialog> m_progress;  ///< while a run shows one; its window may take it along when it goes
    RunWatcher* m_formerWatcher;
    unsigned m_calls = 0;
};

}  // namespace zel::desktop
