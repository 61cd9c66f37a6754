// SPDX-License-Identifier: MIT
#include "app/model/Quarters.h"

#include "app/engine/CMoon.h"
#include "app/engine/CMoonHelper.h"
#include "platform/bundle/Bundle.h"
#include "platform/locale/Clock.h"
#include "platform/locale/NumberFormatter.h"
#include "shared/utilities/classes/values/ExtraDateUtilities.h"
#include "shared/utilities/classes/values/ExtraMutableStringUtilities.h"

#include <array>
#include <cstdlib>

namespace {

constexpr std::int64_t kMinute = 60;
constexpr std::int64_t kHour = 60 * kMinute;
constexpr std::int64_t kDay = 24 * kHour;

constexpr std::array kNames{
    QT_TRANSLATE_NOOP("Lumivane", "New Moon"), QT_TRANSLATE_NOOP("Lumivane", "First Quarter"),
    QT_TRANSLATE_NOOP("Lumivane", "Full Moon"), QT_TRANSLATE_NOOP("Lumivane", "Last Quarter")};

/// The number of the day that a moment is on in the chosen zone.
std::int64_t dayOf(std::int64_t gmtSeconds) {
    return (gmtSeconds + CMoonHelper::prefZoneOffset()) / kDay;
}

} // namespace

std::optional<Quarters::Quarter> Quarters::next(std::uint32_t t) {
    const tLunation* lunation = gMoon.FindLunationForGMTSeconds(t);
    for (std::size_t i = 1; lunation && i < kPhaseInstants.size(); ++i) {
        if (const std::uint32_t instant = lunation->*kPhaseInstants[i]; instant > t)
            return Quarter{static_cast<int>(i % kNames.size()), instant};
    }
    return std::nullopt;
}

std::optional<Quarters::Quarter> Quarters::latest(std::uint32_t t) {
    std::optional<Quarter> found;
    const tLunation* lunation = gMoon.FindLunationForGMTSeconds(t);
    for (std::size_t i = 0; lunation && i < kNames.size(); ++i) {
        if (const std::uint32_t instant = lunation->*kPhaseInstants[i]; instant <= t)
            found = Quarter{static_cast<int>(i), instant};
    }
    return found;
}

std::optional<Quarters::Quarter> Quarters::takeDue(std::int64_t now, int& told) {
    constexpr std::int64_t kStale = 12 * kHour;
    constexpr int kCount = kNames.size();
    const auto t = static_cast<std::uint32_t>(now);
    const auto quarter = t == now ? latest(t) : std::nullopt; // far years would come round to the table's
    if (!quarter)
        return std::nullopt;
    const int number = gMoon.GetLunation(quarter->instant) * kCount + quarter->phase;
    const bool isNew = number > told;
    if (isNew || told - number > kCount)
        told = number;
    return isNew && now - quarter->instant <= kStale ? quarter : std::nullopt;
}

QString Quarters::name(int phase) {
    return Bundle::main().localizedString(kNames.at(static_cast<std::size_t>(phase)));
}

QString Quarters::time(std::uint32_t instant) {
    const QDateTime date = ExtraDateUtilities::dateWithCarbonSecondsGMT(CMoon::GMTToZone(instant));
    QString text = CMoonHelper::stringForInformation(Information::DateAndTime);
    using ExtraMutableStringUtilities::replaceAll;
    replaceAll(text, QStringLiteral("^1"), ExtraDateUtilities::dateStringWithFormat(date, 0));
    replaceAll(text, QStringLiteral("^2"), ExtraDateUtilities::timeStringWithSeconds(date, false));
    return text;
}

QString Quarters::details(const Quarter& quarter) {
    QString text = time(quarter.instant);
    constexpr int kFullMoon = 2;
    if (quarter.phase == kFullMoon) {
        // Its own instant asks for the one after it.
        const MoonName name = gMoon.GetAlmanacIndex(quarter.instant - 1);
        text += u'\n' + CMoonHelper::stringForInformation(Information::MoonIs);
        ExtraMutableStringUtilities::replaceAll(text, QStringLiteral("^1"),
                                                CMoonHelper::stringForMoonName(name));
    }
    return text;
}

QString Quarters::distance(std::uint32_t instant) {
    const std::int64_t now = Clock::now().toSecsSinceEpoch() - ExtraDateUtilities::kReferenceInstant;
    const bool ahead = instant > now;
    const std::int64_t seconds = std::abs(instant - now);
    std::int64_t count = seconds / kMinute;
    const char* text = ahead ? QT_TRANSLATE_N_NOOP("Lumivane", "in %n minute(s)")
                             : QT_TRANSLATE_N_NOOP("Lumivane", "%n minute(s) ago");
    if (seconds >= kDay) {
        count = std::abs(dayOf(instant) - dayOf(now));
        text = ahead ? QT_TRANSLATE_N_NOOP("Lumivane", "in %n day(s)")
                     : QT_TRANSLATE_N_NOOP("Lumivane", "%n day(s) ago");
    } else if (seconds >= kHour) {
        count = seconds / kHour;
        text = ahead ? QT_TRANSLATE_N_NOOP("Lumivane", "in %n hour(s)")
                     : QT_TRANSLATE_N_NOOP("Lumivane", "%n hour(s) ago");
    }
    return Bundle::main()
        .localizedString(text, static_cast<int>(count))
        .replace(QLatin1String("%n"), NumberFormatter::string(static_cast<float>(count), 0));
}
