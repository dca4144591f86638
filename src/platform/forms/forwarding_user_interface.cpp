#include "platform/forms/forwarding_user_interface.h"

#include "contract/forms/dialog.h"
#include "platform/os/machine.h"

namespace zel {

int ForwardingUserInterface::messageBox(const CString& text, unsigned type)
{
    if (m_dialogs != nullptr)
        return m_dialogs->messageBox(text, type);
    return type == MB_YESNO ? IDYES : IDOK;
}

bool ForwardingUserInterface::openFile(const CString& filter, CString& path)
{
    return m_dialogs != nullptr && m_dialogs->openFile(filter, path);
}

void ForwardingUserInterface::runModal(CDialog& dialog)
{
    if (m_dialogs != nullptr)
        m_dialogs->runModal(dialog);  // else the dialog cancels itself: nobody is there to end it
}

void ForwardingUserInterface::dialogOpened(CDialog& dialog)
{
    if (m_dialogs != nullptr)
        m_dialogs->dialogOpened(dialog);
}

void ForwardingUserInterface::dialogActivated(CDialog& dialog)
{
    if (m_dialogs != nullptr)
        m_dialogs->dialogActivated(dialog);
}

void ForwardingUserInterface::dialogClosed(CDialog& dialog)
{
    if (m_dialogs != nullptr)
        m_dialogs->dialogClosed(dialog);
}

void ForwardingUserInterface::gridWarning(Control& grid, const CString& text)
{
    if (m_dialogs != nullptr)
        m_dialogs->gridWarning(grid, text);
}

void ForwardingUserInterface::sendCommand(unsigned number)
{
    if (m_dialogs != nullptr)
        m_dialogs->sendCommand(number);
}

void ForwardingUserInterface::postCommand(unsigned number)
{
    if (m_dialogs != nullptr)
        m_dialogs->postCommand(number);
}

void ForwardingUserInterface::showPreferences(int page)
{
    if (m_dialogs != nullptr)
        m_dialogs->showPreferences(page);
}

void ForwardingUserInterface::modelingMode(int mode)
{
    if (m_dialogs != nullptr)
        m_dialogs->modelingMode(mode);
}

void ForwardingUserInterface::output(const CString& line)
{
    if (m_lines != nullptr)
        m_lines->output(line);
}

void ForwardingUserInterface::history(const CString& line)
{
    if (m_lines != nullptr)
        m_lines->history(line);
}

void ForwardingUserInterface::busy(const CString& text)
{
    if (m_lines != nullptr)
        m_lines->busy(text);
}

bool ForwardingUserInterface::startProcess(const CString& commandLine)
{
    return m_machine != nullptr && m_machine->startProcess(commandLine);
}

CString ForwardingUserInterface::programFolder() const
{
    return m_machine != nullptr ? m_machine->programFolder() : os::programFolder();
}

std::chrono::system_clock::time_point ForwardingUserInterface::now() const
{
    return m_machine != nullptr ? m_machine->now() : std::chrono::system_clock::now();
}

std::uint64_t ForwardingUserInterface::physicalMemory() const
{
    return m_machine != nullptr ? m_machine->physicalMemory() : os::physicalMemory();
}

}  // namespace zel
