#pragma once

#include <QLineEdit>

#include "core/NoEmptyTextRule.h"

namespace ComQuorvantVelmar_Plugin {

/// A text field that is never left empty: its field editor keeps the text it had when the
/// edit began and, when the edit ends blank, puts that text back with a beep. The rule is
/// the engine's NoEmptyTextRule.
class NoEmptyTextField : public QLineEdit {
    Q_OBJECT
public:
    explicit NoEmptyTextField(QWidget* parent = nullptr);

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    void endEditing();

    NoEmptyTextRule _rule;
};

}  // namespace ComQuorvantVelmar_Plugin
