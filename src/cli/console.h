#pragma once

#include "contract/user_interface.h"
#include "platform/os/machine.h"

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
class Console : public IUserInterface {
public:
    Console();
    ~Console() override;

    [[nodiscard]] const std::vector<ToldMessage>& messages() const { return m_messages; }
    /// The texts, joined by blanks, each once; empty if nothing was told.
    [[nodiscard]] std::string told() const;
    [[nodiscard]] std::vector<std::string> keys() const;
    void forget() { m_messages.clear(); }

    int messageBox(const CString& text, unsigned type) override;
    bool openFile(const CString& /*filter*/, CString& /*path*/) override { return false; }
    void runModal(CDialog& dialog) override;
    void dialogOpened(CDialog& /*dialog*/) override {}
    void dialogActivated(CDialog& /*dialog*/) override {}
    void dialogClosed(CDialog& /*dialog*/) override {}
    void sendCommand(unsigned /*number*/) override {}
    void postCommand(unsigned /*number*/) override {}
    void showPreferences(int /*page*/) override {}
    void output(const CString& /*line*/) override {}
    void history(const CString& /*line*/) override {}
    void busy(const CString& /*text*/) override {}
    bool startProcess(const CString& /*commandLine*/) override { return false; }
    [[nodiscard]] CString programFolder() const override { return os::programFolder(); }
    [[nodiscard]] std::chrono::system_clock::time_point now() const override { return std::chrono::system_clock::now(); }
    [[nodiscard]] std::uint64_t physicalMemory() const override { return os::physicalMemory(); }
    void modelingMode(int /*mode*/) override {}

private:
    IUserInterface* m_former;
    std::vector<ToldMessage> m_messages;
};

}  // namespace zel::cli
