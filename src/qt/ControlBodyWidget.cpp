#include "qt/ControlBodyWidget.h"

#include <QPixmap>

#include "qt/CheckBoxControlWidget.h"
#include "qt/ControlParts_p.h"
#include "qt/DatePickerControlWidget.h"
#include "qt/PopupControlWidget.h"
#include "qt/QtIcons.h"
#include "qt/RadioGroupControlWidget.h"
#include "qt/SliderControlWidget.h"
#include "qt/TextFieldControlWidget.h"

namespace ComQuorvantVelmar_Plugin {

ControlBodyWidget::ControlBodyWidget(VORNUI& control, QWidget* parent) : QWidget(parent), _control(control) {}

ControlBodyWidget* ControlBodyWidget::create(VORNUI& control, QWidget* parent) {
    switch (control.controlType()) {
        case VORNUI::Type::CheckBox: return new CheckBoxControlWidget(control, parent);
        case VORNUI::Type::PopupButton: return new PopupControlWidget(control, parent);
        case VORNUI::Type::RadioButton:
        case VORNUI::Type::HRadioButton: return new RadioGroupControlWidget(control, parent);
        case VORNUI::Type::Slider: return new SliderControlWidget(control, parent);
        case VORNUI::Type::DatePicker: return new DatePickerControlWidget(control, parent);
        case VORNUI::Type::TextFieldNumber:
        case VORNUI::Type::TextFieldText:
        case VORNUI::Type::SecureTextFieldText: return new TextFieldControlWidget(control, parent);
        case VORNUI::Type::Unknown: break;
    }
    return nullptr;
}

QLabel* ControlParts::iconLabel(const std::string& path, QWidget* parent) {
    if (path.empty()) return nullptr;
    auto* label = new QLabel(parent);
    label->setFixedSize(iconSize, iconSize);
    label->setAlignment(Qt::AlignCenter);
    showIcon(label, path);
    return label;
}

void ControlParts::showIcon(QLabel* label, const std::string& path) {
    if (!label) return;
    const QPixmap pixmap = QtIcons::pixmapFromResource(path, iconSize);
    label->setPixmap(pixmap);
    label->setVisible(!pixmap.isNull());
}

void ControlParts::addLeadingParts(QHBoxLayout* layout, const VORNUI& control, QWidget* row) {
    addPart(layout, iconLabel(control.icons().icon, row));
    addPart(layout, headLabel(control.texts().headText, control.texts().headTextWidth, row));
}

}  // namespace ComQuorvantVelmar_Plugin
