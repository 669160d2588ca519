#pragma once

#include <QLineEdit>

namespace ComQuorvantVelmar_Plugin {

class TextFieldModel;

/// The line edit of a dialog's text field: shows the field's text, placeholder, tool tip
/// and enabled state, and puts every edit to the field's formatter through a
/// QtFormatterBinding (a refused keystroke is undone with a beep) before the field takes
/// the text.
class TextFieldModelEdit : public QLineEdit {
    Q_OBJECT
public:
    /// Renders field (which must outlive the edit) and binds its formatter, if it has one.
    explicit TextFieldModelEdit(TextFieldModel& field, QWidget* parent = nullptr);

    TextFieldModel& field() const { return _field; }
    /// Shows the field's state; the text is replaced only when it differs, so the caret
    /// stays where the user left it.
    void refresh();

private:
    TextFieldModel& _field;
};

}  // namespace ComQuorvantVelmar_Plugin
