#pragma once

#include "qt/ModalDialogView.h"

class QDialogButtonBox;
class QLabel;
class QPushButton;

namespace ComQuorvantVelmar_Plugin {

class SaveFavoriteWindowController;
class TextFieldModelEdit;

/// The save-favorite dialog's window: the name and comment fields with their labels, and
/// Save and Cancel in the platform's order. The controller checks both texts on Save.
class SaveFavoriteWindow : public ModalDialogView {
    Q_OBJECT
public:
    /// The window of controller (loaded now if it was not), which must outlive it.
    explicit SaveFavoriteWindow(SaveFavoriteWindowController& controller, QWidget* parent = nullptr);

    TextFieldModelEdit* nameField() const { return _nameField; }
    TextFieldModelEdit* commentField() const { return _commentField; }
    QLabel* nameLabel() const { return _nameLabel; }
    QLabel* commentLabel() const { return _commentLabel; }
    QPushButton* saveButton() const { return _save; }
    QPushButton* cancelButton() const { return _cancel; }

protected:
    void refreshControls() override;
    void cancelByUser() override;

private:
    SaveFavoriteWindowController& _controller;
    QLabel* _nameLabel;
    QLabel* _commentLabel;
    TextFieldModelEdit* _nameField;
    TextFieldModelEdit* _commentField;
    QPushButton* _save;
    QPushButton* _cancel;
};

}  // namespace ComQuorvantVelmar_Plugin
