#include <gtest/gtest.h>

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "CommandRunner.h"
#include "TestSupport.h"

using OstrinTest::runCommand;

namespace {

const std::string SamplePpdPath = std::string(OSTRIN_BUILD_BUNDLE_DIR) + "/Contents/Resources/OstrinFlow.ppd";

// A virtual X display for one test: Xvfb takes a free display number and reports it once
// it accepts clients.
class VirtualDisplay {
public:
    VirtualDisplay() {
        int report[2];
        if (::pipe(report) != 0) return;
        _pid = ::fork();
        if (_pid == 0) {
            const int quiet = ::open("/dev/null", O_RDWR);
            for (int stream : {0, 1, 2}) ::dup2(quiet, stream);
            const std::string fd = std::to_string(report[1]);
            ::execlp("Xvfb", "Xvfb", "-displayfd", fd.c_str(), "-screen", "0", "1280x1024x24", "-nolisten", "tcp",
                     static_cast<char*>(nullptr));
            ::_exit(127);
        }
        ::close(report[1]);
        char digit = 0;
        while (::read(report[0], &digit, 1) == 1 && digit != '\n') _number += digit;
        ::close(report[0]);
    }
    ~VirtualDisplay() {
        if (_pid <= 0) return;
        ::kill(_pid, SIGTERM);
        ::waitpid(_pid, nullptr, 0);
    }
    /// ":N", or "" when Xvfb could not start.
    std::string display() const { return _number.empty() ? "" : ":" + _number; }

private:
    pid_t _pid = -1;
    std::string _number;
};

}  // namespace

TEST(GuiCommand, OpensThePpdWindowAndClosesCleanlyOnAnXDisplay) {
    VirtualDisplay display;
    if (display.display().empty()) GTEST_SKIP() << "Xvfb cannot start here: no X display for this test";
    OstrinTest::TemporaryDirectory runtime;
    ::chmod(runtime.path().c_str(), 0700);
    // A desktop session without a message bus: libdbus is told so rather than left to try
    // to start one.
    const auto result = runCommand({"--ppd", SamplePpdPath, "gui"}, {},
                                   {"DISPLAY=" + display.display(), "QT_QPA_PLATFORM=xcb", "WAYLAND_DISPLAY=",
                                    "OSTRIN_GUI_QUIT_AFTER_SHOWN=1", "XDG_RUNTIME_DIR=" + runtime.path(),
                                    "HOME=" + runtime.path(), "DBUS_SESSION_BUS_ADDRESS=disabled:"});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out, "");
}

TEST(GuiCommand, FailuresNameTheirCauseWithTheirExitCode) {
    OstrinTest::TemporaryDirectory folder;
    const std::string malformed = std::string(OSTRIN_TEST_DATA_DIR) + "/ppd/malformed.ppd";
    struct Case {
        std::vector<std::string> arguments;
        std::vector<std::string> environment;
        int exitCode;
        std::string says;
    };
    const std::vector<Case> cases = {
        {{"--ppd", SamplePpdPath, "gui"}, {"DISPLAY=", "WAYLAND_DISPLAY=", "QT_QPA_PLATFORM="}, 2, "gui needs a display"},
        {{"--ppd", SamplePpdPath, "gui"}, {"DISPLAY=:4711", "QT_QPA_PLATFORM=xcb"}, 2, "display :4711 cannot be opened"},
        {{"--ppd", malformed, "gui"}, {"QT_QPA_PLATFORM=offscreen"}, 3, "malformed.ppd"},
        {{"--queue", "press", "gui"}, {"QT_QPA_PLATFORM=offscreen", "CUPS_SERVER=127.0.0.1:1", "HOME=" + folder.path()}, 4,
         "cannot be reached"},
    };
    for (const Case& item : cases) {
        const auto result = runCommand(item.arguments, {}, item.environment);
        EXPECT_EQ(result.exitCode, item.exitCode) << item.says << ": " << result.err;
        EXPECT_NE(result.err.find(item.says), std::string::npos) << result.err;
        EXPECT_EQ(result.err.find('\n'), result.err.rfind('\n')) << "one line: " << result.err;
    }
}
