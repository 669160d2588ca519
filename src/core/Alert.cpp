#include "core/Alert.h"

#include "core/Diagnostics.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

class DeclineAllPresenter : public AlertPresenter {
public:
    int runModal(const AlertRequest& request) override {
        Diagnostics::log("### alert answered No without asking: " + request.messageText);
        return AlertSecondButtonReturn;
    }
};

std::shared_ptr<AlertPresenter>& currentPresenter() {
    static std::shared_ptr<AlertPresenter> presenter = std::make_shared<DeclineAllPresenter>();
    return presenter;
}

}  // namespace

void Alerts::setPresenter(std::shared_ptr<AlertPresenter> presenter) {
    currentPresenter() = presenter ? std::move(presenter) : std::make_shared<DeclineAllPresenter>();
}

int Alerts::runModal(const AlertRequest& request) { return currentPresenter()->runModal(request); }

int ScriptedAlertPresenter::runModal(const AlertRequest& request) {
    _asked.push_back(request);
    if (_answers.empty()) return _fallback;
    int answer = _answers.front();
    _answers.pop_front();
    return answer;
}

}  // namespace ComQuorvantVelmar_Plugin
