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
    void forget() { m_messages.clear(); }

    int messageBox(const CString& text, unsigned type) override;

private:
    IUserInterface* m_former;
    std::vector<ToldMessage> m_messages;
};

}  // namespace zel::cli
