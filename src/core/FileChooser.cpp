#include "core/FileChooser.h"

#include "core/Diagnostics.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

class CancelAllPresenter : public FileChooserPresenter {
public:
    std::optional<std::string> runModal(const FileChooserRequest& request) override {
        Diagnostics::log("### file request cancelled without asking: " + request.directory);
        return std::nullopt;
    }
};

std::shared_ptr<FileChooserPresenter>& currentPresenter() {
    static std::shared_ptr<FileChooserPresenter> presenter = std::make_shared<CancelAllPresenter>();
    return presenter;
}

}  // namespace

void FileChoosers::setPresenter(std::shared_ptr<FileChooserPresenter> presenter) {
    currentPresenter() = presenter ? std::move(presenter) : std::make_shared<CancelAllPresenter>();
}

std::optional<std::string> FileChoosers::runModal(const FileChooserRequest& request) {
    return currentPresenter()->runModal(request);
}

std::optional<std::string> ScriptedFileChooserPresenter::runModal(const FileChooserRequest& request) {
    _asked.push_back(request);
    if (_answers.empty()) return std::nullopt;
    auto answer = std::move(_answers.front());
    _answers.pop_front();
    return answer;
}

}  // namespace ComQuorvantVelmar_Plugin
