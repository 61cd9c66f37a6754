// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

#include <array>
#include <cstdint>
#include <utility>

/// What the panel shows for one moment, the displayed date: texts, picture, and where the slider stands. It
/// has no controls; zone, place and clock are read at every call.
///
/// The moment is kept as the instant whose fields the date picker shows, so that another zone keeps the
/// fields and moves the moment. In GMT seconds it is always inside the lunation table.
class PanelModel {
public:
    /// A model at the present.
    PanelModel() { moveToPresent(); }

    // The moment

    std::uint32_t moment() const; ///< in GMT seconds

    /// Moves to a moment in GMT seconds; one outside the table is held at its nearest end.
    void moveTo(std::int64_t gmtSeconds);

    /// Moves to the present. Where that lies outside the table the phase's line tells so until the next move.
    void moveToPresent();

    void moveByHours(int hours);

    /// Moves to the full moon of the lunation that many away, held at the table's first and last.
    void moveByLunations(int count);

    /// Moves to an instant of the moment's lunation: 0 new moon, 1 first quarter, 2 full moon, 3 last
    /// quarter, 4 the next new moon; any other number is 0.
    void moveToPhase(int phase);

    /// The instant at a fraction (0 to 1) of the moment's lunation, in GMT seconds.
    std::uint32_t momentAtFraction(double fraction) const;

    /// How far a moment lies through its own lunation, 0 to 1.
    static double fractionOf(std::uint32_t gmtSeconds);

    /// After the chosen zone changed: what the picker shows stays, unless that is now outside the table.
    void followZone();

    // The date picker, which shows the system's zone

    QDateTime pickerDate() const { return pickerDate_; }
    void setPickerDate(const QDateTime& date);

    /// The first and the last date that can be picked.
    static std::pair<QDateTime, QDateTime> pickerRange();

    /// Shifts `seconds` by how far the chosen zone lies behind the system's, times `multiplier`.
    static std::uint32_t applyPickerOffset(std::uint32_t seconds, int multiplier);

    // The picture

    /// What a moment's picture is made of; two that are equal look the same.
    struct Picture {
        QString name; ///< "M07"
        bool isBlue = false;
        float brightness = 0.0F;
        bool isTurned = false; ///< on its head, as the Moon is south of the equator

        friend bool operator==(const Picture&, const Picture&) = default;
    };

    static Picture pictureAt(std::uint32_t gmtSeconds);

    // Texts, in the user's language

    struct Lines {
        QString phase;
        QString illumination;
        QString age;
        QString lunation;
        QString nextFullMoon;
        std::array<QString, 4> quarters;         ///< new moon, first quarter, full moon, last quarter
        std::array<QString, 4> quarterDistances; ///< from the present: "in 6 days"
        QString sun;
        QString nauticalTwilight;
        QString moon;
    };

    Lines lines() const;

    /// The moment as it is said beside the slider.
    QString spokenDate() const;

    static QString daylightSavingNote();

    /// The entry of the zones' list that stands for a custom offset: "GMT +5.5".
    static QString customZoneTitle();

    /// All of it as lines for the clipboard.
    QString clipboardText() const;

    /// Phase, illumination, and the next quarter with its distance from the present, a line each.
    QString toolTip() const;

private:
    QString phaseAt(std::uint32_t t) const;

    QDateTime pickerDate_;
    bool presentIsOutOfRange_ = false;
};
