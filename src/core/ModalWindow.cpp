#include "core/ModalWindow.h"

#include "core/Diagnostics.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

class ShowNothingRunner : public ModalWindowRunner {
public:
    void runModal(ModalWindow& window) override {
        Diagnostics::log("### modal window cancelled without showing: " + window.windowTitle());
    }
};

std::shared_ptr<ModalWindowRunner>& currentRunner() {
    static std::shared_ptr<ModalWindowRunner> runner = std::make_shared<ShowNothingRunner>();
    return runner;
}

}  // namespace

int ModalWindow::runModal() {
    _running = true;
    _endCode = 0;
    ModalWindows::runner().runModal(*this);
    _running = false;
    return _endCode;
}

void ModalWindow::stopModalWithCode(int code) {
    if (!_running) return;
    _running = false;
    _endCode = code;
    if (_stopObserver) _stopObserver(code);
}

// The observer may replace itself while it runs.
void ModalWindow::orderOut() {
    if (auto observer = _orderOutObserver) observer();
}

void ModalWindows::setRunner(std::shared_ptr<ModalWindowRunner> runner) {
    currentRunner() = runner ? std::move(runner) : std::make_shared<ShowNothingRunner>();
}

ModalWindowRunner& ModalWindows::runner() { return *currentRunner(); }

void ScriptedModalWindowRunner::runModal(ModalWindow& window) {
    ++_runCount;
    if (_scripts.empty()) return;
    Script script = std::move(_scripts.front());
    _scripts.pop_front();
    script(window);
}

}  // namespace ComQuorvantVelmar_Plugin
