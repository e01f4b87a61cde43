#include "bench/desks.hpp"

#include "bench/measure.hpp"

#include <sys/wait.h>
#include <unistd.h>

#include <iostream>
#include <stdexcept>
#include <vector>

namespace kova::bench {

namespace {

struct Pipe {
    Pipe()
    {
        if (pipe(ends) != 0)
            throw std::runtime_error("no pipe");
    }
    ~Pipe()
    {
        close(ends[0]);
        CloseWriting();
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    void CloseWriting()
    {
        if (ends[1] >= 0)
            close(ends[1]);
        ends[1] = -1;
    }

    int ends[2] = {-1, -1};
};

/// In the process of a desk. It is prepared when it has written to `ready`, and works once `start` is closed.
[[noreturn]] void BecomeDesk(int desk, const PrepareDesk& prepare, Pipe& ready, Pipe& start)
{
    try {
        start.CloseWriting();
        const DeskWork work = prepare(desk);
        char letter = 'r';
        if (write(ready.ends[1], &letter, 1) != 1 || read(start.ends[0], &letter, 1) != 0)
            _exit(1);
        work();
        _exit(0);
    } catch (const std::exception& failure) {
        std::cerr << "desk " << desk << ": " << failure.what() << std::endl;
    }
    _exit(1);
}

/// False where a desk has ended before it was prepared.
bool AllAreReady(int desks, Pipe& ready)
{
    ready.CloseWriting();
    char letter = 0;
    int count = 0;
    while (count < desks && read(ready.ends[0], &letter, 1) == 1)
        ++count;
    return count == desks;
}

bool WaitForAll(const std::vector<pid_t>& processes)
{
    bool well = true;
    for (const pid_t process : processes) {
        int status = 0;
        waitpid(process, &status, 0);
        well = well && WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }
    return well;
}

} // namespace

double SecondsOfDesks(int desks, const PrepareDesk& prepare)
{
    Pipe ready, start;
    std::vector<pid_t> processes;
    for (int desk = 0; desk < desks; ++desk) {
        const pid_t process = fork();
        if (process == 0)
            BecomeDesk(desk, prepare, ready, start);
        if (process < 0)
            throw std::runtime_error("no process");
        processes.push_back(process);
    }
    bool well = AllAreReady(desks, ready);
    const double milliseconds = Milliseconds([&] {
        start.CloseWriting();
        well = WaitForAll(processes) && well;
    });
    if (!well)
        throw std::runtime_error("a desk has failed");
    constexpr double millisecondsOfSecond = 1000;
    return milliseconds / millisecondsOfSecond;
}

} // namespace kova::bench
