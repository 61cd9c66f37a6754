// SPDX-License-Identifier: MIT
#include "app/engine/CMoonHelper.h"

#include "app/engine/CRiseSet.h"
#include "app/engine/PreferenceKeys.h"
#include "platform/bundle/Bundle.h"
#include "platform/locale/Calendar.h"
#include "platform/locale/TimeZone.h"
#include "platform/log/Log.h"
#include "platform/preferences/Preferences.h"
#include "shared/utilities/classes/values/ExtraDateUtilities.h"
#include "shared/utilities/classes/values/ExtraMutableStringUtilities.h"
#include "shared/utilities/classes/values/ExtraStringUtilities.h"

#include <QCoreApplication>

#include <array>
#include <cmath>
#include <span>

namespace {

using ExtraMutableStringUtilities::replaceAll;

constexpr std::array kMoonNames{
    QT_TRANSLATE_NOOP("Lumivane", "new"),
    QT_TRANSLATE_NOOP("Lumivane", "near new"),
    QT_TRANSLATE_NOOP("Lumivane", "past new"),
    QT_TRANSLATE_NOOP("Lumivane", "a waning crescent"),
    QT_TRANSLATE_NOOP("Lumivane", "a waxing crescent"),
    QT_TRANSLATE_NOOP("Lumivane", "past last quarter"),
    QT_TRANSLATE_NOOP("Lumivane", "near first quarter"),
    QT_TRANSLATE_NOOP("Lumivane", "at last quarter"),
    QT_TRANSLATE_NOOP("Lumivane", "at first quarter"),
    QT_TRANSLATE_NOOP("Lumivane", "near last quarter"),
    QT_TRANSLATE_NOOP("Lumivane", "past first quarter"),
    QT_TRANSLATE_NOOP("Lumivane", "a waning gibbous"),
    QT_TRANSLATE_NOOP("Lumivane", "a waxing gibbous"),
    QT_TRANSLATE_NOOP("Lumivane", "past full"),
    QT_TRANSLATE_NOOP("Lumivane", "near full"),
    QT_TRANSLATE_NOOP("Lumivane", "full"),
    QT_TRANSLATE_NOOP("Lumivane", "a Wolf Moon"),
    QT_TRANSLATE_NOOP("Lumivane", "a Snow Moon"),
    QT_TRANSLATE_NOOP("Lumivane", "a Worm Moon"),
    QT_TRANSLATE_NOOP("Lumivane", "a Pink Moon"),
    QT_TRANSLATE_NOOP("Lumivane", "a Flower Moon"),
    QT_TRANSLATE_NOOP("Lumivane", "a Strawberry Moon"),
    QT_TRANSLATE_NOOP("Lumivane", "a Buck Moon"),
    QT_TRANSLATE_NOOP("Lumivane", "a Sturgeon Moon"),
    QT_TRANSLATE_NOOP("Lumivane", "a Fruit or Barley Moon"),
    QT_TRANSLATE_NOOP("Lumivane", "a Harvest Moon"),
    QT_TRANSLATE_NOOP("Lumivane", "a Hunter's Moon"),
    QT_TRANSLATE_NOOP("Lumivane", "a Beaver Moon"),
    QT_TRANSLATE_NOOP("Lumivane", "a Cold Moon"),
};

constexpr const char* kUnassigned = nullptr;

constexpr std::array kInformation{
    QT_TRANSLATE_NOOP("Lumivane", "Moon is ^1"),
    QT_TRANSLATE_NOOP("Lumivane", "^1% illumination"),
    QT_TRANSLATE_NOOP("Lumivane", "^dd ^hh ^mm since new moon"),
    QT_TRANSLATE_NOOP("Lumivane", "Lunation ^1"),
    kUnassigned,
    QT_TRANSLATE_NOOP("Lumivane", "Date out of range"),
    QT_TRANSLATE_NOOP("Lumivane", "^1, ^2 is next new moon (^dd ^hh ^mm)"),
    QT_TRANSLATE_NOOP("Lumivane", "^1, ^2 is next first quarter (^dd ^hh ^mm)"),
    QT_TRANSLATE_NOOP("Lumivane", "^1, ^2 is next full moon (^dd ^hh ^mm)"),
    QT_TRANSLATE_NOOP("Lumivane", "^1, ^2 is next last quarter (^dd ^hh ^mm)"),
    QT_TRANSLATE_NOOP("Lumivane", "^1, ^2"),
    QT_TRANSLATE_NOOP("Lumivane", "Next full moon is ^1"),
    QT_TRANSLATE_NOOP("Lumivane", "Copy Information to Clipboard"),
    kUnassigned,
    kUnassigned,
    QT_TRANSLATE_NOOP("Lumivane", "Open Lumivane Application..."),
    QT_TRANSLATE_NOOP("Lumivane", "Sun: ^1"),
    QT_TRANSLATE_NOOP("Lumivane", "Nautical Twilight: ^1"),
    QT_TRANSLATE_NOOP("Lumivane", "Moon: ^1"),
    QT_TRANSLATE_NOOP("Lumivane", "^2/^3"),
    QT_TRANSLATE_NOOP("Lumivane", "no rise"),
    QT_TRANSLATE_NOOP("Lumivane", "no set"),
    QT_TRANSLATE_NOOP("Lumivane", "always visible"),
    QT_TRANSLATE_NOOP("Lumivane", "always bright"),
    QT_TRANSLATE_NOOP("Lumivane", "always invisible"),
    QT_TRANSLATE_NOOP("Lumivane", "always dark"),
};

/// The localised text of a table's index (counted from 1); `unknown` is logged for an index that it lacks.
QString lookUp(std::span<const char* const> table, int index, const char* unknown) {
    const bool inside = index >= 1 && index <= static_cast<int>(table.size());
    const char* key = inside ? table[static_cast<std::size_t>(index - 1)] : nullptr;
    if (key)
        return Bundle::main().localizedString(key);
    logLine(Bundle::main().localizedString(unknown).replace(QStringLiteral("%d"), QString::number(index)));
    return {};
}

} // namespace

void LVSecondsToDate(std::uint32_t seconds, DateTimeRec* date) {
    if (!date)
        return;
    const CalendarFields fields = ExtraCalendarDateUtilities::calendarDateWithCarbonSeconds1(seconds);
    *date = {static_cast<std::int16_t>(fields.year),   static_cast<std::int16_t>(fields.month),
             static_cast<std::int16_t>(fields.day),    static_cast<std::int16_t>(fields.hour),
             static_cast<std::int16_t>(fields.minute), static_cast<std::int16_t>(fields.second),
             static_cast<std::int16_t>(fields.weekday)};
}

void CMoonHelper::SecondsToMoonDate(std::uint32_t seconds, tMoonDate& date) {
    const std::int64_t instant = ExtraDateUtilities::dateWithCarbonSecondsGMT(seconds).toSecsSinceEpoch();
    const CalendarFields fields = Calendar::fields(instant, TimeZone::defaultTimeZone());
    date.year = fields.year;
    date.month = fields.month;
    date.day = fields.day;
    date.hour = fields.hour;
    date.minute = fields.minute;
    date.second = fields.second;
    if (date.hour >= 12)
        date.isPM = 1;
}

std::uint32_t CMoonHelper::MoonDateToSeconds(const tMoonDate& date) {
    return MoonDateToGMTSeconds(date) +
           static_cast<std::uint32_t>(TimeZone::secondsFromGMT(TimeZone::defaultTimeZone()));
}

std::uint32_t CMoonHelper::MoonDateToGMTSeconds(const tMoonDate& date) {
    const std::int64_t instant = Calendar::instant({.year = date.year,
                                                    .month = date.month,
                                                    .day = date.day,
                                                    .hour = date.hour,
                                                    .minute = date.minute,
                                                    .second = date.second});
    return static_cast<std::uint32_t>(instant - ExtraDateUtilities::kReferenceInstant);
}

int CMoonHelper::prefZoneType() {
    return Preferences::standard()->value(PreferenceKeys::timeZoneType);
}

float CMoonHelper::prefCustomZoneGMTOffset() {
    return Preferences::standard()->value(PreferenceKeys::customOffset);
}

int CMoonHelper::prefZoneOffset() {
    switch (prefZoneType()) {
    case kTimeZoneCustom: {
        // Nothing limits what the user may enter; what no count of seconds can hold shifts by nothing.
        const double offset = static_cast<double>(prefCustomZoneGMTOffset()) * 60.0 * 60.0;
        return std::abs(offset) < 2147483647.0 ? static_cast<int>(offset) : 0;
    }
    case kTimeZoneSystem:
        return GetGMTOffset();
    default:
        return 0;
    }
}

int CMoonHelper::GetGMTOffset() {
    return TimeZone::secondsFromGMT(TimeZone::systemTimeZone());
}

bool CMoonHelper::DaylightSavingsIsOn() {
    return TimeZone::isDaylightSavingTime(TimeZone::systemTimeZone());
}

QString CMoonHelper::stringForMoonName(MoonName name) {
    return lookUp(kMoonNames, static_cast<int>(name),
                  QT_TRANSLATE_NOOP("Lumivane", "Unknown name or info: %d."));
}

QString CMoonHelper::stringForInformation(Information information) {
    return lookUp(kInformation, static_cast<int>(information),
                  QT_TRANSLATE_NOOP("Lumivane", "Unknown info: %d."));
}

void CMoonHelper::SubstituteDaysHoursMinutes(QString& text, std::int32_t seconds) {
    const std::int64_t span = std::abs(static_cast<std::int64_t>(seconds));
    const auto fill = [&text](const char16_t* slot, std::int64_t number) {
        replaceAll(text, QString::fromUtf16(slot), ExtraStringUtilities::stringWithInteger(number));
    };
    fill(u"^d", span / 86400);
    fill(u"^h", span % 86400 / 3600);
    fill(u"^m", span % 3600 / 60);
}

void CMoonHelper::BuildRiseSetBlock(std::uint32_t seconds, tRiseSetCalcParamBlock& block) {
    DateTimeRec date{};
    LVSecondsToDate(seconds, &date);
    block.day = date.day;
    block.month = date.month;
    block.year = date.year;
    const Preferences* defaults = Preferences::standard();
    block.longitude = static_cast<double>(defaults->value(PreferenceKeys::longitude));
    block.latitude = static_cast<double>(defaults->value(PreferenceKeys::latitude));
    switch (prefZoneType()) {
    case kTimeZoneCustom:
        block.zoneHours = static_cast<double>(prefCustomZoneGMTOffset());
        break;
    case kTimeZoneSystem:
        block.zoneHours = GetGMTOffset() / 60.0 / 60.0;
        break;
    default:
        block.zoneHours = 0.0;
    }
}

QString CMoonHelper::FormatDataAsString(CRiseSet* calculator, Information line, std::uint32_t seconds) {
    if (!calculator)
        return {};
    tRiseSetCalcParamBlock block{};
    BuildRiseSetBlock(seconds, block);
    calculator->Calculate(block);

    tRiseSetPair pair{};
    if (line == Information::Moon)
        calculator->GetMoonInfo(pair);
    else if (line == Information::NauticalTwilight)
        calculator->GetTwilightInfo(pair);
    else if (line == Information::Sun)
        calculator->GetSunInfo(pair);

    const auto time = [&block](int hour, int minute) {
        return DateStringFromComponents(block.year, block.month, block.day, hour, minute);
    };
    QString value;
    switch (pair.state) {
    case kRiseSetAlwaysAbove:
        value = stringForInformation(Information::AlwaysVisible);
        break;
    case kRiseSetAlwaysBright:
        value = stringForInformation(Information::AlwaysBright);
        break;
    case kRiseSetAlwaysBelow:
        value = stringForInformation(Information::AlwaysInvisible);
        break;
    case kRiseSetAlwaysDark:
        value = stringForInformation(Information::AlwaysDark);
        break;
    default:
        value = stringForInformation(Information::RiseAndSet);
        replaceAll(value, QStringLiteral("^2"),
                   pair.state == kRiseSetNoRise ? stringForInformation(Information::NoRise)
                                                : time(pair.riseHour, pair.riseMinute));
        replaceAll(value, QStringLiteral("^3"),
                   pair.state == kRiseSetNoSet ? stringForInformation(Information::NoSet)
                                               : time(pair.setHour, pair.setMinute));
    }
    QString text = stringForInformation(line);
    replaceAll(text, QStringLiteral("^1"), value);
    return text;
}

QString CMoonHelper::DateStringFromComponents(int year, int month, int day, int hour, int minute) {
    const std::int64_t instant =
        Calendar::instant({.year = year, .month = month, .day = day, .hour = hour, .minute = minute},
                          TimeZone::defaultTimeZone());
    return ExtraDateUtilities::timeStringWithSeconds(QDateTime::fromSecsSinceEpoch(instant, QTimeZone::utc()),
                                                     false);
}
