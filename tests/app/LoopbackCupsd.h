#pragma once

#include <sys/types.h>

#include <string>

#include "TestSupport.h"

namespace OstrinTest {

/// A private cupsd on 127.0.0.1 for one test: its own configuration, spool and queues,
/// stopped with the object. Needs root (cupsd runs its filters as the lp user).
class LoopbackCupsd {
public:
    LoopbackCupsd();
    ~LoopbackCupsd();
    LoopbackCupsd(const LoopbackCupsd&) = delete;
    LoopbackCupsd& operator=(const LoopbackCupsd&) = delete;

    /// Whether cupsd started and accepts connections; why not otherwise.
    bool isRunning() const { return _pid > 0 && _problem.empty(); }
    const std::string& problem() const { return _problem; }
    /// "CUPS_SERVER=127.0.0.1:port", for the environment of clients.
    std::string serverAssignment() const;
    /// Adds a queue with the given PPD that prints to /dev/null; false on failure.
    bool addQueue(const std::string& name, const std::string& ppdPath);
    /// Runs a shell command line with CUPS_SERVER pointing at this cupsd.
    ShellResult run(const std::string& commandLine) const;

private:
    void writeConfiguration();
    bool waitUntilListening();

    TemporaryDirectory _root;
    int _port = 0;
    pid_t _pid = -1;
    std::string _problem;
};

}  // namespace OstrinTest
