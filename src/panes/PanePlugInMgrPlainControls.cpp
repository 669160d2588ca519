#include "core/MaxBytesFormatterWithEscape.h"
#include "core/MaxLengthFormatterWithEscape.h"
#include "core/TextScrambling.h"
#include "panes/PlainControlHelpers.h"
#include "panes/PaneValueText_p.h"
#include "panes/PanePlugInMgr.h"
#include "panes/PlainButton.h"
#include "panes/PlainRadioMatrix.h"
#include "panes/PlainSecureTextField.h"
#include "panes/PlainSlider.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

const PlistArray* optionKeywordsOf(const PlainControl& control) {
    const PlistValue* list = representedObjectForKey(control, "optionKeywords");
    return list ? list->array() : nullptr;
}

std::optional<PlistValue> valueOfPopUp(const PlainPopUpButton& popup) {
    const PlainPopUpButton::Item* item = popup.selectedItem();
    const PlistValue* keyword = item ? representedObjectOfMenuItemForKey(*item, "optionKeyword") : nullptr;
    if (!keyword) return std::nullopt;
    return *keyword;
}

// The slider runs from the last keyword at its left end to the first at its right end.
std::optional<PlistValue> valueOfSlider(const PlainSlider& slider) {
    const PlistArray* keywords = optionKeywordsOf(slider);
    if (!keywords) return std::nullopt;
    const long index = static_cast<long>(keywords->size()) - slider.intValue() - 1;
    if (index < 0 || index >= static_cast<long>(keywords->size())) return std::nullopt;
    return (*keywords)[static_cast<std::size_t>(index)];
}

std::optional<PlistValue> valueOfButton(const PlainButton& button) {
    const bool on = button.state() == PlainButton::StateOn;
    const PlistArray* keywords = optionKeywordsOf(button);
    if (!keywords) return PlistValue(on);
    if (keywords->size() < 2) return std::nullopt;
    return (*keywords)[on ? 1 : 0];
}

std::optional<PlistValue> valueOfMatrix(const PlainRadioMatrix& matrix) {
    const PlainRadioMatrix::Cell* cell = matrix.selectedCell();
    if (!cell || cell->representedObject.isNull()) return std::nullopt;
    return cell->representedObject;
}

void showInPopUp(PlainPopUpButton& popup, const PlistValue& value) {
    const std::string text = PaneValueText::textOfValue(value);
    for (int index = 0; index < static_cast<int>(popup.items().size()); ++index) {
        const PlistValue* keyword = representedObjectOfMenuItemForKey(*popup.itemAtIndex(index), "optionKeyword");
        if (!keyword || !keyword->string() || *keyword->string() != text) continue;
        popup.selectItemAtIndex(index);
        return;
    }
}

void showInSlider(PlainSlider& slider, const PlistValue& value) {
    const PlistArray* keywords = optionKeywordsOf(slider);
    if (!keywords) return;
    for (std::size_t index = 0; index < keywords->size(); ++index) {
        if (!((*keywords)[index] == value)) continue;
        slider.setDoubleValue(static_cast<double>(keywords->size() - index - 1));
        return;
    }
}

// Strings count as on only when they are exactly "True"; a check box never takes "true".
void showInButton(PlainButton& button, const PlistValue& value) {
    if (const PlistValue* list = representedObjectForKey(button, "optionKeywords")) {
        const PlistArray* keywords = list->array();
        bool on = false;
        for (std::size_t index = 0; keywords && keywords->size() > 1 && index < keywords->size(); ++index) {
            if (!((*keywords)[index] == value)) continue;
            on = index != 0;
            break;
        }
        button.setState(on ? PlainButton::StateOn : PlainButton::StateOff);
        return;
    }
    bool on = false;
    if (const std::string* text = value.string())
        on = *text == "True";
    else if (auto number = value.number())
        on = *number != 0;
    button.setState(on ? PlainButton::StateOn : PlainButton::StateOff);
}

void showInTextField(PlainTextField& field, const PlistValue& value) {
    if (value.string()) {
        const auto* formatter = field.formatter().get();
        const bool unescapes = dynamic_cast<const MaxBytesFormatterWithEscape*>(formatter) ||
                               dynamic_cast<const MaxLengthFormatterWithEscape*>(formatter);
        if (unescapes)
            field.setObjectValue(value);
        else
            field.setStringValue(*value.string());
        return;
    }
    if (value.isNumber()) field.setStringValue(PaneValueText::textOfValue(value));
}

// Every row takes its own first match, so with several matching rows the last one is
// selected, as a radio matrix does.
void showInMatrix(PlainRadioMatrix& matrix, const PlistValue& value) {
    for (std::size_t row = 0; row < matrix.numberOfRows(); ++row) {
        for (std::size_t column = 0; column < matrix.numberOfColumns(row); ++column) {
            if (!(matrix.cellAt(row, column)->representedObject == value)) continue;
            matrix.selectCellAt(row, column);
            break;
        }
    }
}

}  // namespace

// The kinds are tested in this order: a secure text field is also a text field.
std::optional<PlistValue> PanePlugInMgr::_getValueFromControl(const PlainControl* control) {
    if (!control) return std::nullopt;
    if (const auto* popup = dynamic_cast<const PlainPopUpButton*>(control)) return valueOfPopUp(*popup);
    if (const auto* slider = dynamic_cast<const PlainSlider*>(control)) return valueOfSlider(*slider);
    if (const auto* button = dynamic_cast<const PlainButton*>(control)) return valueOfButton(*button);
    if (const auto* secure = dynamic_cast<const PlainSecureTextField*>(control))
        return PlistValue(encryptString(secureTextFieldKey, secure->stringValue()));
    if (const auto* field = dynamic_cast<const PlainTextField*>(control)) {
        PlistValue value = field->objectValue();
        return value.string() ? value : PlistValue(field->stringValue());
    }
    if (const auto* matrix = dynamic_cast<const PlainRadioMatrix*>(control)) return valueOfMatrix(*matrix);
    return std::nullopt;
}

void PanePlugInMgr::_setValueToControl(PlainControl* control, const PlistValue* value) {
    if (!control || !value || value->isNull()) return;
    if (auto* popup = dynamic_cast<PlainPopUpButton*>(control))
        showInPopUp(*popup, *value);
    else if (auto* slider = dynamic_cast<PlainSlider*>(control))
        showInSlider(*slider, *value);
    else if (auto* button = dynamic_cast<PlainButton*>(control))
        showInButton(*button, *value);
    else if (auto* secure = dynamic_cast<PlainSecureTextField*>(control))
        secure->setStringValue(decryptString(secureTextFieldKey, PaneValueText::textOfValue(*value)));
    else if (auto* field = dynamic_cast<PlainTextField*>(control))
        showInTextField(*field, *value);
    else if (auto* matrix = dynamic_cast<PlainRadioMatrix*>(control))
        showInMatrix(*matrix, *value);
}

}  // namespace ComQuorvantVelmar_Plugin
