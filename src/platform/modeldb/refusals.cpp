#include "platform/modeldb/refusals.h"

#include "contract/messages.h"
#include "contract/user_interface.h"

namespace zel {

namespace {

std::size_t fileWrites = 0;

const char* keyOf(Refusal reason)
{
    switch (reason) {
    case Refusal::duplicateName:
        return "IDS_DB_REFUSE_DUPLICATE_NAME";
    case Refusal::emptyName:
        return "IDS_DB_REFUSE_EMPTY_NAME";
    case Refusal::nameTooLong:
        return "IDS_DB_REFUSE_NAME_TOO_LONG";
    case Refusal::keyExists:
        return "IDS_DB_REFUSE_KEY_EXISTS";
    case Refusal::noRecord:
        return "IDS_DB_REFUSE_NO_RECORD";
    case Refusal::inUse:
        return "IDS_DB_REFUSE_IN_USE";
    case Refusal::notFinite:
        return "IDS_DB_REFUSE_NOT_FINITE";
    case Refusal::badKind:
        return "IDS_DB_REFUSE_BAD_KIND";
    case Refusal::fileWrite:
        return "IDS_DB_REFUSE_FILE_WRITE";
    case Refusal::fileUnsafe:
        return "IDS_DB_REFUSE_FILE_UNSAFE";
    case Refusal::fileRead:
        return "IDS_DB_REFUSE_FILE_READ";
    }
    return "";
}

/// Puts `value` in the place of the first `placeholder` of a text.
CString filled(CString text, const char* placeholder, const CString& value)
{
    const auto place = text.find(placeholder);
    if (place != CString::npos)
        text.replace(place, 2, value);
    return text;
}

}  // namespace

int refuse(Refusal reason, const CString& detail, int number)
{
    if (reason == Refusal::fileWrite || reason == Refusal::fileUnsafe)
        ++fileWrites;
    const CString text = CMsgDll::pfuncLoadStr(keyOf(reason), 0);
    AfxMessageBox(filled(filled(text, "%d", std::to_string(number)), "%s", detail), 0, 0);
    return 0;
}

std::size_t refusedFileWrites()
{
    return fileWrites;
}

}  // namespace zel
