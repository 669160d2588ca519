#include "qt/RadioGroupControlWidget.h"

#include <QButtonGroup>
#include <QRadioButton>
#include <QVBoxLayout>

#include "qt/ControlParts_p.h"
#include "qt/QtIcons.h"

namespace ComQuorvantVelmar_Plugin {

RadioGroupControlWidget::RadioGroupControlWidget(VORNUI& control, QWidget* parent) : ControlBodyWidget(control, parent) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    _group = new QButtonGroup(this);
    connect(_group, &QButtonGroup::idClicked, this, [this](int index) {
        this->control().selectCellAtIndex(index);
        this->control().radioButtonAction();
    });
}

void RadioGroupControlWidget::showChange(VORNUIChange change) {
    if (change == VORNUIChange::Built || change == VORNUIChange::Items) buildCells();
    if (change != VORNUIChange::Icon) showCells();
}

// The cells may be rebuilt from inside a click on one of them, so the old ones leave later.
void RadioGroupControlWidget::buildCells() {
    for (QRadioButton* button : _buttons) _group->removeButton(button);
    if (_cells) {
        _cells->hide();
        _cells->deleteLater();
    }
    _buttons.clear();
    _cells = new QWidget(this);
    QBoxLayout* cellsLayout = nullptr;
    const bool horizontal = control().isHorizontalRadioGroup();
    if (horizontal)
        cellsLayout = ControlParts::rowLayout(_cells);
    else
        cellsLayout = new QVBoxLayout(_cells);
    cellsLayout->setContentsMargins(0, 0, 0, 0);
    cellsLayout->setSpacing(horizontal ? ControlParts::partSpacing : 0);
    const auto& cells = control().radioCells();
    for (std::size_t index = 0; index < cells.size(); ++index) {
        auto* button = new QRadioButton(ControlParts::text(cells[index].title), _cells);
        const QPixmap icon = QtIcons::pixmapFromResource(cells[index].iconPath, ControlParts::iconSize);
        if (!icon.isNull()) button->setIcon(QIcon(icon));
        if (!horizontal) button->setFixedHeight(ControlParts::radioCellHeight);
        _group->addButton(button, static_cast<int>(index));
        // A button as wide as its title: a click beside the title selects nothing.
        cellsLayout->addWidget(button, horizontal ? 1 : 0, Qt::AlignLeft);
        _buttons.push_back(button);
    }
    layout()->addWidget(_cells);
    _cells->show();
}

// An exclusive group cannot show all cells off, which a control without a value does.
void RadioGroupControlWidget::showCells() {
    const auto& cells = control().radioCells();
    _group->setExclusive(false);
    for (std::size_t index = 0; index < cells.size() && index < _buttons.size(); ++index) {
        _buttons[index]->setChecked(cells[index].on);
        _buttons[index]->setEnabled(cells[index].enabled);
    }
    _group->setExclusive(true);
}

}  // namespace ComQuorvantVelmar_Plugin
