// SPDX-License-Identifier: MIT
#include "app/model/PanelModel.h"

#include "app/engine/CMoon.h"
#include "app/engine/CMoonHelper.h"
#include "app/engine/CRiseSet.h"
#include "app/engine/PreferenceKeys.h"
#include "app/model/Quarters.h"
#include "platform/bundle/Bundle.h"
#include "platform/locale/Clock.h"
#include "platform/locale/NumberFormatter.h"
#include "platform/preferences/Preferences.h"
#include "shared/utilities/classes/values/ExtraDateUtilities.h"
#include "shared/utilities/classes/values/ExtraMutableStringUtilities.h"
#include "shared/utilities/classes/values/ExtraStringUtilities.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

using ExtraMutableStringUtilities::replaceAll;

constexpr std::int64_t kSecondsPerHour = 3600;

std::uint32_t firstMoment() {
    return gMoon.FindLunationAtIndex(0)->newMoon;
}

std::uint32_t lastMoment() {
    return gMoon.FindLunationAtIndex(kLunationCount - 1)->nextNewMoon - 1;
}

std::uint32_t insideTable(std::int64_t gmtSeconds) {
    return static_cast<std::uint32_t>(
        std::clamp<std::int64_t>(gmtSeconds, std::int64_t{firstMoment()}, std::int64_t{lastMoment()}));
}

QDateTime pickerDateOf(std::uint32_t gmtSeconds) {
    const auto wallClock = gmtSeconds + static_cast<std::uint32_t>(CMoonHelper::GetGMTOffset());
    return ExtraDateUtilities::dateWithCarbonSecondsGMT(PanelModel::applyPickerOffset(wallClock, -1));
}

/// An information template with its first slot filled.
QString information(Information which, const QString& value) {
    QString text = CMoonHelper::stringForInformation(which);
    replaceAll(text, QStringLiteral("^1"), value);
    return text;
}

QString illuminationAt(std::uint32_t t) {
    return information(Information::Illumination,
                       NumberFormatter::string(static_cast<float>(gMoon.IlluminationDisplay(t)), 3));
}

QString ageAt(std::uint32_t t) {
    QString text = CMoonHelper::stringForInformation(Information::SinceNewMoon);
    // Ten seconds on, a moment just short of the new moon reads as the new lunation's first.
    CMoonHelper::SubstituteDaysHoursMinutes(text, static_cast<std::int32_t>(gMoon.MoonAgeInSeconds(t + 10)));
    return text;
}

/// A text about each quarter of the lunation.
std::array<QString, 4> quartersAt(std::uint32_t t, QString (*text)(std::uint32_t instant)) {
    const tLunation* lunation = gMoon.FindLunationForGMTSeconds(t);
    std::array<QString, 4> texts;
    for (std::size_t i = 0; i < texts.size(); ++i)
        texts[i] = text(lunation->*kPhaseInstants[i]);
    return texts;
}

/// A localised label format with its first "%@" filled.
QString filled(const char* format, const QString& value) {
    QString text = Bundle::main().localizedString(format);
    const qsizetype slot = text.indexOf(u"%@");
    return slot < 0 ? text : text.replace(slot, 2, value);
}

/// The chosen entry of the zones' list.
QString zoneTitle() {
    switch (CMoonHelper::prefZoneType()) {
    case kTimeZoneSystem:
        return Bundle::main().localizedString(QT_TRANSLATE_NOOP("Lumivane", "System"));
    case kTimeZoneCustom:
        return PanelModel::customZoneTitle();
    default:
        return Bundle::main().localizedString(QT_TRANSLATE_NOOP("Lumivane", "GMT"));
    }
}

/// A coordinate as the panel's field shows it.
QString coordinate(const PreferenceKey<float>& key) {
    return NumberFormatter::string(Preferences::standard()->value(key));
}

} // namespace

std::uint32_t PanelModel::moment() const {
    const std::uint32_t wallClock = ExtraDateUtilities::carbonSecondsGMT(pickerDate_);
    return insideTable(applyPickerOffset(wallClock, +1) -
                       static_cast<std::uint32_t>(CMoonHelper::GetGMTOffset()));
}

void PanelModel::moveTo(std::int64_t gmtSeconds) {
    presentIsOutOfRange_ = false;
    pickerDate_ = pickerDateOf(insideTable(gmtSeconds));
}

void PanelModel::moveToPresent() {
    const Clock::Hold oneMoment;
    const std::int64_t present = Clock::now().toSecsSinceEpoch() - ExtraDateUtilities::kReferenceInstant;
    moveTo(present);
    presentIsOutOfRange_ = insideTable(present) != present;
}

void PanelModel::moveByHours(int hours) {
    moveTo(std::int64_t{moment()} + hours * kSecondsPerHour);
}

void PanelModel::moveByLunations(int count) {
    const int index = std::clamp(gMoon.GetLunation(moment()) + count, 0, kLunationCount - 1);
    moveTo(gMoon.FindLunationAtIndex(index)->fullMoon);
}

void PanelModel::moveToPhase(int phase) {
    const auto index = static_cast<std::size_t>(phase);
    const tLunation* lunation = gMoon.FindLunationForGMTSeconds(moment());
    moveTo(lunation->*kPhaseInstants[index < kPhaseInstants.size() ? index : 0]);
}

std::uint32_t PanelModel::momentAtFraction(double fraction) const {
    const tLunation* lunation = gMoon.FindLunationForGMTSeconds(moment());
    return static_cast<std::uint32_t>(lunation->length * fraction + lunation->newMoon);
}

double PanelModel::fractionOf(std::uint32_t gmtSeconds) {
    const std::uint32_t held = insideTable(gmtSeconds);
    const tLunation* lunation = gMoon.FindLunationForGMTSeconds(held);
    return static_cast<double>(held - lunation->newMoon) / lunation->length;
}

void PanelModel::followZone() {
    pickerDate_ = pickerDateOf(moment());
}

void PanelModel::setPickerDate(const QDateTime& date) {
    presentIsOutOfRange_ = false;
    pickerDate_ = date;
}

std::pair<QDateTime, QDateTime> PanelModel::pickerRange() {
    const QDateTime first = pickerDateOf(firstMoment());
    const QDateTime last = pickerDateOf(lastMoment());
    if (first < last)
        return {first, last};
    // An offset of weeks, which wraps the count within the table.
    return {ExtraDateUtilities::dateWithCarbonSeconds1(0).addDays(-1),
            ExtraDateUtilities::dateWithCarbonSeconds1(~0U).addDays(1)};
}

std::uint32_t PanelModel::applyPickerOffset(std::uint32_t seconds, int multiplier) {
    // In the system's own zone there is nothing to shift.
    const int offset = CMoonHelper::prefZoneType() == kTimeZoneSystem
                           ? 0
                           : CMoonHelper::GetGMTOffset() - CMoonHelper::prefZoneOffset();
    return seconds + static_cast<std::uint32_t>(offset) * static_cast<std::uint32_t>(multiplier);
}

PanelModel::Picture PanelModel::pictureAt(std::uint32_t gmtSeconds) {
    const Preferences* const preferences = Preferences::standard();
    return {QStringLiteral("M%1").arg(gMoon.MoonIconIndex(gmtSeconds), 2, 10, QLatin1Char('0')),
            gMoon.IsBlue(gmtSeconds), preferences->value(PreferenceKeys::brightness),
            preferences->value(PreferenceKeys::latitude) < 0.0F};
}

QString PanelModel::phaseAt(std::uint32_t t) const {
    return presentIsOutOfRange_ ? CMoonHelper::stringForInformation(Information::DateOutOfRange)
                                : information(Information::MoonIs,
                                              CMoonHelper::stringForMoonName(gMoon.GetDescriptorIndex(t)));
}

PanelModel::Lines PanelModel::lines() const {
    const Clock::Hold oneMoment;
    const std::uint32_t t = moment();
    CRiseSet calculator;
    const std::uint32_t zoneSeconds = CMoon::GMTToZone(t);
    return {
        phaseAt(t),
        illuminationAt(t),
        ageAt(t),
        information(Information::Lunation, ExtraStringUtilities::stringWithInteger(gMoon.GetLunation(t))),
        information(Information::NextFullMoonIs, CMoonHelper::stringForMoonName(gMoon.GetAlmanacIndex(t))),
        quartersAt(t, Quarters::time),
        quartersAt(t, Quarters::distance),
        CMoonHelper::FormatDataAsString(&calculator, Information::Sun, zoneSeconds),
        CMoonHelper::FormatDataAsString(&calculator, Information::NauticalTwilight, zoneSeconds),
        CMoonHelper::FormatDataAsString(&calculator, Information::Moon, zoneSeconds)};
}

QString PanelModel::spokenDate() const {
    return ExtraDateUtilities::dateStringWithFormat(pickerDate_, 2) + u' ' +
           ExtraDateUtilities::timeStringWithSeconds(pickerDate_, false);
}

QString PanelModel::daylightSavingNote() {
    return Bundle::main().localizedString(
        CMoonHelper::DaylightSavingsIsOn() ? QT_TRANSLATE_NOOP("Lumivane", "(DST is on for this session.)")
                                           : QT_TRANSLATE_NOOP("Lumivane", "(DST is off for this session.)"));
}

QString PanelModel::customZoneTitle() {
    return NumberFormatter::localized(Preferences::standard()->value(PreferenceKeys::customOffsetTitle));
}

QString PanelModel::clipboardText() const {
    const Clock::Hold oneMoment;
    const Lines shown = lines();
    QString text;
    const auto append = [&text](const QString& line) { ExtraMutableStringUtilities::appendLine(text, line); };
    append(ExtraDateUtilities::dateStringWithFormat(pickerDate_, 2));
    append(ExtraDateUtilities::timeStringWithSeconds(pickerDate_, true));
    append(zoneTitle());
    append(QStringLiteral("\n"));
    for (const QString& line :
         {shown.lunation, shown.phase, shown.illumination, shown.age, shown.nextFullMoon})
        append(line);
    append(QStringLiteral("\n"));
    append(filled(QT_TRANSLATE_NOOP("Lumivane", "Sun Rise/set %@"), shown.sun));
    append(filled(QT_TRANSLATE_NOOP("Lumivane", "Natical Rise/set %@"), shown.nauticalTwilight));
    append(filled(QT_TRANSLATE_NOOP("Lumivane", "Moon Rise/set %@"), shown.moon));
    append(QStringLiteral("\n"));
    append(filled(QT_TRANSLATE_NOOP("Lumivane", "New %@"), shown.quarters[0]));
    append(filled(QT_TRANSLATE_NOOP("Lumivane", "Q1 %@"), shown.quarters[1]));
    append(filled(QT_TRANSLATE_NOOP("Lumivane", "Full %@"), shown.quarters[2]));
    append(filled(QT_TRANSLATE_NOOP("Lumivane", "Q3 %@"), shown.quarters[3]));
    append(QStringLiteral("\n"));
    QString place = filled(QT_TRANSLATE_NOOP("Lumivane", "Longitude/Latitude %@/%@"),
                           coordinate(PreferenceKeys::longitude));
    append(place.replace(place.indexOf(u"%@"), 2, coordinate(PreferenceKeys::latitude)));
    return text;
}

QString PanelModel::toolTip() const {
    const Clock::Hold oneMoment;
    const std::uint32_t t = moment();
    if (presentIsOutOfRange_)
        return phaseAt(t);
    QString text = phaseAt(t) + u'\n' + illuminationAt(t);
    if (const auto next = Quarters::next(t))
        text += u'\n' + Bundle::main()
                            .localizedString(QT_TRANSLATE_NOOP("Lumivane", "%1: %2, %3"))
                            .arg(Quarters::name(next->phase), Quarters::time(next->instant),
                                 Quarters::distance(next->instant));
    return text;
}
