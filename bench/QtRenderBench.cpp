// The Qt rendering of every pane's view tree to its first paint on the offscreen platform,
// beside an empty window's first paint (the toolkit's own fixed cost). The panel window
// and the detailed settings window are not measured here; the panes are what they show.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPixmap>
#include <QWidget>

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "DialogSession.h"
#include "panes/PanePlugInMgr.h"
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

// One window per pane, as the detailed settings window shows one pane at a time.
std::size_t renderEveryPane(PanePlugInMgr& manager) {
    std::size_t panes = 0;
    for (const auto& [name, entry] : *manager.plugInTable()) {
        ViewTreeWidget tree(manager.panelViewOfBundleName(name));
        paintOnce(tree);
        ++panes;
    }
    return panes;
}

void EveryPaneToFirstPaint(benchmark::State& state) {
    OstrinBench::AnswerEveryQuestion answers;
    auto host = OstrinBench::hostWithSavedTicket();
    OstrinBench::DialogSession dialog(*host);
    dialog.restoreFromTicket();
    std::size_t panes = 0;
    for (auto _ : state) panes = renderEveryPane(dialog.manager());
    state.counters["panes"] = static_cast<double>(panes);
}
BENCHMARK(EveryPaneToFirstPaint)->Unit(benchmark::kMillisecond);

// From nothing: the engine opens the dialog, then every pane is rendered and painted.
void OpenAndEveryPaneToFirstPaint(benchmark::State& state) {
    OstrinBench::AnswerEveryQuestion answers;
    auto host = OstrinBench::hostWithSavedTicket();
    for (auto _ : state) {
        OstrinBench::DialogSession dialog(*host);
        dialog.restoreFromTicket();
        renderEveryPane(dialog.manager());
    }
}
BENCHMARK(OpenAndEveryPaneToFirstPaint)->Unit(benchmark::kMillisecond);

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
