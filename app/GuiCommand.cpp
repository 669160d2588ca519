#include <QApplication>
#include <QTimer>
#include <QWindow>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "CommandError.h"
#include "Commands.h"
#include "PanelSession.h"
#include "core/Bundle.h"
#include "core/LocalizedString.h"
#include "pde/TarnPDEByCocoa.h"
#include "qt/PanelWindow.h"
#include "qt/QtIcons.h"

using namespace ComQuorvantVelmar_Plugin;

namespace OstrinFlowCommand {
namespace {

bool isSet(const char* variable) {
    const char* value = std::getenv(variable);
    return value && *value;
}

// Qt would end the process on a platform it cannot start; a missing display is caught
// first, with a line that names what is missing.
void requireDisplay() {
    const std::string platform = isSet("QT_QPA_PLATFORM") ? std::getenv("QT_QPA_PLATFORM") : "";
    const bool wantsX = platform.empty() || platform.find("xcb") != std::string::npos;
    const bool wantsWayland = platform.empty() || platform.find("wayland") != std::string::npos;
    if (!wantsX && !wantsWayland) return;
    if ((wantsX && isSet("DISPLAY")) || (wantsWayland && isSet("WAYLAND_DISPLAY"))) return;
    throw CommandError(ExitUsage, "gui needs a display: " +
                                      std::string(platform.empty() ? "neither DISPLAY nor WAYLAND_DISPLAY is set"
                                                                   : "QT_QPA_PLATFORM is " + platform + " but its display variable is not set"));
}

// What Qt says while its platform starts; shown only when the start succeeds, else the
// first line names the reason of the command's own error.
std::vector<std::pair<QtMsgType, QString>> startMessages;
QtMessageHandler standardHandler = nullptr;

void holdStartMessage(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type != QtFatalMsg) {
        startMessages.emplace_back(type, message);
        return;
    }
    const QString reason = startMessages.empty() ? message : startMessages.front().second;
    const char* display = isSet("DISPLAY") ? std::getenv("DISPLAY") : std::getenv("WAYLAND_DISPLAY");
    std::fprintf(stderr, "ostrin-flow: gui: the display %s cannot be opened (%s)\n", display ? display : "",
                 qPrintable(reason.section(QLatin1Char('\n'), 0, 0)));
    std::_Exit(ExitUsage);
}

std::unique_ptr<QApplication> startQt() {
    static int argc = 1;
    static char name[] = "ostrin-flow";
    static char* argv[] = {name, nullptr};
    standardHandler = qInstallMessageHandler(holdStartMessage);
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(standardHandler);
    for (const auto& [type, message] : startMessages) qt_message_output(type, QMessageLogContext(), message);
    startMessages.clear();
    // The desktop's window list finds the menu entry and its icon.
    QGuiApplication::setDesktopFileName(QStringLiteral("ostrin-flow"));
    QtIcons::useFallbackTheme();
    return application;
}

std::string shownPpdPath(const GlobalOptions& options) {
    if (options.ppd) return *options.ppd;
    std::shared_ptr<Bundle> bundle = BSPrincipalBundle();
    return bundle ? bundle->pathForResource("OstrinFlow", "ppd") : "";
}

// Test runs under a virtual display close the window as Cancel does once it is on screen.
bool closesOnceShown(PanelWindow& window) {
    auto* poll = new QTimer(&window);
    bool shown = false;
    int polls = 0;
    QObject::connect(poll, &QTimer::timeout, &window, [&] {
        shown = window.windowHandle() && window.windowHandle()->isExposed();
        if (shown || ++polls > 500) window.reject();
    });
    poll->start(20);
    window.exec();
    return shown;
}

}  // namespace

int guiCommand(const GlobalOptions& options, ArgumentList& arguments) {
    options.formatAmong({"text"});
    arguments.positionals(0, 0);
    PanelSession session(options);
    requireDisplay();
    const std::unique_ptr<QApplication> application = startQt();
    session.panel().restoreValuesAndReturnError();
    PanelWindow window(session.panel(), session.host(), options.queue, shownPpdPath(options));
    if (isSet("OSTRIN_GUI_QUIT_AFTER_SHOWN")) {
        if (!closesOnceShown(window)) throw CommandError(ExitUsage, "gui: the window was never shown on the display");
        return ExitSuccess;
    }
    window.exec();
    if (window.printedJobId()) std::printf("%d\n", *window.printedJobId());
    return ExitSuccess;
}

}  // namespace OstrinFlowCommand
