#include "qt/ModalDialogView.h"

#include <QApplication>

#include "core/ModalWindow.h"
#include "core/TextFieldModel.h"
#include "qt/TextFieldModelEdit.h"

namespace ComQuorvantVelmar_Plugin {

ModalDialogView::ModalDialogView(ModalWindow& window, QWidget* parent) : QDialog(parent), _window(window) {
    setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);
    setSizeGripEnabled(false);
    _focusConnection =
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { focusMoved(now); });
}

// Destroying the window's children moves the focus once more, after this part of the
// window is gone; Qt would only drop the connection later, with the QObject.
ModalDialogView::~ModalDialogView() { disconnect(_focusConnection); }

void ModalDialogView::refresh() {
    setWindowTitle(QString::fromStdString(_window.windowTitle()));
    for (TextFieldModelEdit* edit : _textFields) edit->refresh();
    refreshControls();
    showFirstResponder();
}

void ModalDialogView::addTextField(TextFieldModelEdit* edit) { _textFields.push_back(edit); }

// A list or a button that takes the focus is the first responder too, one the engine does
// not know: no field then. A message over the window leaves it as it is.
void ModalDialogView::focusMoved(QWidget* now) {
    if (!now || now->window() != this) return;
    const TextFieldModel* field = nullptr;
    for (TextFieldModelEdit* edit : _textFields)
        if (edit == now) field = &edit->field();
    _window.makeFirstResponder(field);
}

// The controller decides whether cancelling ends the run; its stop closes the window.
void ModalDialogView::reject() {
    cancelByUser();
    refresh();
}

void ModalDialogView::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    showFirstResponder();
}

void ModalDialogView::showFirstResponder() {
    for (TextFieldModelEdit* edit : _textFields) {
        if (&edit->field() != _window.firstResponder() || edit->hasFocus()) continue;
        edit->setFocus(Qt::OtherFocusReason);
        edit->selectAll();
    }
}

}  // namespace ComQuorvantVelmar_Plugin
