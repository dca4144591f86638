#include "platform/forms/headless_user_interface.h"

#include "contract/document.h"
#include "contract/forms/control.h"
#include "contract/forms/dialog.h"
#include "contract/view_ctrl.h"

#include <string>
#include <utility>

namespace zel {

namespace {

template <class T> std::optional<T> takeFront(std::deque<T>& queue)
{
    if (queue.empty())
        return std::nullopt;
    T front = std::move(queue.front());
    queue.pop_front();
    return front;
}

/// Splits "[KEY]text" into its parts; a text without a key has an empty one.
std::pair<CString, CString> splitKey(const CString& text)
{
    const std::size_t end = text.find(']');
    if (text.empty() || text.front() != '[' || end == CString::npos)
        return {{}, text};
    return {text.substr(1, end - 1), text.substr(end + 1)};
}

}  // namespace

void HeadlessModelView::GetSelectedLines(std::vector<Key>& keys) const
{
    keys.clear();
    if (CDBDoc* document = CDBDoc::GetDocPoint())
        document->GetViewCtrl()->GetAllSelectedLine(keys);
}

HeadlessUserInterface::HeadlessUserInterface() : m_former(setUserInterface(this)), m_formerView(I_ZELModelBase::setCurrent(&view)) {}

HeadlessUserInterface::~HeadlessUserInterface()
{
    setUserInterface(m_former);
    I_ZELModelBase::setCurrent(m_formerView);
}

std::vector<CString> HeadlessUserInterface::keys() const
{
    std::vector<CString> all;
    for (const Box& box : boxes)
        all.push_back(box.key);
    return all;
}

void HeadlessUserInterface::runPosted()
{
    while (const std::optional<unsigned> number = takeFront(m_posted)) {
        if (onCommand)
            onCommand(*number);
    }
}

int HeadlessUserInterface::messageBox(const CString& text, unsigned type)
{
    int answer = IDOK;
    if (type == MB_YESNO)
        answer = takeFront(m_answers).value_or(IDYES);
    const auto [key, shown] = splitKey(text);
    boxes.push_back({key, shown, type, answer});
    events.push_back("message " + text);
    return answer;
}

bool HeadlessUserInterface::openFile(const CString& filter, CString& path)
{
    fileFilters.push_back(filter);
    const std::optional<CString> chosen = takeFront(m_files).value_or(std::nullopt);
    events.push_back("file " + chosen.value_or("cancelled"));
    if (chosen)
        path = *chosen;
    return chosen.has_value();
}

void HeadlessUserInterface::runModal(CDialog& dialog)
{
    runPosted();
    if (const auto script = takeFront(m_scripts))
        (*script)(dialog);
    if (!dialog.hasEnded())
        (void)dialog.userClose();
    if (!dialog.hasEnded())
        dialog.EndDialog(IDCANCEL);
}

void HeadlessUserInterface::dialogOpened(CDialog& dialog)
{
    events.push_back("opened " + dialog.ClassName());
}

void HeadlessUserInterface::dialogActivated(CDialog& dialog)
{
    events.push_back("activated " + dialog.ClassName());
}

void HeadlessUserInterface::dialogClosed(CDialog& dialog)
{
    const CString code = dialog.endCode() ? " " + std::to_string(*dialog.endCode()) : CString();
    events.push_back("closed " + dialog.ClassName() + code);
}

void HeadlessUserInterface::sendCommand(unsigned number)
{
    commands.push_back({number, false});
    events.push_back("sent " + std::to_string(number));
    if (onCommand)
        onCommand(number);
}

void HeadlessUserInterface::postCommand(unsigned number)
{
    commands.push_back({number, true});
    events.push_back("posted " + std::to_string(number));
    m_posted.push_back(number);
}

void HeadlessUserInterface::showPreferences(int page)
{
    preferencePages.push_back(page);
    events.push_back("preferences " + std::to_string(page));
}

void HeadlessUserInterface::output(const CString& line)
{
    outputs.push_back(line);
    events.push_back("output " + line);
}

void HeadlessUserInterface::history(const CString& line)
{
    histories.push_back(line);
    events.push_back("history " + line);
}

void HeadlessUserInterface::busy(const CString& text)
{
    events.push_back("busy " + text);
}

bool HeadlessUserInterface::startProcess(const CString& commandLine)
{
    processes.push_back(commandLine);
    events.push_back("process " + commandLine);
    return processesStart;
}

void HeadlessUserInterface::gridWarning(Control& /*grid*/, const CString& text)
{
    warnings.push_back(text);
    events.push_back("warning " + text);
}

void HeadlessUserInterface::modelingMode(int mode)
{
    events.push_back("mode " + std::to_string(mode));
}

}  // namespace zel
