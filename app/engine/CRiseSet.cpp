// SPDX-License-Identifier: MIT
#include "app/engine/CRiseSet.h"

#include <cmath>
#include <cstddef>
#include <cstring>
#include <vector>

namespace {

constexpr double P2 = 6.283185307; // the method's own digits
constexpr double kRadians = 0.0174532925199433;
constexpr double kDegrees = 360.0 / P2;
constexpr double kHours = 48.0 / P2;
constexpr double kCosEps = 0.91748;
constexpr double kSinEps = 0.39778;
constexpr double kSiderealRate = 1.0027379093;
constexpr double kArc = 206264.8062;
constexpr double kArcPerRevolution = 1296000.0;
constexpr double kJ2000 = 51544.5;

/// Sines of the target altitudes by object: the Moon's +8', the Sun's -50', nautical twilight's -12°.
constexpr std::array<double, 4> sinh0{0.0, 0.002327103568950269, -0.01454389765158266, -0.20791169081775937};

constexpr std::size_t kBlockBytes = offsetof(tRiseSetCalcParamBlock, year) + sizeof(std::int32_t);
static_assert(kBlockBytes == 36);

/// An angle by its cosine and sine, so that sums of angles cost no further trigonometry.
struct Angle {
    double cosine;
    double sine;

    explicit Angle(double radians) : cosine(std::cos(radians)), sine(std::sin(radians)) {}
    Angle(double c, double s) : cosine(c), sine(s) {}
    friend Angle operator+(const Angle& a, const Angle& b) {
        return {a.cosine * b.cosine - a.sine * b.sine, a.sine * b.cosine + a.cosine * b.sine};
    }
    friend Angle operator-(const Angle& a, const Angle& b) {
        return {a.cosine * b.cosine + a.sine * b.sine, a.sine * b.cosine - a.cosine * b.sine};
    }
};

double sin(const Angle& angle) {
    return angle.sine;
}

/// A direction in the equator's frame: x to the equinox, z to the north pole.
struct Direction {
    double x;
    double y;
    double z;
};

/// What the positions at one moment are computed from.
struct Arguments {
    double t;       ///< Julian centuries since J2000
    Angle l;        ///< the Moon's mean anomaly
    Angle ls;       ///< the Sun's mean anomaly
    Angle d;        ///< the Moon's elongation from the Sun
    Angle f;        ///< the Moon's distance from its ascending node
    Angle meridian; ///< local sidereal time

    friend Arguments operator+(const Arguments& a, const Arguments& b) {
        return {a.t + b.t, a.l + b.l, a.ls + b.ls, a.d + b.d, a.f + b.f, a.meridian + b.meridian};
    }
};

/// An angle that grows evenly: in revolutions, of t.
struct EvenAngle {
    double atJ2000;
    double perCentury;

    double revolutions(double t) const { return CRiseSet::FRAC(atJ2000 + perCentury * t); }
    Angle at(double t) const { return Angle(P2 * revolutions(t)); }
    Angle in(double t) const { return Angle(P2 * perCentury * t); }
};

constexpr EvenAngle kMoonsLongitude{0.606433, 1336.855225};
constexpr EvenAngle kMoonsAnomaly{0.374897, 1325.552410};
constexpr EvenAngle kSunsAnomaly{0.993133, 99.997361};
constexpr EvenAngle kElongation{0.827361, 1236.853086};
constexpr EvenAngle kNodeDistance{0.259086, 1342.227825};

Arguments argumentsAt(double t, double meridian) {
    return {
        t, kMoonsAnomaly.at(t), kSunsAnomaly.at(t), kElongation.at(t), kNodeDistance.at(t), Angle(meridian)};
}

/// How far the arguments go in `hour` hours, 0 to 24. Their rates are constant, so that a day's hours need
/// the trigonometry of one moment.
const Arguments& advanceIn(int hour) {
    static const auto table = [] {
        std::vector<Arguments> advances;
        for (int i = 0; i <= 24; ++i) {
            const double t = i / 24.0 / 36525.0;
            advances.push_back({t, kMoonsAnomaly.in(t), kSunsAnomaly.in(t), kElongation.in(t),
                                kNodeDistance.in(t), Angle(15.0 * kRadians * kSiderealRate * i)});
        }
        return advances;
    }();
    return table[static_cast<std::size_t>(hour)];
}

Direction sunDirection(const Arguments& at) {
    const double dl = 6893.0 * sin(at.ls) + 72.0 * sin(at.ls + at.ls);
    const double l = P2 * CRiseSet::FRAC(0.7859453 + kSunsAnomaly.revolutions(at.t) +
                                         (6191.2 * at.t + dl) / kArcPerRevolution);
    const double sl = std::sin(l);
    return {std::cos(l), kCosEps * sl, kSinEps * sl};
}

Direction moonDirection(const Arguments& at) {
    const auto& [t, l, ls, d, f, meridian] = at;
    const Angle l2 = l + l;
    const Angle d2 = d + d;
    const Angle f2 = f + f;

    const double dl = 22640.0 * sin(l) - 4586.0 * sin(l - d2) + 2370.0 * sin(d2) + 769.0 * sin(l2) -
                      668.0 * sin(ls) - 412.0 * sin(f2) - 212.0 * sin(l2 - d2) - 206.0 * sin(l + ls - d2) +
                      192.0 * sin(l + d2) - 165.0 * sin(ls - d2) - 125.0 * sin(d) - 110.0 * sin(l + ls) +
                      148.0 * sin(l - ls) - 55.0 * sin(f2 - d2);
    const double s = P2 * kNodeDistance.revolutions(t) + (dl + 412.0 * sin(f2) + 541.0 * sin(ls)) / kArc;
    const Angle h = f - d2;
    const double n = -526.0 * sin(h) + 44.0 * sin(l + h) - 31.0 * sin(h - l) - 23.0 * sin(ls + h) +
                     11.0 * sin(h - ls) - 25.0 * sin(f - l2) + 21.0 * sin(f - l);
    const double lm = P2 * CRiseSet::FRAC(kMoonsLongitude.revolutions(t) + dl / kArcPerRevolution);
    const double bm = (18520.0 * std::sin(s) + n) / kArc;

    const double cb = std::cos(bm);
    const double v = cb * std::sin(lm);
    const double w = std::sin(bm);
    return {cb * std::cos(lm), kCosEps * v - kSinEps * w, kSinEps * v + kCosEps * w};
}

/// Sine of the altitude; cphi, sphi: cosine and sine of the latitude. The right ascension's cosine and sine
/// come from the tangent of its half, with no way through the angle and back; as in equatorial() that tangent
/// has what the constants of the obliquity lack to a unit vector in it, which tells near 12 hours.
double sinAltitude(std::int32_t object, const Arguments& at, double cphi, double sphi) {
    const auto [x, y, z] = object == CRiseSet::kRiseSetMoon ? moonDirection(at) : sunDirection(at);
    const double rho = std::sqrt(1.0 - z * z);
    const double u = x + rho;
    const double scale = rho / (u * u + y * y);
    const double cosTau = (u * u - y * y) * at.meridian.cosine + 2.0 * u * y * at.meridian.sine;
    return cphi * scale * cosTau + sphi * z;
}

/// lambda: longitude in degrees, west positive.
Arguments argumentsAtPlace(double mjd, double lambda) {
    return argumentsAt((mjd - kJ2000) / 36525.0, 15.0 * kRadians * CRiseSet::LMST(mjd, lambda));
}

/// Right ascension in hours and declination in degrees.
void equatorial(const Direction& direction, double* ra, double* dec) {
    const double rho = std::sqrt(1.0 - direction.z * direction.z);
    *dec = kDegrees * std::atan(direction.z / rho);
    *ra = kHours * std::atan(direction.y / (direction.x + rho));
    if (*ra < 0.0)
        *ra += 24.0;
}

} // namespace

CRiseSet::CRiseSet() {
    // A request that no caller makes, so that the first one is computed.
    cached_.longitude = cached_.latitude = cached_.zoneHours = -1.0;
    cached_.day = cached_.month = cached_.year = -1;
}

bool CRiseSet::BlocksAreEqual(const tRiseSetCalcParamBlock& a, const tRiseSetCalcParamBlock& b) {
    return std::memcmp(&a, &b, kBlockBytes) == 0;
}

void CRiseSet::GetMoonInfo(tRiseSetPair& pair) const {
    pair = moon_;
}

void CRiseSet::GetSunInfo(tRiseSetPair& pair) const {
    pair = sun_;
}

void CRiseSet::GetTwilightInfo(tRiseSetPair& pair) const {
    pair = twilight_;
}

double CRiseSet::SN(double degrees) {
    return std::sin(degrees * kRadians);
}

double CRiseSet::CS(double degrees) {
    return std::cos(degrees * kRadians);
}

double CRiseSet::FRAC(double x) {
    const double fraction = x - std::trunc(x);
    return fraction < 0.0 ? fraction + 1.0 : fraction;
}

void CRiseSet::WHM(double hours, int* hour, int* minute) {
    const double rounded = std::trunc(hours * 60.0 + 0.5) / 60.0;
    *hour = static_cast<int>(rounded);
    // NOLINTNEXTLINE(bugprone-incorrect-roundings): never negative
    *minute = static_cast<int>((rounded - *hour) * 60.0 + 0.5);
}

double CRiseSet::MJD(std::int32_t day, std::int32_t month, std::int32_t year, double hour) {
    const double a = 10000.0 * year + 100.0 * month + day;
    double m = month;
    double y = year;
    if (month <= 2) {
        m += 12;
        y -= 1;
    }
    const double b = a <= 15821004.1 ? std::trunc((y + 4716) / 4) - 1181
                                     : std::trunc(y / 400) - std::trunc(y / 100) + std::trunc(y / 4);
    return 365.0 * y - 679004.0 + b + std::trunc(30.6001 * (m + 1)) + day + hour / 24.0;
}

double CRiseSet::LMST(double mjd, double lambda) {
    const double mjd0 = std::trunc(mjd);
    const double ut = (mjd - mjd0) * 24.0;
    const double t = (mjd0 - kJ2000) / 36525.0;
    const double gmst =
        6.697374558 + kSiderealRate * ut + (8640184.812866 + (0.093104 - 6.2e-6 * t) * t) * t / 3600.0;
    return 24.0 * FRAC((gmst - lambda / 15.0) / 24.0);
}

void CRiseSet::MINI_SUN(double t, double* ra, double* dec) {
    equatorial(sunDirection(argumentsAt(t, 0.0)), ra, dec);
}

void CRiseSet::MINI_MOON(double t, double* ra, double* dec) {
    equatorial(moonDirection(argumentsAt(t, 0.0)), ra, dec);
}

double CRiseSet::SIN_ALT(std::int32_t object, double mjd0, double hour, double lambda, double cphi,
                         double sphi) {
    return sinAltitude(object, argumentsAtPlace(mjd0 + hour / 24.0, lambda), cphi, sphi);
}

void CRiseSet::QUAD(double yMinus, double y0, double yPlus, double* xe, double* ye, double* root1,
                    double* root2, std::int32_t* nRoots) {
    *nRoots = 0;
    const double a = 0.5 * (yMinus + yPlus) - y0;
    const double b = 0.5 * (yPlus - yMinus);
    const double c = y0;
    *xe = -b / (2.0 * a);
    *ye = (a * *xe + b) * *xe + c;
    const double discriminant = b * b - 4.0 * a * c;
    if (discriminant < 0.0)
        return;
    const double dx = 0.5 * std::sqrt(discriminant) / std::abs(a);
    *root1 = *xe - dx;
    *root2 = *xe + dx;
    *nRoots = (std::abs(*root1) <= 1.0 ? 1 : 0) + (std::abs(*root2) <= 1.0 ? 1 : 0);
    if (*root1 < -1.0)
        *root1 = *root2;
}

/// Sines of one body's altitude at the whole hours of a day, each computed when it is first asked for.
class CRiseSet::AltitudeSamples {
public:
    AltitudeSamples(tObject body, const tRiseSetCalcParamBlock& block)
        : body_(body), cphi_(CS(block.latitude)), sphi_(SN(block.latitude)),
          midnight_(argumentsAtPlace(MJD(block.day, block.month, block.year, 0.0) - block.zoneHours / 24.0,
                                     -block.longitude)) {}

    /// `hour` is 0 to 24.
    double at(int hour) {
        const auto i = static_cast<std::size_t>(hour);
        if (!known_[i]) {
            known_[i] = true;
            sines_[i] = sinAltitude(body_, midnight_ + advanceIn(hour), cphi_, sphi_);
        }
        return sines_[i];
    }

private:
    tObject body_;
    double cphi_;
    double sphi_;
    Arguments midnight_;
    std::array<double, 25> sines_{};
    std::array<bool, 25> known_{};
};

tRiseSetPair CRiseSet::Search(tObject object, AltitudeSamples& samples) {
    const auto altitude = [&](int hour) {
        return samples.at(hour) - sinh0[static_cast<std::size_t>(object)];
    };
    double yMinus = altitude(0);
    const bool above = yMinus > 0.0;
    bool rise = false;
    bool set = false;
    double riseTime = 0.0;
    double setTime = 0.0;
    const auto foundRise = [&](double time) {
        riseTime = time;
        rise = true;
    };
    const auto foundSet = [&](double time) {
        setTime = time;
        set = true;
    };

    for (int hour = 1; hour < 25 && !(rise && set); hour += 2) {
        const double yPlus = altitude(hour + 1);
        double xe = 0.0;
        double ye = 0.0;
        double root1 = 0.0;
        double root2 = 0.0;
        std::int32_t nRoots = 0;
        QUAD(yMinus, altitude(hour), yPlus, &xe, &ye, &root1, &root2, &nRoots);
        if (nRoots == 1) {
            if (yMinus < 0.0)
                foundRise(hour + root1);
            else
                foundSet(hour + root1);
        } else if (nRoots == 2) {
            foundRise(hour + (ye < 0.0 ? root2 : root1));
            foundSet(hour + (ye < 0.0 ? root1 : root2));
        }
        yMinus = yPlus;
    }

    tRiseSetPair pair{};
    if (rise)
        WHM(riseTime, &pair.riseHour, &pair.riseMinute);
    if (set)
        WHM(setTime, &pair.setHour, &pair.setMinute);
    if (rise && set)
        pair.state = kRiseSetBoth;
    else if (set)
        pair.state = kRiseSetNoRise;
    else if (rise)
        pair.state = kRiseSetNoSet;
    else if (object == kRiseSetTwilight)
        pair.state = above ? kRiseSetAlwaysBright : kRiseSetAlwaysDark;
    else
        pair.state = above ? kRiseSetAlwaysAbove : kRiseSetAlwaysBelow;
    return pair;
}

void CRiseSet::Calculate(const tRiseSetCalcParamBlock& block) {
    if (BlocksAreEqual(block, cached_))
        return;
    cached_ = block;
    AltitudeSamples moon(kRiseSetMoon, block);
    moon_ = Search(kRiseSetMoon, moon);
    // The Sun serves two searches, which differ in the target altitude alone.
    AltitudeSamples sun(kRiseSetSun, block);
    sun_ = Search(kRiseSetSun, sun);
    twilight_ = Search(kRiseSetTwilight, sun);
}
