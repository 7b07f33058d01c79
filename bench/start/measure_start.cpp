// SPDX-License-Identifier: GPL-3.0-or-later
// measure_start [ROUNDS]: starts the bare window and the program in turn, each to its first paint, and prints the
// medians and their ratios, of the time that passed and, steadier on a busy machine, of the processor's. The limit of
// the first is 1.3.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <vector>

extern char **environ;

namespace {

struct Times {
    double wall; ///< milliseconds
    double cpu;
};

double milliseconds(const timeval &time)
{
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

Times runOnce(const std::string &program)
{
    std::string path = program;
    char *const arguments[] = {path.data(), nullptr};
    const auto begin = std::chrono::steady_clock::now();
    pid_t child = 0;
    int status = 1;
    rusage used = {};
    if (posix_spawn(&child, program.c_str(), nullptr, nullptr, arguments, environ) != 0
        || wait4(child, &status, 0, &used) < 0 || status != 0) {
        std::fprintf(stderr, "%s did not reach its first paint\n", program.c_str());
        std::exit(1);
    }
    return {std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count(),
            milliseconds(used.ru_utime) + milliseconds(used.ru_stime)};
}

double median(const std::vector<Times> &times, double Times::*kind)
{
    std::vector<double> sorted;
    for (const Times &time : times)
        sorted.push_back(time.*kind);
    std::ranges::sort(sorted);
    return sorted[sorted.size() / 2];
}

void print(const char *what, double Times::*kind, const std::vector<Times> &bare, const std::vector<Times> &program)
{
    const double bareMedian = median(bare, kind);
    const double programMedian = median(program, kind);
    std::printf("%-14s bare %6.1f ms   program %6.1f ms   ratio %.2f\n", what, bareMedian, programMedian,
                programMedian / bareMedian);
}

} // namespace

int main(int argc, char *argv[])
{
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 41;
    const std::string folder = std::filesystem::read_symlink("/proc/self/exe").parent_path().string();
    std::vector<Times> bare;
    std::vector<Times> program;
    for (int round = -2; round < rounds; ++round) {
        const Times bareTimes = runOnce(folder + "/bench_bare_window");
        const Times programTimes = runOnce(folder + "/bench_program_start");
        if (round < 0)
            continue; // the first two fill the caches
        bare.push_back(bareTimes);
        program.push_back(programTimes);
    }
    print("to first paint", &Times::wall, bare, program);
    print("of it CPU", &Times::cpu, bare, program);
    return 0;
}
