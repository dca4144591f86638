#pragma once

#include "platform/forms/forwarding_user_interface.h"

#include <string>
#include <vector>

namespace zel::cli {

/// A message that a job would have shown to a user.
struct ToldMessage {
    std::string key;  ///< in the message catalogue; the text itself where it has none
    std::string text;
};

/// The user interface of a job that runs without dialogs: it keeps what the model would tell a user, answers every
/// question with OK or Yes, and opens nothing. It is installed while it lives.
class Console : public ForwardingUserInterface {
public:
    Console();
    ~Console() override;

    [[nodiscard]] const std::vector<ToldMessage>& messages() const { return m_messages; }
    /// The texts, joined by blanks, each once; empty if nothing was told.
    [[nodiscard]] std::string told() const;
    [[nodiscard]] std::vector<std::string> keys() const;
    void forget();
    /// Ends the job where the library has ended a command by itself: for want of memory, or by a fault of its own.
    /// @throws std::runtime_error  with what the library has told in its output pane
    void throwFailures() const;

    int messageBox(const CString& text, unsigned type) override;
    void output(const CString& line) override { m_output.push_back(line); }

private:
    IUserInterface* m_former;
    std::vector<ToldMessage> m_messages;
    std::vector<std::string> m_output;
};

}  // namespace zel::cli
