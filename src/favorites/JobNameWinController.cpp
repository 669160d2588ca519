#include "favorites/JobNameWinController.h"

#include "core/FormatterAttachment.h"
#include "core/TextCharacters.h"
#include "favorites/MessageSheet_p.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr const char* automaticJobName = "Auto";
constexpr const char* typedJobName = "Input";

}  // namespace

JobNameWinController& JobNameWinController::sharedInstance() {
    static JobNameWinController controller;
    return controller;
}

void JobNameWinController::loadWindow() {
    if (_isWindowLoaded) return;
    _isWindowLoaded = true;
    windowDidLoad();
}

void JobNameWinController::windowDidLoad() {
    _jobNameRadio.addRow({localizedText(automaticJobName), automaticJobName, 0});
    _jobNameRadio.addRow({localizedText(typedJobName), typedJobName, 1});
    _jobNameLabel.setTitle(localizedText("Job name"));
    _okButton.setTitle(localizedText("OK"));
    _cancelButton.setTitle(localizedText("Cancel"));
    setWindowTitle(localizedText("Job name setting"));
    _jobNameField.setFormatter(attachMaxLengthFormatterWithEscape(maxJobNameLength));
    _jobNameField.setPlaceholderStringAndToolTip(localizedText("Placeholder Max chars"));
    _jobNameField.setTitle(_jobNameLabel.title());
    restoreValues(automaticJobName, "");
}

void JobNameWinController::restoreValues(const std::string& specificJobName, const std::string& jobName) {
    loadWindow();
    if (!_jobNameRadio.selectRowWithRepresentedObject(specificJobName)) _jobNameRadio.selectRow(0);
    _jobNameField.setStringValue(jobName);
    selectRatio();
}

void JobNameWinController::selectRatio() {
    const bool typed = _jobNameRadio.selectedRow() != 0;
    _jobNameField.setEnabled(typed);
    _jobNameLabel.setEnabled(typed);
}

void JobNameWinController::clickedOK() {
    const RadioGroupModel::Row* selected = _jobNameRadio.selectedCell();
    if (selected && selected->tag == 0) return stopModalWithCode(1);
    const std::size_t length = TextCharacters::characterLength(_jobNameField.stringValue());
    if (length >= 1 && length <= maxJobNameLength) return stopModalWithCode(1);
    // The key is spelled so in every catalogue.
    showMessageSheet(localizedText("1 to 255 byte alart"));
}

void JobNameWinController::clickedCancel() { stopModalWithCode(0); }

int JobNameWinController::showAsModalDialog() {
    loadWindow();
    return runModal();
}

std::string JobNameWinController::specificJobName() const {
    const RadioGroupModel::Row* selected = _jobNameRadio.selectedCell();
    return selected ? selected->representedObject : automaticJobName;
}

std::string JobNameWinController::jobName() const { return _jobNameField.stringValue(); }

std::string JobNameWinController::escapedJobName() const { return _jobNameField.objectValue(); }

bool ShowJobNameModalDialog(std::string& specificJobName, std::string* escapedJobName, std::string& jobName) {
    JobNameWinController& controller = JobNameWinController::sharedInstance();
    controller.restoreValues(specificJobName, jobName);
    if (controller.showAsModalDialog() != 1) return false;
    specificJobName = controller.specificJobName();
    if (escapedJobName) *escapedJobName = controller.escapedJobName();
    jobName = controller.jobName();
    return true;
}

}  // namespace ComQuorvantVelmar_Plugin
