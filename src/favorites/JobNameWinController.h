#pragma once

#include <string>

#include "core/ModalWindow.h"
#include "core/RadioGroupModel.h"
#include "core/TextFieldModel.h"
#include "core/TitledControl.h"

namespace ComQuorvantVelmar_Plugin {

/// The job-name dialog: the printer names the job itself ("Auto") or takes the name the
/// user types ("Input"). It holds every control's state and decision; the view layer only
/// shows the controls and forwards clicks and typing.
class JobNameWinController : public ModalWindow {
public:
    /// The longest job name, in characters.
    static constexpr std::size_t maxJobNameLength = 255;

    /// The one dialog of the process.
    static JobNameWinController& sharedInstance();
    /// A dialog that loads its window on first use.
    JobNameWinController() = default;

    /// Titles, represented values, the job name's escaping formatter and placeholder, and
    /// "Auto" selected with an empty name; done once, on first use.
    void loadWindow();
    /// Selects the row standing for specificJobName ("Auto" when none does), shows jobName
    /// in the field and applies the row rule.
    void restoreValues(const std::string& specificJobName, const std::string& jobName);
    /// The row rule: the field and its label are enabled exactly when a row other than the
    /// first ("Auto") is selected.
    void selectRatio();
    /// OK: ends with 1 for "Auto", or for a typed name of 1 to 255 characters; otherwise
    /// shows the length message and stays open.
    void clickedOK();
    /// Cancel: ends with 0.
    void clickedCancel();
    /// Shows the dialog until OK or cancel; 1 for OK, 0 otherwise.
    int showAsModalDialog();

    /// The represented value of the selected row; "Auto" when nothing is selected.
    std::string specificJobName() const;
    /// The field's text.
    std::string jobName() const;
    /// The field's value: the text escaped for the printer.
    std::string escapedJobName() const;

    RadioGroupModel& jobNameRadio() { return _jobNameRadio; }
    TextFieldModel& jobNameField() { return _jobNameField; }
    const TitledControl& jobNameLabel() const { return _jobNameLabel; }
    const TitledControl& okButton() const { return _okButton; }
    const TitledControl& cancelButton() const { return _cancelButton; }

private:
    void windowDidLoad();

    RadioGroupModel _jobNameRadio;
    TextFieldModel _jobNameField;
    TitledControl _jobNameLabel;
    TitledControl _okButton;
    TitledControl _cancelButton;
    bool _isWindowLoaded = false;
};

/// Shows the job-name dialog with the given values; on OK replaces the three texts (the
/// escaped one only when given) and answers true, otherwise leaves them and answers false.
bool ShowJobNameModalDialog(std::string& specificJobName, std::string* escapedJobName, std::string& jobName);

}  // namespace ComQuorvantVelmar_Plugin
