#pragma once

#include <QDialog>

#include <vector>

namespace ComQuorvantVelmar_Plugin {

class ModalWindow;
class TextFieldModelEdit;

/// The Qt window of one of the engine's modal dialogs. It renders the dialog's controller
/// and hands on what the user does; the controller ends the run (QtModalWindowRunner
/// closes the window then). Escape and the window's close button are the controller's
/// cancel, so closing never bypasses it. The engine's first responder follows the keyboard
/// focus inside the window, and the focus goes where the controller puts the first
/// responder (after a refused OK, to the field at fault). With a parent the window is a sheet of that window
/// (window-modal); without one it blocks the whole application.
class ModalDialogView : public QDialog {
    Q_OBJECT
public:
    ModalDialogView(ModalWindow& window, QWidget* parent);
    ~ModalDialogView() override;

    ModalWindow& modalWindow() const { return _window; }
    /// Shows the controller's state: the window title and every control.
    void refresh();

protected:
    /// Shows the state of the dialog's own controls.
    virtual void refreshControls() = 0;
    /// The controller's cancel action.
    virtual void cancelByUser() = 0;
    /// Makes edit show its field whenever the dialog refreshes; the field becomes the
    /// window's first responder while the edit has the keyboard focus.
    void addTextField(TextFieldModelEdit* edit);
    void reject() override;
    void showEvent(QShowEvent* event) override;

private:
    void showFirstResponder();
    void focusMoved(QWidget* now);

    ModalWindow& _window;
    std::vector<TextFieldModelEdit*> _textFields;
    QMetaObject::Connection _focusConnection;
};

}  // namespace ComQuorvantVelmar_Plugin
