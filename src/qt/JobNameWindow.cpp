#include "qt/JobNameWindow.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include "favorites/JobNameWinController.h"
#include "qt/QtTitledControl.h"
#include "qt/RadioGroupModelWidget.h"
#include "qt/TextFieldModelEdit.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// Wide enough for a long job name to be read without scrolling.
constexpr int minimumFieldWidth = 320;

}  // namespace

JobNameWindow::JobNameWindow(JobNameWinController& controller, QWidget* parent)
    : ModalDialogView(controller, parent), _controller(controller) {
    _controller.loadWindow();
    _radio = new RadioGroupModelWidget(_controller.jobNameRadio(), this);
    _label = new QLabel(this);
    _field = new TextFieldModelEdit(_controller.jobNameField(), this);
    _field->setMinimumWidth(minimumFieldWidth);
    _label->setBuddy(_field);
    addTextField(_field);
    _buttons = new QDialogButtonBox(this);
    _ok = _buttons->addButton(QString(), QDialogButtonBox::AcceptRole);
    _cancel = _buttons->addButton(QString(), QDialogButtonBox::RejectRole);
    _ok->setDefault(true);

    // The name belongs to the second choice: it sits under it, indented like its text.
    auto* nameRow = new QHBoxLayout;
    nameRow->addSpacing(style()->pixelMetric(QStyle::PM_IndicatorWidth) +
                        style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing));
    nameRow->addWidget(_label);
    nameRow->addWidget(_field, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(_radio);
    layout->addLayout(nameRow);
    layout->addSpacing(style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing));
    layout->addStretch(1);
    layout->addWidget(_buttons);
    layout->setSizeConstraint(QLayout::SetMinimumSize);

    connect(_radio, &RadioGroupModelWidget::rowSelected, this, [this] {
        _controller.selectRatio();
        refresh();
    });
    connect(_ok, &QPushButton::clicked, this, [this] {
        _controller.clickedOK();
        refresh();
    });
    connect(_cancel, &QPushButton::clicked, this, &JobNameWindow::reject);
    refresh();
}

void JobNameWindow::refreshControls() {
    _radio->refresh();
    QtTitledControl::show(_controller.jobNameLabel(), *_label);
    QtTitledControl::show(_controller.okButton(), *_ok);
    QtTitledControl::show(_controller.cancelButton(), *_cancel);
}

void JobNameWindow::cancelByUser() { _controller.clickedCancel(); }

}  // namespace ComQuorvantVelmar_Plugin
