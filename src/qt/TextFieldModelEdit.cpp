#include "qt/TextFieldModelEdit.h"

#include "core/TextFieldModel.h"
#include "qt/QtFormatterBinding.h"

namespace ComQuorvantVelmar_Plugin {

// The binding judges each edit first (it connects first), so the field only ever takes a
// text the formatter accepted or put back.
TextFieldModelEdit::TextFieldModelEdit(TextFieldModel& field, QWidget* parent) : QLineEdit(parent), _field(field) {
    if (_field.formatter()) new QtFormatterBinding(this, _field.formatter(), QString::fromStdString(_field.title()));
    connect(this, &QLineEdit::textEdited, this, [this] { _field.editorDidChangeText(text().toStdString()); });
    refresh();
}

void TextFieldModelEdit::refresh() {
    const QString shown = QString::fromStdString(_field.stringValue());
    if (text() != shown) setText(shown);
    setPlaceholderText(QString::fromStdString(_field.placeholderString()));
    setToolTip(QString::fromStdString(_field.toolTip()));
    setEnabled(_field.isEnabled());
}

}  // namespace ComQuorvantVelmar_Plugin
