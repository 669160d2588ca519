#include "pde/PdeModalWindow.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

PdeModalWindow::Runner& currentRunner() {
    static PdeModalWindow::Runner runner;
    return runner;
}

}  // namespace

PdeModalWindow::~PdeModalWindow() = default;

void PdeModalWindow::setRunner(Runner runner) { currentRunner() = std::move(runner); }

int PdeModalWindow::runModal() {
    _endCode = 0;
    _running = true;
    _visible = true;
    // A copy: the window may replace the runner while it runs.
    if (Runner runner = currentRunner()) runner(*this);
    _running = false;
    return _endCode;
}

void PdeModalWindow::stopModalWithCode(int code) {
    if (!_running) return;
    _endCode = code;
    _running = false;
}

}  // namespace ComQuorvantVelmar_Plugin
