// The Qt panel ("Ostrin Flow" as a print dialog shows it) and the detailed settings
// window to their first paint on the offscreen platform, beside an empty window's first
// paint (the toolkit's own fixed cost).
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPixmap>
#include <QWidget>

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "DialogSession.h"
#include "pde/DetailedSettingsWinController.h"
#include "pde/TarnPDEByCocoa.h"
#include "qt/DetailedSettingsWindow.h"
#include "qt/PanelViews.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

// Shows window and paints it once into a picture, as the first expose does.
void paintOnce(QWidget& window) {
    window.show();
    QApplication::processEvents();
    benchmark::DoNotOptimize(window.grab());
}

void EmptyWindowToFirstPaint(benchmark::State& state) {
    for (auto _ : state) {
        QWidget window;
        window.resize(640, 480);
        paintOnce(window);
    }
}
BENCHMARK(EmptyWindowToFirstPaint)->Unit(benchmark::kMillisecond);

// The panel's widget, then the detailed settings window its button opens, each painted
// once; the window's controller is new, as on the first opening in a process.
void paintPanelAndDetailedSettings(TarnPDEByCocoa& panel) {
    std::unique_ptr<QWidget> panelWidget(PanelViews::createPanelWidget(panel, nullptr));
    paintOnce(*panelWidget);
    DetailedSettingsWinController controller;
    controller.awakeFromNib();
    DetailedSettingsWindow window(controller);
    paintOnce(window);
}

// The Qt part alone, over a dialog the engine has opened.
void PanelAndDetailedSettingsToFirstPaint(benchmark::State& state) {
    OstrinBench::AnswerEveryQuestion answers;
    auto host = OstrinBench::hostWithSavedTicket();
    OstrinBench::DialogSession dialog(*host);
    for (auto _ : state) paintPanelAndDetailedSettings(dialog.panel());
}
BENCHMARK(PanelAndDetailedSettingsToFirstPaint)->Unit(benchmark::kMillisecond);

// From nothing: the engine opens the dialog, then both windows are built and painted.
void OpenPanelAndDetailedSettingsToFirstPaint(benchmark::State& state) {
    OstrinBench::AnswerEveryQuestion answers;
    auto host = OstrinBench::hostWithSavedTicket();
    for (auto _ : state) {
        OstrinBench::DialogSession dialog(*host);
        paintPanelAndDetailedSettings(dialog.panel());
    }
}
BENCHMARK(OpenPanelAndDetailedSettingsToFirstPaint)->Unit(benchmark::kMillisecond);

// The offscreen platform warns of every window it cannot size for a window manager, and a
// benchmark run has no session with a runtime folder.
void quietOffscreenWarnings(QtMsgType, const QMessageLogContext&, const QString& message) {
    if (message.contains(QLatin1String("propagateSizeHints")) || message.contains(QLatin1String("XDG_RUNTIME_DIR")))
        return;
    std::fprintf(stderr, "%s\n", qPrintable(message));
}

}  // namespace

int main(int argc, char** argv) {
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    qInstallMessageHandler(quietOffscreenWarnings);
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
