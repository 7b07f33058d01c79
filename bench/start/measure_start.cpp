// SPDX-License-Identifier: GPL-3.0-or-later
// measure_start [ROUNDS]: starts the bare window and the program in turn, each to its first paint, and prints the
// medians and their ratio. Only the ratio means anything on another machine.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <vector>

extern char **environ;

namespace {

double runOnce(const std::string &program)
{
    std::string path = program;
    char *const arguments[] = {path.data(), nullptr};
    const auto begin = std::chrono::steady_clock::now();
    pid_t child = 0;
    int status = 1;
    if (posix_spawn(&child, program.c_str(), nullptr, nullptr, arguments, environ) != 0
        || waitpid(child, &status, 0) < 0 || status != 0) {
        std::fprintf(stderr, "%s did not reach its first paint\n", program.c_str());
        std::exit(1);
    }
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

double median(std::vector<double> times)
{
    std::ranges::sort(times);
    return times[times.size() / 2];
}

} // namespace

int main(int argc, char *argv[])
{
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 41;
    const std::string folder = std::filesystem::read_symlink("/proc/self/exe").parent_path().string();
    std::vector<double> bare;
    std::vector<double> program;
    for (int round = -2; round < rounds; ++round) {
        const double bareTime = runOnce(folder + "/bench_bare_window");
        const double programTime = runOnce(folder + "/bench_program_start");
        if (round < 0)
            continue; // the first two fill the caches
        bare.push_back(bareTime);
        program.push_back(programTime);
    }
    const double bareMedian = median(bare);
    const double programMedian = median(program);
    std::printf("bare window    %6.1f ms (best %.1f)\n", bareMedian, *std::ranges::min_element(bare));
    std::printf("program        %6.1f ms (best %.1f)\n", programMedian, *std::ranges::min_element(program));
    std::printf("ratio          %6.2f    (limit 1.30)\n", programMedian / bareMedian);
    return 0;
}
