#include <gtest/gtest.h>

#include <QApplication>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string>

#include "qt/QtIcons.h"

namespace {

// The exit status that tells ctest the run was skipped.
constexpr int skipped = 77;

bool isInstalled(const std::string& program) {
    std::istringstream path(std::getenv("PATH") ? std::getenv("PATH") : "/usr/bin:/bin");
    for (std::string folder; std::getline(path, folder, ':');)
        if (!folder.empty() && ::access((folder + "/" + program).c_str(), X_OK) == 0) return true;
    return false;
}

// A private X server for this run: it picks a free display itself and names it on a pipe
// once it takes clients, and it goes with this process.
class XvfbServer {
public:
    XvfbServer() {
        int pipe[2];
        if (::pipe2(pipe, O_CLOEXEC) != 0) return;
        _pid = ::fork();
        if (_pid == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGTERM);
            ::fcntl(pipe[1], F_SETFD, 0);
            const std::string fd = std::to_string(pipe[1]);
            ::execlp("Xvfb", "Xvfb", "-displayfd", fd.c_str(), "-screen", "0", "1600x1200x24", "-nolisten", "tcp",
                     static_cast<char*>(nullptr));
            ::_exit(127);
        }
        ::close(pipe[1]);
        _display = readDisplay(pipe[0]);
        ::close(pipe[0]);
    }
    ~XvfbServer() {
        if (_pid <= 0) return;
        ::kill(_pid, SIGTERM);
        ::waitpid(_pid, nullptr, 0);
    }
    XvfbServer(const XvfbServer&) = delete;
    XvfbServer& operator=(const XvfbServer&) = delete;

    /// ":N", or "" when the server did not come up.
    const std::string& display() const { return _display; }

private:
    static std::string readDisplay(int fd) {
        std::string number;
        pollfd waiting{fd, POLLIN, 0};
        char character = 0;
        while (::poll(&waiting, 1, 20000) == 1 && ::read(fd, &character, 1) == 1 && character != '\n')
            number += character;
        return number.empty() ? std::string() : ":" + number;
    }

    pid_t _pid = -1;
    std::string _display;
};

}  // namespace

// The pictures are drawn as on a desktop: by an X server, through Qt's X platform and its
// font rendering, in Fusion, which draws the same everywhere.
int main(int argc, char** argv) {
    if (!isInstalled("Xvfb")) {
        std::fprintf(stderr, "Xvfb is not installed (scripts/install-deps.sh installs the package xvfb): "
                             "the pictures under X are skipped\n");
        return skipped;
    }
    XvfbServer server;
    if (server.display().empty()) {
        std::fprintf(stderr, "Xvfb did not start\n");
        return 1;
    }
    ::setenv("DISPLAY", server.display().c_str(), 1);
    ::setenv("QT_QPA_PLATFORM", "xcb", 1);
    // The private display has no session bus; without this, D-Bus would try to start one
    // through the X server for Qt's accessibility and desktop settings.
    ::setenv("DBUS_SESSION_BUS_ADDRESS", "disabled:", 1);
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setApplicationDisplayName(QStringLiteral("Ostrin Flow"));
    ComQuorvantVelmar_Plugin::QtIcons::useFallbackTheme();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
