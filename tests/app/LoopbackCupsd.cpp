#include "LoopbackCupsd.h"

#include <arpa/inet.h>
#include <grp.h>
#include <netinet/in.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <thread>

namespace OstrinTest {
namespace {

int freeLoopbackPort() {
    const int probe = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    int port = 0;
    if (::bind(probe, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0 &&
        ::getsockname(probe, reinterpret_cast<sockaddr*>(&address), &length) == 0)
        port = ntohs(address.sin_port);
    ::close(probe);
    return port;
}

bool accepts(int port) {
    const int connection = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const bool connected =
        ::connect(connection, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    ::close(connection);
    return connected;
}

}  // namespace

LoopbackCupsd::LoopbackCupsd() {
    if (::geteuid() != 0) {
        _problem = "cupsd needs root to run its filters as the lp user";
        return;
    }
    if (!std::filesystem::exists("/usr/sbin/cupsd")) {
        _problem = "cupsd is not installed (Debian package cups-daemon)";
        return;
    }
    _port = freeLoopbackPort();
    writeConfiguration();
    _pid = ::fork();
    if (_pid == 0) {
        const std::string configuration = _root.file("cupsd.conf");
        const std::string files = _root.file("cups-files.conf");
        ::execl("/usr/sbin/cupsd", "cupsd", "-f", "-c", configuration.c_str(), "-s",
                files.c_str(), static_cast<char*>(nullptr));
        ::_exit(127);
    }
    if (!waitUntilListening()) _problem = "cupsd did not start: " + readFile(_root.file("error_log"));
}

LoopbackCupsd::~LoopbackCupsd() {
    if (_pid <= 0) return;
    ::kill(_pid, SIGTERM);
    int status = 0;
    ::waitpid(_pid, &status, 0);
}

void LoopbackCupsd::writeConfiguration() {
    const std::string& root = _root.path();
    for (const char* folder : {"spool", "cache", "state", "ppd", "tmp"})
        std::filesystem::create_directories(root + "/" + folder);
    // Filters run as lp and write their temporary files here.
    if (const group* lp = ::getgrnam("lp")) ::chown(_root.file("tmp").c_str(), 0, lp->gr_gid);
    ::chmod(_root.file("tmp").c_str(), 01770);
    ::chmod(root.c_str(), 0755);
    writeFile(_root.file("cups-files.conf"),
              "ServerRoot " + root + "\nRequestRoot " + root + "/spool\nCacheDir " + root +
                  "/cache\nStateDir " + root + "/state\nTempDir " + root + "/tmp\n"
                  "ErrorLog " + root + "/error_log\nAccessLog " + root + "/access_log\n"
                  "PageLog " + root + "/page_log\nFileDevice Yes\nSystemGroup root\n");
    writeFile(_root.file("cupsd.conf"),
              "Listen 127.0.0.1:" + std::to_string(_port) +
                  "\nBrowsing No\nWebInterface No\nDefaultAuthType None\nLogLevel warn\n"
                  "PreserveJobHistory Yes\n<Location />\n  Order allow,deny\n  Allow all\n"
                  "</Location>\n<Policy default>\n  <Limit All>\n    Order deny,allow\n"
                  "    Allow all\n  </Limit>\n</Policy>\n");
}

bool LoopbackCupsd::waitUntilListening() {
    for (int attempt = 0; attempt < 100; ++attempt) {
        if (accepts(_port)) return true;
        if (::waitpid(_pid, nullptr, WNOHANG) == _pid) {
            _pid = -1;
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    return false;
}

std::string LoopbackCupsd::serverAssignment() const {
    return "CUPS_SERVER=127.0.0.1:" + std::to_string(_port);
}

bool LoopbackCupsd::addQueue(const std::string& name, const std::string& ppdPath) {
    return run("lpadmin -p '" + name + "' -E -v file:///dev/null -P '" + ppdPath + "'").exitCode == 0;
}

ShellResult LoopbackCupsd::run(const std::string& commandLine) const {
    return runShell(serverAssignment() + " " + commandLine);
}

}  // namespace OstrinTest
