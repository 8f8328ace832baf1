// SPDX-License-Identifier: Apache-2.0

// Presses keys and turns the wheel, and tells when the screen changes: key_probe PID
// Commands come line by line, each is answered by one line:
//   press KEY...       the seconds until the screen changes, or nothing when it does not; the last
//                      key is pressed while the others are down
//   go KEY...          the same, whether anything changes or not; nothing
//   hold KEY SECONDS   of each frame drawn meanwhile the seconds since the one before it and the
//   wheel SECONDS      processor seconds that the process has used since then
// A command begins and ends when the screen is at rest.

#include "WatchedScreen.h"

#include <X11/XKBlib.h>
#include <X11/extensions/XTest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace {

using namespace std::chrono_literals;
using Clock = WatchedScreen::Clock;

constexpr auto rest = 300ms;
constexpr auto patience = 3s;
/// Of one frame several parts may be drawn one after the other.
constexpr auto withinFrame = 3ms;
constexpr auto wheelInterval = 50ms;
constexpr unsigned wheelDown = 5;
constexpr unsigned repeatDelay = 250;
constexpr unsigned repeatInterval = 33;

double seconds(Clock::duration duration)
{
    return std::chrono::duration<double>(duration).count();
}

class Process
{
public:
    explicit Process(pid_t number)
    {
        if (clock_getcpuclockid(number, &m_clock) != 0) {
            std::fprintf(stderr, "There is no process %d.\n", number);
            std::exit(EXIT_FAILURE);
        }
    }

    double processorSeconds() const
    {
        timespec used{};
        clock_gettime(m_clock, &used);
        return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) / 1e9;
    }

private:
    clockid_t m_clock = 0;
};

struct Frame
{
    Clock::time_point drawn;
    double processorSeconds;
};

class Probe
{
public:
    explicit Probe(pid_t process) : m_process(process)
    {
        XkbSetAutoRepeatRate(m_screen.display(), XkbUseCoreKbd, repeatDelay, repeatInterval);
    }

    std::string answer(const std::string& line)
    {
        std::istringstream words(line);
        std::string command;
        words >> command;
        waitForRest();
        if (command == "hold") {
            return hold(words);
        }
        if (command == "wheel") {
            return wheel(words);
        }
        const std::vector<std::string> keys{std::istream_iterator<std::string>(words), {}};
        return command == "press" ? press(keys) : go(keys);
    }

private:
    std::string press(const std::vector<std::string>& keys)
    {
        const auto before = copyOfScreen();
        const auto begin = Clock::now();
        send(keys);
        std::string answer;
        while (const auto drawn = m_screen.nextDamage(begin + patience)) {
            if (!std::ranges::equal(m_screen.pixels(), before)) {
                answer = std::to_string(seconds(*drawn - begin));
                break;
            }
        }
        waitForRest();
        return answer;
    }

    std::string go(const std::vector<std::string>& keys)
    {
        send(keys);
        waitForRest();
        return {};
    }

    std::string hold(std::istringstream& words)
    {
        std::string key;
        double duration = 0;
        words >> key >> duration;
        sendKey(key, true);
        const auto frames = framesUntil(Clock::now() + toDuration(duration));
        sendKey(key, false);
        waitForRest();
        return costsOf(frames);
    }

    std::string wheel(std::istringstream& words)
    {
        double duration = 0;
        words >> duration;
        std::vector<Frame> frames;
        const auto end = Clock::now() + toDuration(duration);
        while (Clock::now() < end) {
            XTestFakeButtonEvent(m_screen.display(), wheelDown, True, CurrentTime);
            XTestFakeButtonEvent(m_screen.display(), wheelDown, False, CurrentTime);
            XFlush(m_screen.display());
            std::ranges::copy(framesUntil(Clock::now() + wheelInterval),
                              std::back_inserter(frames));
        }
        waitForRest();
        return costsOf(frames);
    }

    static Clock::duration toDuration(double duration)
    {
        return std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(duration));
    }

    std::vector<Frame> framesUntil(Clock::time_point end)
    {
        std::vector<Frame> frames;
        while (const auto drawn = m_screen.nextDamage(end)) {
            const Frame frame{*drawn, m_process.processorSeconds()};
            if (!frames.empty() && *drawn - frames.back().drawn < withinFrame) {
                frames.back() = frame;
            } else {
                frames.push_back(frame);
            }
        }
        return frames;
    }

    static std::string costsOf(const std::vector<Frame>& frames)
    {
        std::ostringstream costs;
        for (size_t at = 1; at < frames.size(); ++at) {
            costs << seconds(frames[at].drawn - frames[at - 1].drawn) << ' '
                  << frames[at].processorSeconds - frames[at - 1].processorSeconds << ' ';
        }
        return costs.str();
    }

    void send(const std::vector<std::string>& keys)
    {
        for (const std::string& key : keys) {
            sendKey(key, true);
        }
        for (const std::string& key : keys) {
            sendKey(key, false);
        }
    }

    void sendKey(const std::string& name, bool down)
    {
        const KeyCode code = XKeysymToKeycode(m_screen.display(), XStringToKeysym(name.c_str()));
        XTestFakeKeyEvent(m_screen.display(), code, down ? True : False, CurrentTime);
        XFlush(m_screen.display());
    }

    std::vector<std::uint32_t> copyOfScreen()
    {
        const auto pixels = m_screen.pixels();
        return {pixels.begin(), pixels.end()};
    }

    void waitForRest()
    {
        const auto end = Clock::now() + patience;
        while (Clock::now() < end && m_screen.nextDamage(Clock::now() + rest)) {
        }
    }

    WatchedScreen m_screen;
    Process m_process;
};

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 2) {
        return EXIT_FAILURE;
    }
    Probe probe(std::atoi(argv[1]));
    for (std::string line; std::getline(std::cin, line);) {
        std::cout << probe.answer(line) << std::endl;
    }
    return EXIT_SUCCESS;
}
