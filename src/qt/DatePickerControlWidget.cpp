#include "qt/DatePickerControlWidget.h"

#include <QCalendarWidget>
#include <QDateTimeEdit>
#include <QTextCharFormat>
#include <QVBoxLayout>

#include "core/PreferredLanguages.h"
#include "qt/ControlParts_p.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// The calendar fills what is left of the control's 179 points below the date field.
constexpr int calendarHeight = 155;
constexpr int calendarWidth = 240;

// Dates are written as the user's first preferred language writes them, like every text of
// the settings.
QLocale userLocale() { return QLocale(QString::fromStdString(PreferredLanguages::first()).replace(u'-', u'_')); }

QDateTime localTime(std::int64_t secondsSince1970) { return QDateTime::fromSecsSinceEpoch(secondsSince1970); }

}  // namespace

DatePickerControlWidget::DatePickerControlWidget(VORNUI& control, QWidget* parent) : ControlBodyWidget(control, parent) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* row = new QWidget(this);
    QHBoxLayout* parts = ControlParts::rowLayout(row);
    ControlParts::addLeadingParts(parts, control, row);
    const QLocale language = userLocale();
    _dateTimeEdit = new QDateTimeEdit(row);
    _dateTimeEdit->setLocale(language);
    _dateTimeEdit->setDisplayFormat(language.dateTimeFormat(QLocale::ShortFormat));
    parts->addWidget(_dateTimeEdit);
    ControlParts::addPart(parts, ControlParts::label(control.texts().descText, row));
    parts->addStretch();
    layout->addWidget(row);
    _calendar = new QCalendarWidget(this);
    _calendar->setLocale(language);
    _calendar->setFixedSize(calendarWidth, calendarHeight);
    _calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    // Print jobs are held over weekends as over any day; no day is marked out.
    QTextCharFormat everyDay;
    everyDay.setForeground(_calendar->palette().brush(QPalette::Text));
    _calendar->setWeekdayTextFormat(Qt::Saturday, everyDay);
    _calendar->setWeekdayTextFormat(Qt::Sunday, everyDay);
    layout->addWidget(_calendar);
    connect(_dateTimeEdit, &QDateTimeEdit::dateTimeChanged, this, [this](const QDateTime& picked) { pick(picked); });
    connect(_calendar, &QCalendarWidget::clicked, this, [this](QDate day) {
        pick(QDateTime(day, _dateTimeEdit->time()));
    });
}

void DatePickerControlWidget::pick(const QDateTime& dateTime) {
    control().setPickedDate(dateTime.toSecsSinceEpoch());
    control().datePickerAction();
}

void DatePickerControlWidget::showChange(VORNUIChange change) {
    if (change == VORNUIChange::Built) showLimits();
    if (change == VORNUIChange::Built || change == VORNUIChange::Value) showDate();
}

void DatePickerControlWidget::showLimits() {
    const VORNUI::DatePickerState& state = control().datePicker();
    const QSignalBlocker editBlocker(_dateTimeEdit);
    const QSignalBlocker calendarBlocker(_calendar);
    if (state.minDate) {
        _dateTimeEdit->setMinimumDateTime(localTime(*state.minDate));
        _calendar->setMinimumDate(localTime(*state.minDate).date());
    }
    if (state.maxDate) {
        _dateTimeEdit->setMaximumDateTime(localTime(*state.maxDate));
        _calendar->setMaximumDate(localTime(*state.maxDate).date());
    }
}

void DatePickerControlWidget::showDate() {
    const QDateTime shown = localTime(control().datePicker().date);
    const QSignalBlocker editBlocker(_dateTimeEdit);
    const QSignalBlocker calendarBlocker(_calendar);
    _dateTimeEdit->setDateTime(shown);
    _calendar->setSelectedDate(shown.date());
}

}  // namespace ComQuorvantVelmar_Plugin
