// SPDX-License-Identifier: Apache-2.0

#include "TerminationSignals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <tuple>

#include <sys/eventfd.h>

namespace {

constexpr std::array asking{SIGTERM, SIGHUP, SIGINT};

// What a handler may use: it runs between any two instructions of the program.
volatile std::sig_atomic_t askedDescriptor = -1;

void ask(int)
{
    const int error = errno;
    constexpr eventfd_t once = 1;
    std::ignore = ::write(askedDescriptor, &once, sizeof once);
    errno = error;
}

// A signal that the process was started to ignore, as by nohup, stays ignored.
void setHandlers(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    for (const int signal : asking) {
        struct sigaction before = {};
        ::sigaction(signal, nullptr, &before);
        if (before.sa_handler != SIG_IGN) {
            ::sigaction(signal, &action, nullptr);
        }
    }
}

} // namespace

TerminationSignals::TerminationSignals()
    : m_asked(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
      m_notifier(m_asked.get(), QSocketNotifier::Read)
{
    connect(&m_notifier, &QSocketNotifier::activated, this, [this] {
        eventfd_t count = 0;
        ::eventfd_read(m_asked.get(), &count);
        Q_EMIT endRequested();
    });
    askedDescriptor = m_asked.get();
    setHandlers(ask);
}

TerminationSignals::~TerminationSignals()
{
    setHandlers(SIG_DFL);
    askedDescriptor = -1;
}
