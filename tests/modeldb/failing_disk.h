#pragma once

#include <cstring>
#include <sqlite3.h>
#include <vector>

namespace zel::test {

/// While it lives, SQLite reaches its files through it, and one call that alters a file fails as on a broken disk: the n-th from `failAt` on,
/// or that and all later ones.
class FailingDisk {
public:
    enum class Call { write, sync, truncate };
    enum class How { once, forGood };

    FailingDisk() : m_real(sqlite3_vfs_find(nullptr)), m_vfs(*m_real)
    {
        current() = this;
        m_vfs.zName = "failing-disk";
        m_vfs.pNext = nullptr;
        m_vfs.szOsFile = static_cast<int>(sizeof(File)) + m_real->szOsFile;
        m_vfs.xOpen = open;
        sqlite3_vfs_register(&m_vfs, 1);
    }
    FailingDisk(const FailingDisk&) = delete;
    FailingDisk& operator=(const FailingDisk&) = delete;
    ~FailingDisk()
    {
        sqlite3_vfs_unregister(&m_vfs);
        sqlite3_vfs_register(m_real, 1);
        current() = nullptr;
    }

    /// @param n  counts from 1
    void failAt(Call call, int n, How how)
    {
        m_call = call;
        m_left = n;
        m_how = how;
        m_failed = false;
    }
    void mend()
    {
        m_left = 0;
        m_failed = false;
    }
    [[nodiscard]] bool hasFailed() const { return m_failed; }

private:
    struct File {
        sqlite3_file base;
        sqlite3_file* real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
    };

    static FailingDisk*& current()
    {
        static FailingDisk* disk = nullptr;
        return disk;
    }
    static sqlite3_file* real(sqlite3_file* file) { return reinterpret_cast<File*>(file)->real(); }

    bool fails(Call call)
    {
        if (m_left == 0 || call != m_call || (m_left > 1 && --m_left > 0))
            return false;
        if (m_how == How::once)
            m_left = 0;
        m_failed = true;
        return true;
    }

    static const sqlite3_io_methods* methods(const sqlite3_io_methods& of)
    {
        static sqlite3_io_methods made;
        made = of;
        made.iVersion = 1;  // no shared memory, no mapping: a model is open in exclusive mode
        made.xClose = [](sqlite3_file* file) { return real(file)->pMethods->xClose(real(file)); };
        made.xRead = [](sqlite3_file* file, void* to, int size, sqlite3_int64 at) { return real(file)->pMethods->xRead(real(file), to, size, at); };
        made.xWrite = [](sqlite3_file* file, const void* from, int size, sqlite3_int64 at) {
            return current()->fails(Call::write) ? SQLITE_IOERR_WRITE : real(file)->pMethods->xWrite(real(file), from, size, at);
        };
        made.xTruncate = [](sqlite3_file* file, sqlite3_int64 size) {
            return current()->fails(Call::truncate) ? SQLITE_IOERR_TRUNCATE : real(file)->pMethods->xTruncate(real(file), size);
        };
        made.xSync = [](sqlite3_file* file, int flags) {
            return current()->fails(Call::sync) ? SQLITE_IOERR_FSYNC : real(file)->pMethods->xSync(real(file), flags);
        };
        made.xFileSize = [](sqlite3_file* file, sqlite3_int64* size) { return real(file)->pMethods->xFileSize(real(file), size); };
        made.xLock = [](sqlite3_file* file, int level) { return real(file)->pMethods->xLock(real(file), level); };
        made.xUnlock = [](sqlite3_file* file, int level) { return real(file)->pMethods->xUnlock(real(file), level); };
        made.xCheckReservedLock = [](sqlite3_file* file, int* result) { return real(file)->pMethods->xCheckReservedLock(real(file), result); };
        made.xFileControl = [](sqlite3_file* file, int what, void* argument) { return real(file)->pMethods->xFileControl(real(file), what, argument); };
        made.xSectorSize = [](sqlite3_file* file) { return real(file)->pMethods->xSectorSize(real(file)); };
        made.xDeviceCharacteristics = [](sqlite3_file* file) { return real(file)->pMethods->xDeviceCharacteristics(real(file)); };
        return &made;
    }

    static int open(sqlite3_vfs* /*vfs*/, const char* name, sqlite3_file* file, int flags, int* outFlags)
    {
        file->pMethods = nullptr;
        sqlite3_file* inner = real(file);
        const int code = current()->m_real->xOpen(current()->m_real, name, inner, flags, outFlags);
        if (inner->pMethods != nullptr)
            file->pMethods = methods(*inner->pMethods);
        return code;
    }

    sqlite3_vfs* m_real;
    sqlite3_vfs m_vfs;
    Call m_call = Call::write;
    How m_how = How::once;
    int m_left = 0;
    bool m_failed = false;
};

}  // namespace zel::test
