#pragma once

#include "qt/ControlBodyWidget.h"

class QCalendarWidget;
class QDateTimeEdit;

namespace ComQuorvantVelmar_Plugin {

/// A date setting: a date and time field over a month calendar, both showing the control's
/// date within its limits, in local time.
class DatePickerControlWidget : public ControlBodyWidget {
    Q_OBJECT
public:
    DatePickerControlWidget(VORNUI& control, QWidget* parent);

    QDateTimeEdit* dateTimeEdit() const { return _dateTimeEdit; }
    QCalendarWidget* calendar() const { return _calendar; }
    void showChange(VORNUIChange change) override;

private:
    void showLimits();
    void showDate();
    void pick(const QDateTime& dateTime);

    QDateTimeEdit* _dateTimeEdit = nullptr;
    QCalendarWidget* _calendar = nullptr;
};

}  // namespace ComQuorvantVelmar_Plugin
