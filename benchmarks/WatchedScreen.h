// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XShm.h>

#include <chrono>
#include <cstdint>
#include <optional>
#include <span>

/// The X screen as its viewer has it: tells when something is drawn, and what is to be seen.
class WatchedScreen
{
public:
    using Clock = std::chrono::steady_clock;

    /// Of the display that the environment names. Ends the process when there is none.
    WatchedScreen();
    WatchedScreen(const WatchedScreen&) = delete;
    WatchedScreen& operator=(const WatchedScreen&) = delete;
    ~WatchedScreen();

    Display* display() const { return m_display; }
    int width() const { return m_image->width; }
    int height() const { return m_image->height; }

    /// When something was next drawn anywhere; nothing when that is not before `end`. What is drawn
    /// at nearly the same time may be told at once.
    std::optional<Clock::time_point> nextDamage(Clock::time_point end);

    /// What is shown now, row by row, without the pointer; the upper byte means nothing. Valid
    /// until the next call.
    std::span<const std::uint32_t> pixels();

private:
    Display* m_display;
    int m_damageEvent;
    unsigned long m_damage;
    XImage* m_image;
    XShmSegmentInfo m_memory{};
};
