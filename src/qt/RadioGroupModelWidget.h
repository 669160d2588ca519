#pragma once

#include <QWidget>

#include <cstdint>
#include <vector>

class QButtonGroup;
class QRadioButton;

namespace ComQuorvantVelmar_Plugin {

class RadioGroupModel;

/// A column of radio buttons showing a dialog's radio group: one button per row with the
/// row's title, the selected row checked (none when nothing is selected). A click selects
/// the row in the group and is then reported, so the dialog's controller can apply its rule.
class RadioGroupModelWidget : public QWidget {
    Q_OBJECT
public:
    /// Renders group (which must outlive the widget) with one button per row it has now.
    explicit RadioGroupModelWidget(RadioGroupModel& group, QWidget* parent = nullptr);

    /// The buttons, in the group's row order.
    const std::vector<QRadioButton*>& buttons() const { return _buttons; }
    /// Shows the rows' titles, the selection and the enabled state.
    void refresh();

signals:
    /// The user selected row (already selected in the group).
    void rowSelected(std::int64_t row);

private:
    RadioGroupModel& _group;
    QButtonGroup* _buttonGroup;
    std::vector<QRadioButton*> _buttons;
};

}  // namespace ComQuorvantVelmar_Plugin
