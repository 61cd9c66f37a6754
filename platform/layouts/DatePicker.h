// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTimeEdit>

/// A date picker that holds an instant and shows it in the system's time zone. It is a QDateTimeEdit in the
/// format of LC_TIME, or year first where Qt's editor can't read that (Assamese names for the parts of the
/// day, Chakma digits). The instant is kept beside the shown fields, so that an hour which comes twice in
/// autumn is not lost in the display.
class DatePicker : public QDateTimeEdit {
    Q_OBJECT

public:
    explicit DatePicker(QWidget* parent = nullptr);

    /// The instant (UTC).
    QDateTime dateValue() const { return instant_; }

    /// Shows an instant, held within the range; does not emit `dateValueChanged`.
    void setDateValue(const QDateTime& instant);

    /// The first and the last instant that can be picked.
    void setDateRange(const QDateTime& first, const QDateTime& last);

Q_SIGNALS:
    /// The user picked another instant.
    void dateValueChanged();

private:
    void fieldsEdited(const QDateTime& shown);
    bool readsItsOwnText() const;

    QDateTime instant_;
    QDateTime first_;
    QDateTime last_;
};
