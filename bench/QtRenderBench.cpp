// The Qt rendering of the panel's view tree and every pane's view tree to their first
// paint on the offscreen platform, beside an empty window's first paint (the toolkit's own
// fixed cost). The panel and the detailed settings window have no Qt windows of their own
// yet; the views measured here are what those windows will show.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPixmap>
#include <QWidget>

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "DialogSession.h"
#include "panes/PanePlugInMgr.h"
#include "pde/TarnPDEByCocoa.h"
#include "qt/ViewTreeWidget.h"

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

// The panel in one window, then one window per pane, as the detailed settings window
// shows one pane at a time.
std::size_t renderEveryPane(OstrinBench::DialogSession& dialog) {
    ViewTreeWidget panel(dialog.panel().panelView());
    paintOnce(panel);
    PanePlugInMgr& manager = dialog.manager();
    std::size_t panes = 0;
    for (const auto& [name, entry] : *manager.plugInTable()) {
        ViewTreeWidget tree(manager.panelViewOfBundleName(name));
        paintOnce(tree);
        ++panes;
    }
    return panes;
}

void PanelAndEveryPaneToFirstPaint(benchmark::State& state) {
    OstrinBench::AnswerEveryQuestion answers;
    auto host = OstrinBench::hostWithSavedTicket();
    OstrinBench::DialogSession dialog(*host);
    std::size_t panes = 0;
    for (auto _ : state) panes = renderEveryPane(dialog);
    state.counters["panes"] = static_cast<double>(panes);
}
BENCHMARK(PanelAndEveryPaneToFirstPaint)->Unit(benchmark::kMillisecond);

// From nothing: the engine opens the dialog, then every pane is rendered and painted.
void OpenPanelAndEveryPaneToFirstPaint(benchmark::State& state) {
    OstrinBench::AnswerEveryQuestion answers;
    auto host = OstrinBench::hostWithSavedTicket();
    for (auto _ : state) {
        OstrinBench::DialogSession dialog(*host);
        renderEveryPane(dialog);
    }
}
BENCHMARK(OpenPanelAndEveryPaneToFirstPaint)->Unit(benchmark::kMillisecond);

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
