#include "platform/os/interruption.h"

#include <csignal>

namespace zel::os {

namespace {

volatile std::sig_atomic_t flag = 0;

extern "C" void raiseFlag(int signal)
{
    flag = 1;
    std::signal(signal, SIG_DFL);
}

#ifdef _WIN32

void setHandlers(void (*handler)(int), void (*)(int))
{
    std::signal(SIGINT, handler);
    std::signal(SIGTERM, handler);
}

#else

void setHandlers(void (*handler)(int), void (*pipe)(int))
{
    struct sigaction action {};
    action.sa_handler = handler;  // and no SA_RESTART: who waits for input goes on at once
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
    action.sa_handler = pipe;
    sigaction(SIGPIPE, &action, nullptr);
}

#endif

}  // namespace

Interruption::Interruption()
{
    flag = 0;
    setHandlers(raiseFlag, SIG_IGN);
}

Interruption::~Interruption()
{
    setHandlers(SIG_DFL, SIG_DFL);
}

bool Interruption::asked()
{
    return flag != 0;
}

}  // namespace zel::os
