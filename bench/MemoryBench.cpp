// Peak memory of the headless engine with every pane, each measurement in a fresh process:
// the command loading every pane and printing the defaults beside the same command printing
// its help; and a process that opens the whole dialog (panes, panels, restored ticket)
// beside one that does nothing. Figures in MB (2^20 bytes).
#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <malloc.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "DialogSession.h"
#include "panes/PanePlugInMgr.h"

extern char** environ;

namespace {

constexpr double KilobytesPerMegabyte = 1024.0;

// The peak resident size of one run of the command, from the kernel's account of it.
double commandPeakMegabytes(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), OSTRIN_COMMAND_PATH);
    std::vector<char*> argv;
    for (std::string& argument : arguments) argv.push_back(argument.data());
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = -1;
    const int spawned = posix_spawn(&child, argv[0], &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (spawned != 0) return -1;
    int status = 0;
    rusage usage{};
    if (::wait4(child, &status, 0, &usage) != child || !WIFEXITED(status) || WEXITSTATUS(status) != 0) return -1;
    return static_cast<double>(usage.ru_maxrss) / KilobytesPerMegabyte;
}

void runCommand(benchmark::State& state, std::vector<std::string> arguments) {
    double peak = 0;
    for (auto _ : state) peak = std::max(peak, commandPeakMegabytes(arguments));
    if (peak < 0) state.SkipWithError("the command failed");
    state.counters["peak_MB"] = peak;
}

void CommandPrintingItsHelp(benchmark::State& state) { runCommand(state, {"--help"}); }
BENCHMARK(CommandPrintingItsHelp)->Unit(benchmark::kMillisecond)->Iterations(5);

void CommandLoadingEveryPane(benchmark::State& state) {
    runCommand(state, {"--resources", OstrinBench::productBundlePath(), "defaults"});
}
BENCHMARK(CommandLoadingEveryPane)->Unit(benchmark::kMillisecond)->Iterations(5);

struct ChildMemory {
    double peakMegabytes = -1;
    double heapMegabytes = -1;
};

double highWaterMarkMegabytes() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.rfind("VmHWM:", 0) == 0) return std::stod(line.substr(6)) / KilobytesPerMegabyte;
    return -1;
}

// The peak resident size of this process and the heap it holds now.
ChildMemory measure() {
    const struct mallinfo2 heap = ::mallinfo2();
    return {highWaterMarkMegabytes(), static_cast<double>(heap.uordblks + heap.hblkhd) / (1024.0 * 1024.0)};
}

// Runs work in a forked child and answers what work measured there; the parent's own
// allocations stay out of the child's heap figure.
template <typename Work>
ChildMemory inChild(Work work) {
    int pipeEnds[2];
    if (::pipe(pipeEnds) != 0) return {};
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(pipeEnds[0]);
        const ChildMemory memory = work();
        (void)!::write(pipeEnds[1], &memory, sizeof memory);
        ::_exit(0);
    }
    ::close(pipeEnds[1]);
    ChildMemory memory;
    if (child < 0 || ::read(pipeEnds[0], &memory, sizeof memory) != sizeof memory) memory = {};
    ::close(pipeEnds[0]);
    if (child > 0) ::waitpid(child, nullptr, 0);
    return memory;
}

void reportChild(benchmark::State& state, const ChildMemory& memory) {
    if (memory.peakMegabytes < 0) state.SkipWithError("the child process failed");
    state.counters["peak_MB"] = memory.peakMegabytes;
    state.counters["heap_MB"] = memory.heapMegabytes;
}

void ProcessDoingNothing(benchmark::State& state) {
    ChildMemory memory;
    for (auto _ : state) memory = inChild([] { return measure(); });
    reportChild(state, memory);
}
BENCHMARK(ProcessDoingNothing)->Unit(benchmark::kMillisecond)->Iterations(5);

void ProcessWithTheOpenDialog(benchmark::State& state) {
    OstrinBench::productBundlePath();
    ChildMemory memory;
    for (auto _ : state)
        memory = inChild([] {
            OstrinBench::AnswerEveryQuestion answers;
            auto host = OstrinBench::hostWithSavedTicket();
            OstrinBench::DialogSession dialog(*host);
            return measure();
        });
    reportChild(state, memory);
}
BENCHMARK(ProcessWithTheOpenDialog)->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace
