#pragma once

#include <functional>
#include <map>
#include <string>

#include "support/CupsTestServer.h"

namespace OstrinTest {

/// Points libcups clients of this process (and the commands it runs) at server, with
/// the server's private HOME, until the object goes away.
class CupsClient {
public:
    explicit CupsClient(const CupsTestServer& server);

    /// Runs work on a new thread and waits: libcups reads HOME and CUPS_SERVER once per
    /// thread, so a fresh thread sees the values set here.
    static void run(const std::function<void()>& work);

    /// The attributes of job jobId as cupsd holds them: strings as they are, numbers in
    /// decimal, booleans as "true"/"false", several values joined by ",".
    std::map<std::string, std::string> jobAttributes(int jobId) const;
    /// Runs an lp command line through /bin/sh; the job id it reports, or 0.
    int lp(const std::string& arguments) const;

private:
    const CupsTestServer& _server;
    EnvironmentOverride _cupsServer;
    EnvironmentOverride _home;
};

}  // namespace OstrinTest
