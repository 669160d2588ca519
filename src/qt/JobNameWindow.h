#pragma once

#include "qt/ModalDialogView.h"

class QDialogButtonBox;
class QLabel;
class QPushButton;

namespace ComQuorvantVelmar_Plugin {

class JobNameWinController;
class RadioGroupModelWidget;
class TextFieldModelEdit;

/// The job-name dialog's window: the "Auto" and "Input" choices, the job name field under
/// them with its label, and OK and Cancel in the platform's order. The controller enables
/// the field and decides whether OK may end the dialog.
class JobNameWindow : public ModalDialogView {
    Q_OBJECT
public:
    /// The window of controller (loaded now if it was not), which must outlive it.
    explicit JobNameWindow(JobNameWinController& controller, QWidget* parent = nullptr);

    RadioGroupModelWidget* jobNameRadio() const { return _radio; }
    TextFieldModelEdit* jobNameField() const { return _field; }
    QLabel* jobNameLabel() const { return _label; }
    QPushButton* okButton() const { return _ok; }
    QPushButton* cancelButton() const { return _cancel; }

protected:
    void refreshControls() override;
    void cancelByUser() override;

private:
    JobNameWinController& _controller;
    RadioGroupModelWidget* _radio;
    QLabel* _label;
    TextFieldModelEdit* _field;
    QDialogButtonBox* _buttons;
    QPushButton* _ok;
    QPushButton* _cancel;
};

}  // namespace ComQuorvantVelmar_Plugin
