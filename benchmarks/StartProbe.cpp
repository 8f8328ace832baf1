// SPDX-License-Identifier: Apache-2.0

// Starts a command and tells when its content stands on the screen:
//   start_probe PICTURE COMMAND...
// PICTURE is the screen as it is once the command has come to rest, four bytes a pixel. Prints,
// after "probe:", the process number, then, once half of the content stands there and once nearly
// all of it does, the seconds since the start and the processor seconds used until then; then waits
// for the command's end.

#include "WatchedScreen.h"

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <queue>
#include <vector>

namespace {

constexpr std::uint32_t colour = 0xffffff;
constexpr auto patience = std::chrono::minutes(5);
/// For which the window of a start before may stay.
constexpr auto cleared = std::chrono::seconds(5);
/// At the command, where nothing is drawn.
constexpr auto untilNextLook = std::chrono::milliseconds(200);
/// Of a hundred.
constexpr size_t half = 50;
constexpr size_t nearlyAll = 98;

/// The outlines of what stands on the screen at rest: pixels that differ from their left neighbour.
class Outlines
{
public:
    Outlines(std::vector<std::uint32_t> picture) : m_picture(std::move(picture))
    {
        for (size_t at = 1; at < m_picture.size(); ++at) {
            if (((m_picture[at] ^ m_picture[at - 1]) & colour) != 0) {
                m_places.push_back(at);
            }
        }
    }

    /// How many of a hundred stand there.
    size_t standingIn(std::span<const std::uint32_t> pixels) const
    {
        size_t standing = 0;
        for (const size_t at : m_places) {
            standing += isSame(pixels, at) && isSame(pixels, at - 1) ? 1 : 0;
        }
        return m_places.empty() ? 100 : 100 * standing / m_places.size();
    }

private:
    bool isSame(std::span<const std::uint32_t> pixels, size_t at) const
    {
        return ((pixels[at] ^ m_picture[at]) & colour) == 0;
    }

    std::vector<std::uint32_t> m_picture;
    std::vector<size_t> m_places;
};

std::vector<std::uint32_t> readPicture(const char* path, size_t size)
{
    std::vector<std::uint32_t> pixels(size);
    std::ifstream file(path, std::ios::binary);
    const auto bytes = static_cast<std::streamsize>(size * sizeof(std::uint32_t));
    if (!file.read(reinterpret_cast<char*>(pixels.data()), bytes)) {
        std::fprintf(stderr, "%s is no picture of this screen.\n", path);
        std::exit(EXIT_FAILURE);
    }
    return pixels;
}

void waitUntilGone(const Outlines& outlines, WatchedScreen& screen)
{
    const auto end = WatchedScreen::Clock::now() + cleared;
    while (outlines.standingIn(screen.pixels()) >= half) {
        if (!screen.nextDamage(end)) {
            std::fprintf(stderr, "The content stands there before the start.\n");
            std::exit(EXIT_FAILURE);
        }
    }
}

pid_t start(char* command[])
{
    const pid_t child = fork();
    if (child == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        execvp(command[0], command);
        _exit(127);
    }
    return child;
}

bool hasEnded(pid_t process)
{
    siginfo_t end{};
    return waitid(P_PID, static_cast<id_t>(process), &end, WEXITED | WNOHANG | WNOWAIT) == 0 &&
           end.si_pid == process;
}

double processorSeconds(pid_t process)
{
    clockid_t clock = 0;
    timespec used{};
    if (clock_getcpuclockid(process, &clock) != 0 || clock_gettime(clock, &used) != 0) {
        return 0;
    }
    return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) / 1e9;
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc < 3) {
        return EXIT_FAILURE;
    }
    WatchedScreen screen;
    const Outlines outlines(readPicture(argv[1], screen.pixels().size()));
    waitUntilGone(outlines, screen);

    const auto begin = WatchedScreen::Clock::now();
    const pid_t process = start(argv + 2);
    std::printf("probe: %d\n", process);
    std::fflush(stdout);
    std::queue<size_t> shares({half, nearlyAll});
    while (!shares.empty() && !hasEnded(process) &&
           WatchedScreen::Clock::now() < begin + patience) {
        const auto drawn = screen.nextDamage(WatchedScreen::Clock::now() + untilNextLook);
        if (!drawn) {
            continue;
        }
        const double processor = processorSeconds(process);
        const size_t standing = outlines.standingIn(screen.pixels());
        for (; !shares.empty() && standing >= shares.front(); shares.pop()) {
            std::printf("probe: %.6f %.6f\n", std::chrono::duration<double>(*drawn - begin).count(),
                        processor);
        }
        std::fflush(stdout);
    }
    waitpid(process, nullptr, 0);
    return EXIT_SUCCESS;
}
