// SPDX-License-Identifier: MIT
#include "app/engine/CMoon.h"

#include "app/engine/CMoonHelper.h"
#include "platform/bundle/Bundle.h"
#include "platform/bundle/PropertyList.h"
#include "platform/locale/TimeZone.h"
#include "platform/log/Log.h"
#include "shared/utilities/classes/values/ExtraDateUtilities.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdlib>
#include <limits>
#include <span>

CMoon gMoon;

namespace {

constexpr double kDegrees = 0.017453292519943295;

/// One periodic term: a coefficient in days, the power of E that it is multiplied with, and the multiples of
/// the four angles in its argument.
struct PeriodicTerm {
    double coefficient;
    int ePower;
    int sunAnomaly;  ///< M
    int moonAnomaly; ///< M'
    int latitude;    ///< F
    int node;        ///< Ω
};

constexpr std::array<PeriodicTerm, 25> kNewMoonTerms{{
    {-0.40720, 0, 0, 1, 0, 0},  {+0.17241, 1, 1, 0, 0, 0},   {+0.01608, 0, 0, 2, 0, 0},
    {+0.01039, 0, 0, 0, 2, 0},  {+0.00739, 1, -1, 1, 0, 0},  {-0.00514, 1, 1, 1, 0, 0},
    {+0.00208, 2, 2, 0, 0, 0},  {-0.00111, 0, 0, 1, -2, 0},  {-0.00057, 0, 0, 1, 2, 0},
    {+0.00056, 1, 1, 2, 0, 0},  {-0.00042, 0, 0, 3, 0, 0},   {+0.00042, 1, 1, 0, 2, 0},
    {+0.00038, 1, 1, 0, -2, 0}, {-0.00024, 1, -1, 2, 0, 0},  {-0.00017, 0, 0, 0, 0, 1},
    {-0.00007, 0, 2, 1, 0, 0},  {+0.00004, 0, 0, 2, -2, 0},  {+0.00004, 0, 3, 0, 0, 0},
    {+0.00003, 0, 1, 1, -2, 0}, {+0.00003, 0, 0, 2, 2, 0},   {-0.00003, 0, 1, 1, 2, 0},
    {+0.00003, 0, -1, 1, 2, 0}, {-0.00002, 0, -1, 1, -2, 0}, {-0.00002, 0, 1, 3, 0, 0},
    {+0.00002, 0, 0, 4, 0, 0},
}};

constexpr std::array<PeriodicTerm, 25> kFullMoonTerms{{
    {-0.40614, 0, 0, 1, 0, 0},  {+0.17302, 1, 1, 0, 0, 0},   {+0.01614, 0, 0, 2, 0, 0},
    {+0.01043, 0, 0, 0, 2, 0},  {+0.00734, 1, -1, 1, 0, 0},  {-0.00515, 1, 1, 1, 0, 0},
    {+0.00209, 2, 2, 0, 0, 0},  {-0.00111, 0, 0, 1, -2, 0},  {-0.00057, 0, 0, 1, 2, 0},
    {+0.00056, 1, 1, 2, 0, 0},  {-0.00042, 0, 0, 3, 0, 0},   {+0.00042, 1, 1, 0, 2, 0},
    {+0.00038, 1, 1, 0, -2, 0}, {-0.00024, 1, -1, 2, 0, 0},  {-0.00017, 0, 0, 0, 0, 1},
    {-0.00007, 0, 2, 1, 0, 0},  {+0.00004, 0, 0, 2, -2, 0},  {+0.00004, 0, 3, 0, 0, 0},
    {+0.00003, 0, 1, 1, -2, 0}, {+0.00003, 0, 0, 2, 2, 0},   {-0.00003, 0, 1, 1, 2, 0},
    {+0.00003, 0, -1, 1, 2, 0}, {-0.00002, 0, -1, 1, -2, 0}, {-0.00002, 0, 1, 3, 0, 0},
    {+0.00002, 0, 0, 4, 0, 0},
}};

constexpr std::array<PeriodicTerm, 25> kQuarterTerms{{
    {-0.62801, 0, 0, 1, 0, 0},  {+0.17172, 1, 1, 0, 0, 0},   {-0.01183, 1, 1, 1, 0, 0},
    {+0.00862, 0, 0, 2, 0, 0},  {+0.00804, 0, 0, 0, 2, 0},   {+0.00454, 1, -1, 1, 0, 0},
    {+0.00204, 2, 2, 0, 0, 0},  {-0.00180, 0, 0, 1, -2, 0},  {-0.00070, 0, 0, 1, 2, 0},
    {-0.00040, 0, 0, 3, 0, 0},  {-0.00034, 1, -1, 2, 0, 0},  {+0.00032, 1, 1, 0, 2, 0},
    {+0.00032, 1, 1, 0, -2, 0}, {-0.00028, 2, 2, 1, 0, 0},   {+0.00027, 1, 1, 2, 0, 0},
    {-0.00017, 0, 0, 0, 0, 1},  {-0.00005, 0, -1, 1, -2, 0}, {+0.00004, 0, 0, 2, 2, 0},
    {-0.00004, 0, 1, 1, 2, 0},  {+0.00004, 0, -2, 1, 0, 0},  {+0.00003, 0, 1, 1, -2, 0},
    {+0.00003, 0, 3, 0, 0, 0},  {+0.00002, 0, 0, 2, -2, 0},  {+0.00002, 0, -1, 1, 2, 0},
    {-0.00002, 0, 1, 3, 0, 0},
}};

/// The additional corrections for all phases: coefficient in days; A = constant + rate k (degrees).
struct AdditionalTerm {
    double coefficient;
    double constant;
    double rate;
};

constexpr std::array<AdditionalTerm, 14> kAdditionalTerms{{
    {0.000325, 299.77, 0.107408},
    {0.000165, 251.88, 0.016321},
    {0.000164, 251.83, 26.651886},
    {0.000126, 349.42, 36.412478},
    {0.000110, 84.66, 18.206239},
    {0.000062, 141.74, 53.303771},
    {0.000060, 207.14, 2.453732},
    {0.000056, 154.84, 7.30686},
    {0.000047, 34.52, 27.261239},
    {0.000042, 207.19, 0.121824},
    {0.000040, 291.34, 1.844379},
    {0.000037, 161.72, 24.198154},
    {0.000035, 239.56, 25.513099},
    {0.000023, 331.55, 3.592518},
}};

/// The directions of an angle's small multiples, so that sums of such cost no further trigonometry.
template <std::size_t Count>
class Multiples {
public:
    explicit Multiples(double angle) {
        const std::complex<double> once = std::polar(1.0, angle);
        directions_[0] = 1.0;
        for (std::size_t i = 1; i < Count; ++i)
            directions_[i] = directions_[i - 1] * once;
    }
    std::complex<double> operator[](int multiple) const {
        const std::complex<double>& direction = directions_[static_cast<std::size_t>(std::abs(multiple))];
        return multiple < 0 ? std::conj(direction) : direction;
    }

private:
    std::array<std::complex<double>, Count> directions_;
};

double radians(double degrees) {
    return std::fmod(degrees, 360.0) * kDegrees;
}

std::span<const PeriodicTerm> termsOfPhase(int phase) {
    if (phase == 0)
        return kNewMoonTerms;
    return phase == 2 ? std::span<const PeriodicTerm>(kFullMoonTerms) : kQuarterTerms;
}

/// The phrases by illumination: below the bound, the waning and the waxing moon name.
struct DescriptorRow {
    double bound;
    MoonName waning;
    MoonName waxing;
};

constexpr std::array<DescriptorRow, 8> kDescriptors{{
    {0.5, MoonName::New, MoonName::New},
    {2.0, MoonName::NearNew, MoonName::PastNew},
    {45.0, MoonName::WaningCrescent, MoonName::WaxingCrescent},
    {49.5, MoonName::PastLastQuarter, MoonName::NearFirstQuarter},
    {50.5, MoonName::AtLastQuarter, MoonName::AtFirstQuarter},
    {55.0, MoonName::NearLastQuarter, MoonName::PastFirstQuarter},
    {98.0, MoonName::WaningGibbous, MoonName::WaxingGibbous},
    {99.5, MoonName::PastFull, MoonName::NearFull},
}};

constexpr std::uint32_t kLastAlmanacName = 12; // counted from the first

/// What keeps `root` from being a table of lunations, or an empty string after filling `lunations`.
QString readTable(const QVariant& root, std::array<tLunation, kLunationCount>& lunations) {
    const QVariantList entries = root.toList();
    if (entries.size() < kLunationCount)
        return QStringLiteral("it holds %1 entries of %2").arg(entries.size()).arg(kLunationCount);
    for (int i = 0; i < kLunationCount; ++i) {
        const QVariantList numbers = entries[i].toList();
        std::array<std::uint32_t, 5> values{};
        for (int j = 0; j < 5; ++j) {
            const QVariant number = numbers.value(j);
            const qulonglong value = number.toULongLong();
            if (number.typeId() != QMetaType::ULongLong || value > std::numeric_limits<std::uint32_t>::max())
                return QStringLiteral("entry %1 has no number at place %2").arg(i).arg(j);
            values[static_cast<std::size_t>(j)] = static_cast<std::uint32_t>(value);
        }
        const auto [newMoon, firstQuarter, fullMoon, lastQuarter, length] = values;
        const tLunation record{static_cast<std::uint32_t>(i),
                               newMoon,
                               firstQuarter,
                               fullMoon,
                               lastQuarter,
                               newMoon + length,
                               length};
        const bool ascends = record.newMoon < record.firstQuarter && record.firstQuarter < record.fullMoon &&
                             record.fullMoon < record.lastQuarter && record.lastQuarter < record.nextNewMoon;
        if (!ascends || (i > 0 && lunations[static_cast<std::size_t>(i - 1)].nextNewMoon != record.newMoon))
            return QStringLiteral("entry %1 does not follow on the one before it").arg(i);
        lunations[static_cast<std::size_t>(i)] = record;
    }
    return {};
}

} // namespace

void CMoon::Init() {
    if (loaded)
        return;
    QString problem;
    const QVariant root =
        PropertyList::read(Bundle::main().resourcePath() + QStringLiteral("/Lunations.plist"), &problem);
    if (problem.isEmpty())
        problem = readTable(root, lunations);
    if (!problem.isEmpty()) {
        logLine(QStringLiteral("The lunation table Lunations.plist can't be used: %1. It is computed.")
                    .arg(problem));
        Compute();
    }
    loaded = true;
}

void CMoon::Compute() {
    std::uint32_t newMoon = GMTTimeOfPhase(0, 0);
    for (int i = 0; i < kLunationCount; ++i) {
        const std::uint32_t next = GMTTimeOfPhase(i + 1, 0);
        lunations[static_cast<std::size_t>(i)] = {
            static_cast<std::uint32_t>(i), newMoon, GMTTimeOfPhase(i, 1), GMTTimeOfPhase(i, 2),
            GMTTimeOfPhase(i, 3),          next,    next - newMoon};
        newMoon = next;
    }
}

const tLunation* CMoon::FindLunationForGMTSeconds(std::uint32_t t) const {
    const auto after = std::ranges::upper_bound(lunations, t, {}, &tLunation::newMoon);
    if (after == lunations.begin())
        return nullptr;
    const tLunation* record = &*(after - 1);
    return t < record->nextNewMoon ? record : nullptr;
}

const tLunation* CMoon::FindLunationAtIndex(int i) const {
    return &lunations[static_cast<std::size_t>(i)];
}

int CMoon::GetLunation(std::uint32_t t) const {
    const tLunation* record = FindLunationForGMTSeconds(t);
    return record ? static_cast<int>(record->lunationIndex) : 0;
}

std::uint32_t CMoon::MoonAgeInSeconds(std::uint32_t t) const {
    const tLunation* record = FindLunationForGMTSeconds(t);
    return record ? t - record->newMoon : 0;
}

void CMoon::GetUpcomingQuarters(std::uint32_t t, std::uint32_t* upcoming) const {
    for (std::size_t j = 0; j < kPhaseInstants.size(); ++j) {
        if (upcoming[j] != 0)
            continue;
        // Each kind of instant ascends with the records.
        const auto next = std::ranges::upper_bound(lunations, t, {}, kPhaseInstants[j]);
        if (next != lunations.end())
            upcoming[j] = (*next).*kPhaseInstants[j];
    }
}

double CMoon::GetPhase(std::uint32_t t) const {
    const tLunation* record = FindLunationForGMTSeconds(t);
    if (!record)
        return 0.0;
    for (std::size_t j = 0; j < 4; ++j) {
        const std::uint32_t from = record->*kPhaseInstants[j];
        const std::uint32_t to = record->*kPhaseInstants[j + 1];
        if (from <= t && t <= to) {
            const double fraction =
                to != from ? static_cast<double>(static_cast<std::int32_t>(t - from)) / (to - from) * 0.25
                           : 0.0;
            const double phase = static_cast<double>(j) * 0.25 + fraction;
            return phase >= 0.0 && phase <= 1.0 ? phase : 0.0;
        }
    }
    return 0.0;
}

double CMoon::IlluminationDisplay(std::uint32_t t) const {
    const double phase = GetPhase(t);
    const double lit = phase <= 0.5 ? phase : 0.5 - (phase - 0.5);
    return (lit + lit) * 100.0;
}

int CMoon::MoonIconIndex(std::uint32_t t) const {
    return IconIndexForPercentage(GetPhase(t) * 100.0);
}

int CMoon::IconIndexForPercentage(double percentage) {
    if (std::isnan(percentage)) {
        logLine(QString::asprintf("Unknown percentage %f in MoonIconIndex.", percentage));
        return 0;
    }
    const double held = std::clamp(percentage, 0.0, 100.0);
    return static_cast<int>(std::ranges::lower_bound(kIconBounds, held) - kIconBounds.begin()) + 1;
}

bool CMoon::IsBlue(std::uint32_t t) const {
    const tLunation* record = FindLunationForGMTSeconds(t);
    if (!record || record->lunationIndex == 0)
        return false;
    tMoonDate fullMoon{};
    tMoonDate previous{};
    CMoonHelper::SecondsToMoonDate(record->fullMoon, fullMoon);
    CMoonHelper::SecondsToMoonDate((record - 1)->fullMoon, previous);
    return fullMoon.month == previous.month;
}

MoonName CMoon::GetDescriptorIndex(std::uint32_t t) const {
    const tLunation* record = FindLunationForGMTSeconds(t);
    if (!record)
        return MoonName::Full;
    const double illumination = IlluminationDisplay(t);
    for (const DescriptorRow& row : kDescriptors) {
        if (illumination < row.bound)
            return record->fullMoon <= t ? row.waning : row.waxing;
    }
    return MoonName::Full;
}

const tLunation* CMoon::LunationOfNextFullMoon(std::uint32_t t) const {
    const auto next = std::ranges::upper_bound(lunations, t, {}, &tLunation::fullMoon);
    return next != lunations.end() ? &*next : nullptr;
}

MoonName CMoon::GetAlmanacIndex(std::uint32_t t) const {
    const tLunation* next = LunationOfNextFullMoon(t);
    if (!FindLunationForGMTSeconds(t) || !next)
        return MoonName::WolfMoon;
    const std::uint32_t count = next->lunationIndex - FirstLunationOfYear(t)->lunationIndex;
    const auto name = static_cast<std::uint32_t>(MoonName::WolfMoon) + count;
    return count > kLastAlmanacName ? MoonName::WolfMoon : static_cast<MoonName>(name);
}

const tLunation* CMoon::FirstLunationOfYear(std::uint32_t t) const {
    // Clocks anywhere differ from GMT's by less than this, which seldom makes a difference to year or full
    // moon; the default zone's rules, which cost far more than the rest, are asked only where it can.
    constexpr std::uint32_t kWidestOffset = 26 * 3600;
    const auto yearAtGMT = [](std::uint32_t s) {
        return Calendar::fields(ExtraDateUtilities::kReferenceInstant + s, 0).year;
    };
    if (const int year = yearAtGMT(t - kWidestOffset); year == yearAtGMT(t + kWidestOffset)) {
        const auto newYear = static_cast<std::uint32_t>(
            Calendar::instant({.year = year, .month = 1, .day = 1}) - ExtraDateUtilities::kReferenceInstant);
        const tLunation* lunation = LunationOfNextFullMoon(newYear - kWidestOffset);
        if (lunation == LunationOfNextFullMoon(newYear + kWidestOffset))
            return lunation;
    }
    const int year = ExtraCalendarDateUtilities::calendarDateWithCarbonSeconds1(t).year;
    const std::int64_t newYear =
        Calendar::instant({.year = year, .month = 1, .day = 1}, TimeZone::defaultTimeZone());
    return LunationOfNextFullMoon(
        ExtraDateUtilities::carbonSecondsGMT(QDateTime::fromSecsSinceEpoch(newYear, QTimeZone::utc())));
}

double CMoon::moonphase(double k, int phase) {
    const double T = k / 1236.85;
    const double T2 = T * T;
    const double T3 = T2 * T;
    const double T4 = T3 * T;
    const double E = 1 - 0.002516 * T - 0.0000074 * T2;
    const double M = radians(2.5534 + 29.10535669 * k - 0.0000218 * T2 - 0.00000011 * T3);
    const double Mp =
        radians(201.5643 + 385.81693528 * k + 0.0107438 * T2 + 0.00001239 * T3 - 0.000000058 * T4);
    const double F =
        radians(160.7108 + 390.67050274 * k - 0.0016341 * T2 - 0.00000227 * T3 + 0.000000011 * T4);
    const double node = radians(124.7746 - 1.5637558 * k + 0.0020691 * T2 + 0.00000215 * T3);

    double jde = 2451550.09765 + 29.530588853 * k + 0.0001337 * T2 - 0.00000015 * T3 + 0.00000000073 * T4;
    const std::array<double, 3> ePowers{1.0, E, E * E};
    const Multiples<4> sun(M);
    const Multiples<5> moon(Mp);
    const Multiples<3> latitude(F);
    for (const PeriodicTerm& term : termsOfPhase(phase)) {
        const std::complex<double> angle =
            term.node != 0 ? std::polar(1.0, node)
                           : sun[term.sunAnomaly] * moon[term.moonAnomaly] * latitude[term.latitude];
        jde += term.coefficient * ePowers[static_cast<std::size_t>(term.ePower)] * angle.imag();
    }
    if (phase == 1 || phase == 3) {
        const double W = 0.00306 - 0.00038 * E * std::cos(M) + 0.00026 * std::cos(Mp) -
                         0.00002 * std::cos(Mp - M) + 0.00002 * std::cos(Mp + M) + 0.00002 * std::cos(2 * F);
        jde += phase == 1 ? W : -W;
    }
    for (const AdditionalTerm& term : kAdditionalTerms) {
        // Only the first of the fourteen angles has a term in T².
        const double square = &term == &kAdditionalTerms.front() ? -0.009173 * T2 : 0.0;
        jde += term.coefficient * std::sin(radians(term.constant + term.rate * k + square));
    }
    return jde;
}

namespace {

constexpr int kLunationOfIndexZero = 953;

double julianDayOfPhase(int lunation, int phase) {
    return CMoon::moonphase((lunation - kLunationOfIndexZero) + phase * 0.25, phase);
}

void fillFromJulianDay(double jd, tMoonDate& date) {
    const double shifted = jd + 0.5;
    const double Z = std::trunc(shifted);
    const double F = shifted - Z;
    double A = Z;
    if (Z >= 2299161) {
        const double alpha = std::trunc((Z - 1867216.25) / 36524.25);
        A = Z + 1 + alpha - std::trunc(alpha / 4);
    }
    const double B = A + 1524;
    const double C = std::trunc((B - 122.1) / 365.25);
    const double D = std::trunc(365.25 * C);
    const double E = std::trunc((B - D) / 30.6001);
    const double dayWithFraction = B - D - std::trunc(30.6001 * E) + F;
    date.day = static_cast<std::int32_t>(dayWithFraction);
    date.month = static_cast<std::int32_t>(E <= 13 ? E - 1 : E - 13);
    date.year = static_cast<std::int32_t>(date.month >= 3 ? C - 4716 : C - 4715);
    const double hours = (dayWithFraction - date.day) * 24;
    date.hour = static_cast<std::int32_t>(hours);
    date.isPM = date.hour > 11 ? 1 : 0;
    const double minutes = (hours - date.hour) * 60;
    date.minute = static_cast<std::int32_t>(minutes);
    date.second = static_cast<std::int32_t>((minutes - date.minute) * 60);
}

} // namespace

std::uint32_t CMoon::TimeOfPhase(int lunation, int phase) {
    tMoonDate date{};
    return JDtoDate(julianDayOfPhase(lunation, phase), &date);
}

std::uint32_t CMoon::GMTTimeOfPhase(int lunation, int phase) {
    tMoonDate date{};
    fillFromJulianDay(julianDayOfPhase(lunation, phase), date);
    return CMoonHelper::MoonDateToGMTSeconds(date);
}

std::uint32_t CMoon::JDtoDate(double jd, tMoonDate* date) {
    fillFromJulianDay(jd, *date);
    return CMoonHelper::MoonDateToSeconds(*date);
}

std::uint32_t CMoon::GMTToZone(std::uint32_t gmtSeconds) {
    return gmtSeconds + static_cast<std::uint32_t>(CMoonHelper::prefZoneOffset());
}
