#include "qt/PopupControlWidget.h"

#include <QComboBox>
#include <QStandardItemModel>

#include "qt/ControlParts_p.h"
#include "qt/QtIcons.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr int minimumPopupWidth = 180;

}  // namespace

PopupControlWidget::PopupControlWidget(VORNUI& control, QWidget* parent) : ControlBodyWidget(control, parent) {
    QHBoxLayout* layout = ControlParts::rowLayout(this);
    ControlParts::addLeadingParts(layout, control, this);
    _comboBox = new QComboBox(this);
    _comboBox->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    _comboBox->setMinimumWidth(minimumPopupWidth);
    _comboBox->setIconSize(QSize(ControlParts::iconSize - 4, ControlParts::iconSize - 4));
    layout->addWidget(_comboBox);
    ControlParts::addPart(layout, ControlParts::label(control.texts().descText, this));
    layout->addStretch();
    // activated comes from the user only; selections the program makes arrive as Value.
    connect(_comboBox, &QComboBox::activated, this, [this](int index) {
        this->control().selectItemAtIndex(index);
        this->control().popupButtonAction();
    });
}

void PopupControlWidget::showChange(VORNUIChange change) {
    if (change == VORNUIChange::Built || change == VORNUIChange::Items) showItems();
    if (change != VORNUIChange::Icon) showSelection();
}

// Separators are items of their own in both lists, so indexes match one to one.
void PopupControlWidget::showItems() {
    const QSignalBlocker blocker(_comboBox);
    _comboBox->clear();
    auto* model = qobject_cast<QStandardItemModel*>(_comboBox->model());
    for (const VORNUI::MenuItem& item : control().popupItems()) {
        const int index = _comboBox->count();
        if (item.isSeparator) {
            _comboBox->insertSeparator(index);
            continue;
        }
        const QPixmap icon = QtIcons::pixmapFromResource(item.iconPath, ControlParts::iconSize);
        _comboBox->addItem(icon.isNull() ? QIcon() : QIcon(icon), ControlParts::text(item.title),
                           ControlParts::text(item.choice));
        if (model) model->item(index)->setEnabled(item.enabled);
    }
}

void PopupControlWidget::showSelection() {
    const QSignalBlocker blocker(_comboBox);
    _comboBox->setCurrentIndex(control().selectedItemIndex());
}

}  // namespace ComQuorvantVelmar_Plugin
