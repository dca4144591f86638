#pragma once

#include <QObject>
#include <QString>

#include <chrono>
#include <functional>
#include <optional>

namespace zel::desktop {

/// A long step keeps the thread. Whenever it says something, what it has said so far is painted, while input waits; a busy cursor shows while it goes
/// on, and from its first text to its last the status line tells what it is busy with.
class LongStep final : public QObject {
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

    void paint();
    void setCursor(bool busy);
    void end();

    std::function<void(const QString&)> m_show;
    std::optional<Time> m_began;  ///< when it spoke first
    Time m_painted;
    bool m_hasText = false;
    bool m_hasCursor = false;
    bool m_painting = false;
};

}  // namespace zel::desktop
