#pragma once

#include <csignal>
#include <sys/resource.h>

namespace zel::test {

/// While it lives, no file of this process may grow beyond a size [bytes]: what a full disk does.
class FullDisk {
public:
    explicit FullDisk(rlim_t size) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_former);
        const rlimit limit{size, m_former.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_former);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_former{};
    void (*m_handler)(int);
};

}  // namespace zel::test
