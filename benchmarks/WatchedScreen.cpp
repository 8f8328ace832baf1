// SPDX-License-Identifier: Apache-2.0

#include "WatchedScreen.h"

#include <X11/extensions/Xdamage.h>

#include <poll.h>
#include <sys/ipc.h>
#include <sys/shm.h>

#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void fail(const char* reason)
{
    std::fprintf(stderr, "%s\n", reason);
    std::exit(EXIT_FAILURE);
}

} // namespace

WatchedScreen::WatchedScreen() : m_display(XOpenDisplay(nullptr))
{
    if (!m_display) {
        fail("There is no display.");
    }
    int damageError = 0;
    if (!XShmQueryExtension(m_display) ||
        !XDamageQueryExtension(m_display, &m_damageEvent, &damageError)) {
        fail("The display lacks shared memory or damage.");
    }
    const int screen = DefaultScreen(m_display);
    const auto width = static_cast<unsigned>(DisplayWidth(m_display, screen));
    const auto height = static_cast<unsigned>(DisplayHeight(m_display, screen));
    m_image = XShmCreateImage(m_display, DefaultVisual(m_display, screen),
                              static_cast<unsigned>(DefaultDepth(m_display, screen)), ZPixmap,
                              nullptr, &m_memory, width, height);
    if (!m_image || m_image->bits_per_pixel != 32) {
        fail("The display has no 32 bits a pixel.");
    }
    const auto bytes = static_cast<size_t>(m_image->bytes_per_line) * height;
    m_memory.shmid = shmget(IPC_PRIVATE, bytes, IPC_CREAT | 0600);
    m_memory.shmaddr = static_cast<char*>(shmat(m_memory.shmid, nullptr, 0));
    m_memory.readOnly = False;
    m_image->data = m_memory.shmaddr;
    XShmAttach(m_display, &m_memory);
    XSync(m_display, False);
    shmctl(m_memory.shmid, IPC_RMID, nullptr);
    m_damage = XDamageCreate(m_display, DefaultRootWindow(m_display), XDamageReportNonEmpty);
}

WatchedScreen::~WatchedScreen()
{
    XShmDetach(m_display, &m_memory);
    XDestroyImage(m_image);
    XCloseDisplay(m_display);
    shmdt(m_memory.shmaddr);
}

std::optional<WatchedScreen::Clock::time_point> WatchedScreen::nextDamage(Clock::time_point end)
{
    for (;;) {
        while (XPending(m_display) > 0) {
            XEvent event;
            XNextEvent(m_display, &event);
            if (event.type == m_damageEvent + XDamageNotify) {
                const auto now = Clock::now();
                XDamageSubtract(m_display, m_damage, None, None);
                XFlush(m_display);
                return now;
            }
        }
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
        pollfd connection{.fd = ConnectionNumber(m_display), .events = POLLIN, .revents = 0};
        if (left <= 0 || poll(&connection, 1, static_cast<int>(left)) <= 0) {
            return std::nullopt;
        }
    }
}

std::span<const std::uint32_t> WatchedScreen::pixels()
{
    XShmGetImage(m_display, DefaultRootWindow(m_display), m_image, 0, 0, AllPlanes);
    const auto* const first = reinterpret_cast<const std::uint32_t*>(m_image->data);
    return {first, static_cast<size_t>(width()) * static_cast<size_t>(height())};
}
