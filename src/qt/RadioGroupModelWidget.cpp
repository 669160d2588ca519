#include "qt/RadioGroupModelWidget.h"

#include <QButtonGroup>
#include <QRadioButton>
#include <QVBoxLayout>

#include "core/RadioGroupModel.h"

namespace ComQuorvantVelmar_Plugin {

RadioGroupModelWidget::RadioGroupModelWidget(RadioGroupModel& group, QWidget* parent)
    : QWidget(parent), _group(group), _buttonGroup(new QButtonGroup(this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (std::int64_t row = 0; row < _group.numberOfRows(); ++row) {
        auto* button = new QRadioButton(this);
        _buttonGroup->addButton(button, static_cast<int>(row));
        // A button as wide as its title: a click beside the title selects nothing.
        layout->addWidget(button, 0, Qt::AlignLeft);
        _buttons.push_back(button);
    }
    connect(_buttonGroup, &QButtonGroup::idClicked, this, [this](int row) {
        _group.selectRow(row);
        emit rowSelected(row);
    });
    refresh();
}

// An exclusive group cannot show every button off, which a group without a selection does.
void RadioGroupModelWidget::refresh() {
    _buttonGroup->setExclusive(false);
    for (std::size_t row = 0; row < _buttons.size(); ++row) {
        const RadioGroupModel::Row* shown = _group.rowAtIndex(static_cast<std::int64_t>(row));
        _buttons[row]->setText(shown ? QString::fromStdString(shown->title) : QString());
        _buttons[row]->setChecked(static_cast<std::int64_t>(row) == _group.selectedRow());
    }
    _buttonGroup->setExclusive(true);
    setEnabled(_group.isEnabled());
}

}  // namespace ComQuorvantVelmar_Plugin
