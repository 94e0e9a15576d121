// Runs a command and writes what it took: wall seconds, processor seconds, peak memory in KiB and
// exit status. A process of its own, because the peak that the system tells of a child has the
// caller's size at the fork in it, and this one is small.
//
//   timed RESULT COMMAND ARGUMENT...

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>

int main(int argc, char** argv) {
    if (argc < 3) return 2;
    const auto started = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        execvp(argv[2], argv + 2);
        std::perror(argv[2]);
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    if (child < 0 || wait4(child, &status, 0, &usage) != child) return 2;
    const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - started;
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
    };
    std::FILE* const result = std::fopen(argv[1], "w");
    if (!result) return 2;
    std::fprintf(result, "%.6f %.6f %ld %d\n", wall.count(),
                 seconds(usage.ru_utime) + seconds(usage.ru_stime), usage.ru_maxrss,
                 WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status));
    return std::fclose(result) == 0 ? 0 : 2;
}
