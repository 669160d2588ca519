#include "qt/SaveFavoriteWindow.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "favorites/SaveFavoriteWindowController.h"
#include "qt/QtTitledControl.h"
#include "qt/TextFieldModelEdit.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// A comment of a few words fits without scrolling.
constexpr int minimumFieldWidth = 300;

}  // namespace

SaveFavoriteWindow::SaveFavoriteWindow(SaveFavoriteWindowController& controller, QWidget* parent)
    : ModalDialogView(controller, parent), _controller(controller) {
    _controller.loadWindow();
    _nameLabel = new QLabel(this);
    _commentLabel = new QLabel(this);
    _nameField = new TextFieldModelEdit(_controller.nameField(), this);
    _commentField = new TextFieldModelEdit(_controller.commentField(), this);
    _nameField->setMinimumWidth(minimumFieldWidth);
    _nameLabel->setBuddy(_nameField);
    _commentLabel->setBuddy(_commentField);
    addTextField(_nameField);
    addTextField(_commentField);
    auto* buttons = new QDialogButtonBox(this);
    _save = buttons->addButton(QString(), QDialogButtonBox::AcceptRole);
    _cancel = buttons->addButton(QString(), QDialogButtonBox::RejectRole);
    _save->setDefault(true);

    auto* form = new QFormLayout;
    form->addRow(_nameLabel, _nameField);
    form->addRow(_commentLabel, _commentField);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addStretch(1);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetMinimumSize);

    connect(_save, &QPushButton::clicked, this, [this] {
        _controller.clickedOK();
        refresh();
    });
    connect(_cancel, &QPushButton::clicked, this, &SaveFavoriteWindow::reject);
    refresh();
}

void SaveFavoriteWindow::refreshControls() {
    QtTitledControl::show(_controller.nameLabel(), *_nameLabel);
    QtTitledControl::show(_controller.commentLabel(), *_commentLabel);
    QtTitledControl::show(_controller.saveButton(), *_save);
    QtTitledControl::show(_controller.cancelButton(), *_cancel);
}

void SaveFavoriteWindow::cancelByUser() { _controller.clickedCancel(); }

}  // namespace ComQuorvantVelmar_Plugin
