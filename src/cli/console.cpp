#include "cli/console.h"

#include "contract/forms/dialog.h"
#include "platform/messages/message_catalogue.h"

#include <set>
#include <stdexcept>

namespace zel::cli {

// Texts come with their keys, so that both can be kept.
Console::Console() : ForwardingUserInterface(nullptr), m_former(setUserInterface(this))
{
    MessageCatalogue::builtIn().showKeys(true);
}

Console::~Console()
{
    MessageCatalogue::builtIn().showKeys(false);
    setUserInterface(m_former);
}

std::string Console::told() const
{
    std::string all;
    std::set<std::string> seen;
    for (const ToldMessage& message : m_messages) {
        if (seen.insert(message.text).second)
            all += (all.empty() ? "" : " ") + message.text;
    }
    return all;
}

std::vector<std::string> Console::keys() const
{
    std::vector<std::string> all;
    for (const ToldMessage& message : m_messages)
        all.push_back(message.key);
    return all;
}

void Console::forget()
{
    m_messages.clear();
    m_output.clear();
}

void Console::throwFailures() const
{
    if (!m_output.empty())
        throw std::runtime_error(m_output.back());
}

int Console::messageBox(const CString& text, unsigned type)
{
    const std::size_t end = text.starts_with("[IDS_") ? text.find(']') : CString::npos;
    if (end == CString::npos)
        m_messages.push_back({text, text});
    else
        m_messages.push_back({text.substr(1, end - 1), text.substr(end + 1)});
    return type == MB_YESNO ? IDYES : IDOK;
}

}  // namespace zel::cli
