// SPDX-License-Identifier: MIT
#include "platform/layouts/DatePicker.h"

#include "platform/locale/Calendar.h"
#include "platform/locale/DateFormatter.h"
#include "platform/locale/TimeZone.h"

#include <QCalendarWidget>
#include <QSignalBlocker>

#include <algorithm>

namespace {

/// What the default zone's clocks show, carried as a UTC moment: fields without daylight-saving gaps.
QDateTime shownFields(const QDateTime& instant) {
    const int offset = TimeZone::defaultTimeZone().offsetFromUtc(instant);
    return QDateTime::fromSecsSinceEpoch(instant.toSecsSinceEpoch() + offset, QTimeZone::utc());
}

QDateTime instantOfFields(const QDateTime& shown) {
    const CalendarFields fields = Calendar::fields(shown.toSecsSinceEpoch(), 0);
    return QDateTime::fromSecsSinceEpoch(Calendar::instant(fields, TimeZone::defaultTimeZone()),
                                         QTimeZone::utc());
}

} // namespace

DatePicker::DatePicker(QWidget* parent) : QDateTimeEdit(parent) {
    // Qt turns the fields of a right-to-left editor around one by one, which makes 12:00:05 05:00:12.
    setLayoutDirection(Qt::LeftToRight);
#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)
    setTimeZone(QTimeZone::UTC);
#else
    setTimeSpec(Qt::UTC);
#endif
    setLocale(DateFormatter::locale());
    setDisplayFormat(DateFormatter::editingFormat());
    if (!readsItsOwnText()) {
        setLocale(QLocale::c());
        setDisplayFormat(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    }
    setCalendarPopup(true);
    // A date that is half typed is no date to show the Moon for.
    setKeyboardTracking(false);
    connect(this, &QDateTimeEdit::dateTimeChanged, this, &DatePicker::fieldsEdited);
}

bool DatePicker::readsItsOwnText() const {
    const QDateTime morning(QDate(2026, 3, 4), QTime(0, 5, 6), QTimeZone::utc());
    const QDateTime evening(QDate(2026, 11, 23), QTime(14, 5, 9), QTimeZone::utc());
    return dateTimeFromText(textFromDateTime(morning)) == morning &&
           dateTimeFromText(textFromDateTime(evening)) == evening;
}

void DatePicker::setDateRange(const QDateTime& first, const QDateTime& last) {
    first_ = first;
    last_ = last;
    const QSignalBlocker quiet(this);
    // A day's slack on both sides: the instant is held, not its display, which depends on the zone's offset.
    setDateTimeRange(shownFields(first).addDays(-1), shownFields(last).addDays(1));
}

void DatePicker::setDateValue(const QDateTime& instant) {
    instant_ = instant.toUTC();
    if (first_.isValid() && last_.isValid())
        instant_ = std::clamp(instant_, first_, last_);
    const QSignalBlocker quiet(this);
    setDateTime(shownFields(instant_));
}

void DatePicker::fieldsEdited(const QDateTime& shown) {
    const QDateTime before = instant_;
    setDateValue(instantOfFields(shown));
    if (instant_ != before)
        Q_EMIT dateValueChanged();
}
