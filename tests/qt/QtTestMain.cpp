#include <gtest/gtest.h>

#include <QApplication>

#include <cstdio>
#include <cstdlib>

#include "qt/QtIcons.h"

namespace {

QtMessageHandler standardHandler = nullptr;

// The offscreen platform warns of every window it cannot size for a window manager, and a
// test run has no session with a runtime folder.
void quietOffscreenWarnings(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (message.contains(QLatin1String("propagateSizeHints")) || message.contains(QLatin1String("XDG_RUNTIME_DIR")))
        return;
    if (standardHandler)
        standardHandler(type, context, message);
    else
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
}

}  // namespace

// Widgets need one QApplication for the whole run. The offscreen platform needs no display;
// Fusion draws the same everywhere, so pictures and sizes do not depend on the desktop.
int main(int argc, char** argv) {
    ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
    standardHandler = qInstallMessageHandler(quietOffscreenWarnings);
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setApplicationDisplayName(QStringLiteral("Ostrin Flow"));
    ComQuorvantVelmar_Plugin::QtIcons::useFallbackTheme();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
