#include <gtest/gtest.h>

#include <sys/stat.h>

#include <string>
#include <vector>

#include "CommandRunner.h"
#include "TestSupport.h"

using OstrinTest::runCommand;

namespace {

const std::string SamplePpdPath = std::string(OSTRIN_BUILD_BUNDLE_DIR) + "/Contents/Resources/OstrinFlow.ppd";

}  // namespace

TEST(GuiCommand, OpensThePpdWindowAndClosesCleanlyOnAnXDisplay) {
    if (OstrinTest::runShell("command -v xvfb-run && command -v xauth").exitCode != 0)
        GTEST_SKIP() << "no xvfb-run (package xvfb) for a virtual X display";
    OstrinTest::TemporaryDirectory runtime;
    ::chmod(runtime.path().c_str(), 0700);
    // A desktop session without a message bus: libdbus is told so rather than left to try
    // to start one. Both outputs together must stay empty.
    const auto result = OstrinTest::runShell(
        "env QT_QPA_PLATFORM=xcb WAYLAND_DISPLAY= OSTRIN_GUI_QUIT_AFTER_SHOWN=1 XDG_RUNTIME_DIR='" + runtime.path() +
        "' HOME='" + runtime.path() + "' DBUS_SESSION_BUS_ADDRESS=disabled: xvfb-run -a -s '-screen 0 1280x1024x24' " +
        OSTRIN_COMMAND_PATH + " --ppd '" + SamplePpdPath + "' gui");
    EXPECT_EQ(result.exitCode, 0) << result.output;
    EXPECT_EQ(result.output, "");
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
