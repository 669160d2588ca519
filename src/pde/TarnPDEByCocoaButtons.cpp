#include "favorites/JobNameWinController.h"
#include "panes/PanePlugInMgr.h"
#include "panes/PaneValueText_p.h"
#include "pde/DetailedSettingsWinController.h"
#include "pde/PanelButton.h"
#include "pde/PanelLabel.h"
#include "pde/PdeAutomaticPaperTraySelection.h"
#include "pde/TarnPDEByCocoa.h"

namespace ComQuorvantVelmar_Plugin {
void TarnPDEByCocoa::_updatePaneFromModel() {
    _restoreValuesToPane(_printOption);
    _updateJobNameUI();
}

void TarnPDEByCocoa::_updateJobNameUI() {
    const bool typed = _specificJobNameValue != "Auto" && !_jobNameValue.empty();
    _jobName->setText(typed ? _jobNameValue : _localized("Auto"));
}

// The detailed settings work on a fresh copy of the job's settings: the panel saves and
// reloads first, so that the window starts from exactly what the job would print with.
void TarnPDEByCocoa::clickedShowDetailedSettingsButton() {
    configuringNotification(false);
    saveValuesAndReturnError();
    _printOption_old = _printOption;
    restoreValuesAndReturnError();
    _gatherValuesFromPane(_printOption);
    _panePlugInMgr->restorePrintOptionValues(&_printOption);
    sendCommand("DeviceLinkFile");
    const PlistDictionary snapshot = _printOption;
    _panePlugInMgr->willShowAllBundle();
    _detailedSettingsWinController->awakeFromNib();
    if (_detailedSettingsWinController->showAsModalDialog(_printOption) == 1) {
        _restoreValuesToPane(_printOption);
        setCollate(PaneValueText::textOfEntry(_printOption, "Collate") == "True");
        _checkDifferenceFromCurrentFavorite(false);
        saveValuesAndReturnError_Fast();
    } else {
        // The panel shows the defaults here while the model goes back to the snapshot; the
        // next restore from the print settings brings the two together again.
        _restoreValuesToPane(_defaultPrintOption);
        _printOption = snapshot;
        _panePlugInMgr->restorePrintOptionValues(&_printOption);
    }
    configuringNotification(true);
}

void TarnPDEByCocoa::clickedRevertToDefaultSettings() {
    const std::string defaultTray = PaneValueText::textOfEntry(_defaultPrintOption, "OutputTray");
    const auto changed = _panePlugInMgr->setStringValueWithRestoreConfliction(defaultTray, "OutputTray");
    _restoreValuesToPane(_defaultPrintOption);
    _panePlugInMgr->setStringValue("None", "DuplexMode");
    setCollate(true);
    _gatherValuesFromPane(_printOption);
    for (const std::string& key : changed.value_or(std::vector<std::string>{}))
        if (auto value = _panePlugInMgr->getStringValueFromKey(key)) _printOption.set(key, *value);
    _checkDifferenceFromCurrentFavorite(true);
}

void TarnPDEByCocoa::clickedJobNameButton() {
    std::string specific = _specificJobNameValue;
    std::string escaped = _escapedJobNameValue;
    std::string jobName = _jobNameValue;
    if (ShowJobNameModalDialog(specific, &escaped, jobName)) setJobNameValues(specific, escaped, jobName);
}

void TarnPDEByCocoa::setJobNameValues(const std::string& specificJobName, const std::string& escapedJobName,
                                      const std::string& jobName) {
    _specificJobNameValue = specificJobName;
    _escapedJobNameValue = escapedJobName;
    _jobNameValue = jobName;
    _updateJobNameUI();
}

void TarnPDEByCocoa::clickedSelectPaperTraySelectionButton(const PanelButton& sender) {
    const auto& sheet = sender.tag() != 0 ? _BypassPaperTraySelection : _AutomaticPaperTraySelection;
    if (sheet) sheet->modalWindow([this] { automaticPapaerTraySelectionDidEnd(); });
}

void TarnPDEByCocoa::automaticPapaerTraySelectionDidEnd() {
    _gatherValuesFromPane(_printOption);
    _checkDifferenceFromCurrentFavorite(false);
}

}  // namespace ComQuorvantVelmar_Plugin
