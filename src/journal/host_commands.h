#pragma once

namespace zel {

/// What a host does on the menu commands that dialogs send it, as far as those dialogs are built. A command that opens
/// nothing does nothing.
class HostCommands {
public:
    void run(unsigned number);

    /// The host has left the post-processing mode (the modelling mode) for the other one.
    void leave(bool post) { m_post = !post; }
    [[nodiscard]] bool isPost() const { return m_post; }

private:
    bool m_post = false;
};

}  // namespace zel
