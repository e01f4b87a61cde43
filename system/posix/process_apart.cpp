#include "system/process_apart.hpp"

#include "system/posix/descriptor.hpp"

#include <sys/wait.h>

#include <cstdlib>

namespace kova::system {

ProcessEnd RunApart(const std::function<int()>& work)
{
    const pid_t child = ::fork();
    if (child < 0)
        throw std::system_error(LastError());
    if (child == 0)
        std::exit(work());
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) { }
    if (WIFEXITED(status))
        return {false, WEXITSTATUS(status)};
    return {true, WTERMSIG(status)};
}

} // namespace kova::system
