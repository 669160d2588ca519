#include "CupsTestServer.h"

#include <arpa/inet.h>
#include <cups/cups.h>
#include <fcntl.h>
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
#include <vector>

namespace OstrinTest {
namespace {

constexpr const char* cupsdPath = "/usr/sbin/cupsd";

int freeLoopbackPort() {
    int sock = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    int port = 0;
    if (::bind(sock, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0 &&
        ::getsockname(sock, reinterpret_cast<sockaddr*>(&address), &length) == 0)
        port = ntohs(address.sin_port);
    ::close(sock);
    return port;
}

bool canConnect(int port) {
    int sock = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    bool connected = ::connect(sock, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    ::close(sock);
    return connected;
}

// Filters run as lp, so the temporary folder must be theirs to write.
void handFolderToLp(const std::string& path, mode_t mode) {
    if (const group* lp = ::getgrnam("lp")) (void)::chown(path.c_str(), 0, lp->gr_gid);
    ::chmod(path.c_str(), mode);
}

int runQuietly(const std::vector<std::string>& arguments, const std::string& server) {
    pid_t child = ::fork();
    if (child == 0) {
        ::setenv("CUPS_SERVER", server.c_str(), 1);
        int devNull = ::open("/dev/null", O_WRONLY);
        ::dup2(devNull, 1);
        ::dup2(devNull, 2);
        std::vector<char*> argv;
        for (const auto& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
        argv.push_back(nullptr);
        ::execvp(argv[0], argv.data());
        ::_exit(127);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::string attributeText(ipp_attribute_t* attribute) {
    char buffer[4096];
    ippAttributeString(attribute, buffer, sizeof buffer);
    return buffer;
}

}  // namespace

CupsTestServer::CupsTestServer() {
    if (::access(cupsdPath, X_OK) != 0) {
        _unavailableReason = "cupsd is not installed (Debian package cups)";
    } else if (::geteuid() != 0) {
        _unavailableReason = "cupsd needs root to run its filters as lp";
    } else if (!start()) {
        _unavailableReason = "cupsd did not start; see " + _folder.path() + "/log";
    }
}

CupsTestServer::~CupsTestServer() { stop(); }

std::string CupsTestServer::serverName() const { return "127.0.0.1:" + std::to_string(_port); }

void CupsTestServer::writeConfiguration() {
    const std::string& root = _folder.path();
    for (const char* folder : {"spool", "tmp", "cache", "log", "state", "ppd", "ssl", "home"})
        std::filesystem::create_directories(root + "/" + folder);
    handFolderToLp(root + "/tmp", 01770);
    handFolderToLp(root + "/spool", 0710);
    writeFile(root + "/cupsd.conf",
              "Listen 127.0.0.1:" + std::to_string(_port) +
                  "\nBrowsing No\nWebInterface No\nDefaultAuthType None\n"
                  "PreserveJobHistory Yes\nLogLevel warn\n"
                  "<Location />\n  Order allow,deny\n  Allow all\n</Location>\n"
                  "<Policy default>\n  JobPrivateAccess all\n  JobPrivateValues none\n"
                  "  <Limit All>\n    Order deny,allow\n  </Limit>\n</Policy>\n");
    writeFile(root + "/cups-files.conf",
              "FileDevice Yes\nServerRoot " + root + "\nRequestRoot " + root + "/spool\nTempDir " +
                  root + "/tmp\nCacheDir " + root + "/cache\nStateDir " + root +
                  "/state\nAccessLog " + root + "/log/access_log\nErrorLog " + root +
                  "/log/error_log\nPageLog " + root + "/log/page_log\nServerKeychain " + root + "/ssl\n");
}

bool CupsTestServer::start() {
    _port = freeLoopbackPort();
    if (_port == 0) return false;
    writeConfiguration();
    const std::string conf = _folder.path() + "/cupsd.conf";
    const std::string files = _folder.path() + "/cups-files.conf";
    _pid = ::fork();
    if (_pid == 0) {
        ::execl(cupsdPath, "cupsd", "-f", "-c", conf.c_str(), "-s", files.c_str(), nullptr);
        ::_exit(127);
    }
    return _pid > 0 && waitUntilListening();
}

bool CupsTestServer::waitUntilListening() const {
    for (int attempt = 0; attempt < 100; ++attempt) {
        if (canConnect(_port)) return true;
        int status = 0;
        if (::waitpid(_pid, &status, WNOHANG) == _pid) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    return false;
}

void CupsTestServer::stop() {
    if (_pid <= 0) return;
    ::kill(_pid, SIGTERM);
    int status = 0;
    ::waitpid(_pid, &status, 0);
    _pid = -1;
}

bool CupsTestServer::addQueue(const std::string& name, const std::string& ppdPath) {
    return runQuietly({"lpadmin", "-p", name, "-E", "-v", "file:///dev/null", "-P", ppdPath},
                      serverName()) == 0;
}

std::map<std::string, std::string> CupsTestServer::jobAttributes(int jobId) const {
    std::map<std::string, std::string> attributes;
    http_t* http = httpConnect2("127.0.0.1", _port, nullptr, AF_INET, HTTP_ENCRYPTION_NEVER, 1,
                                5000, nullptr);
    if (!http) return attributes;
    ipp_t* request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
    const std::string uri = "ipp://" + serverName() + "/jobs/" + std::to_string(jobId);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.c_str());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, "root");
    ipp_t* response = cupsDoRequest(http, request, "/");
    for (ipp_attribute_t* attribute = ippFirstAttribute(response); attribute;
         attribute = ippNextAttribute(response))
        if (const char* name = ippGetName(attribute)) attributes[name] = attributeText(attribute);
    ippDelete(response);
    httpClose(http);
    return attributes;
}

}  // namespace OstrinTest
