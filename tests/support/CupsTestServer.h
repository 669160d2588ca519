#pragma once

#include <sys/types.h>

#include <map>
#include <string>

#include "TestSupport.h"

namespace OstrinTest {

/// A private cupsd on a free port of 127.0.0.1, with its own configuration, spool and
/// logs in a temporary folder; started by the constructor, stopped by the destructor.
class CupsTestServer {
public:
    CupsTestServer();
    ~CupsTestServer();
    CupsTestServer(const CupsTestServer&) = delete;
    CupsTestServer& operator=(const CupsTestServer&) = delete;

    /// Why the server could not run (no cupsd installed, not root, no start), or "".
    const std::string& unavailableReason() const { return _unavailableReason; }
    /// "127.0.0.1:PORT", the value of CUPS_SERVER for clients.
    std::string serverName() const;
    /// A folder to use as HOME of the clients, so saved options stay private.
    std::string clientHome() const { return _folder.path() + "/home"; }
    /// Adds an enabled queue printing to /dev/null with the PPD at ppdPath.
    bool addQueue(const std::string& name, const std::string& ppdPath);
    /// The attributes of job jobId read over IPP, each as text (values joined by ",").
    std::map<std::string, std::string> jobAttributes(int jobId) const;
    /// Stops the server now (to test a server that goes away).
    void stop();

private:
    void writeConfiguration();
    bool start();
    bool waitUntilListening() const;

    TemporaryDirectory _folder;
    int _port = 0;
    pid_t _pid = -1;
    std::string _unavailableReason;
};

}  // namespace OstrinTest
