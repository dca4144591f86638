#include "platform/modeldb/file_faults.h"

namespace zel {

using Reason = FileRefusal::Reason;

FileRefusal damagedFile(const std::filesystem::path& path, const CString& detail)
{
    return {Reason::damaged, path, "is damaged: " + detail + ". Restore it from a copy."};
}

FileRefusal outOfMemory(const std::filesystem::path& path)
{
    return {Reason::failed, path, "needs more memory than there is. Close other programs and try again; nothing was changed."};
}

FileRefusal refusalFor(const std::filesystem::path& path, const SqliteError& error)
{
    switch (error.code()) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return {Reason::locked, path, "is open in another program. Close it there and try again."};
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
    case SQLITE_SCHEMA:
    case SQLITE_ERROR:
        return damagedFile(path, CString("the database says: ") + error.what());
    case SQLITE_CANTOPEN:
    case SQLITE_READONLY:
    case SQLITE_PERM:
        return {Reason::readOnly, path, CString("can't be written (") + error.what() + "). Allow writing to the file and its folder."};
    case SQLITE_NOMEM:
        return outOfMemory(path);
    case SQLITE_FULL:
        return {Reason::failed, path, "can't be written: the disk is full. Make room and try again."};
    default:
        return {Reason::failed, path, CString("can't be read or written (") + error.what() + "). Check the disk."};
    }
}

}  // namespace zel
