// SPDX-License-Identifier: MIT
#include "platform/locale/TimeZone.h"

#include "platform/locale/Clock.h"
#include "platform/log/Log.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <tuple>

namespace {

/// The rule that the C library takes for a zone with daylight saving and no rule of its own.
constexpr char kDefaultRule[] = ",M3.2.0,M11.1.0";

/// The name that a zone's file has in the zone folder; empty for a file elsewhere. The two other collections
/// there, with and without leap seconds, hold the same zones.
QByteArray nameOfFile(const QString& path) {
    const QString folder = TimeZone::zoneInfoFolder() + u'/';
    for (const QString& file : {QDir::cleanPath(path), QFileInfo(path).canonicalFilePath()}) {
        if (!file.startsWith(folder))
            continue;
        QString name = file.mid(folder.size());
        for (const QLatin1String collection : {QLatin1String("posix/"), QLatin1String("right/")}) {
            if (name.startsWith(collection))
                name.remove(0, collection.size());
        }
        return name.toLatin1();
    }
    return {};
}

/// The rule for the present and the future, which is a zone file's last line.
QByteArray ruleInFile(const QString& path) {
    constexpr qint64 kLargestZoneFile = 1 << 20;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = file.read(kLargestZoneFile).trimmed();
    return bytes.startsWith("TZif") ? bytes.mid(bytes.lastIndexOf('\n') + 1) : QByteArray();
}

/// The zone that a value of `TZ` names, by the C library's rules; an invalid one when it names none.
QTimeZone zoneNamed(QByteArray value) {
    if (value.startsWith(':'))
        value.remove(0, 1);
    if (value.isEmpty())
        return QTimeZone::utc();
    const QString path = QDir(TimeZone::zoneInfoFolder()).filePath(QFile::decodeName(value));
    if (QFileInfo(path).isFile()) { // not a pipe or a device, which would keep the program waiting
        const QTimeZone named(nameOfFile(path));
        return named.isValid() ? named : QTimeZone(ruleInFile(path));
    }
    static const QRegularExpression posix(
        QStringLiteral("^(<[^>]*>|[A-Za-z]{3,})[+-]?[0-9:]+((<[^>]*>|[A-Za-z]{3,})([+-]?[0-9:]+)?)?(,.*)?$"));
    const auto match = posix.match(QString::fromLatin1(value));
    if (!match.hasMatch()) // a name that Qt knows, though there is none in a TZDIR
        return value.contains('/') ? QTimeZone(value) : QTimeZone();
    const bool savesDaylight = match.hasCaptured(2);
    const bool hasRule = match.capturedLength(5) > 1;
    if (savesDaylight && !hasRule)
        value = value.left(match.capturedEnd(2)) + kDefaultRule;
    return QTimeZone(value);
}

} // namespace

QString TimeZone::zoneInfoFolder() {
    const QString named = qEnvironmentVariable("TZDIR");
    return named.isEmpty() ? QStringLiteral("/usr/share/zoneinfo") : QDir::cleanPath(named);
}

QTimeZone TimeZone::systemTimeZone() {
    const QByteArray named = qgetenv("TZ");
    // A refresh asks for it some hundred times, and it may be found through many links.
    const auto source = std::tuple(Clock::holdNumber(), named.isNull(), named, zoneInfoFolder());
    static auto lastSource = source;
    static QTimeZone lastZone;
    if (Clock::holdNumber() == 0 || source != lastSource || !lastZone.isValid()) {
        lastSource = source;
        lastZone = named.isNull() ? QTimeZone::systemTimeZone() : zoneNamed(named);
    }
    if (lastZone.isValid())
        return lastZone;
    static QByteArray lastReported;
    if (lastReported != named || lastReported.isNull()) {
        lastReported = named.isNull() ? QByteArray("") : named;
        logLine(QStringLiteral("The system's time zone \"%1\" is not known; using UTC.")
                    .arg(QString::fromLocal8Bit(named)));
    }
    lastZone = QTimeZone::utc();
    return lastZone;
}

QString TimeZone::name(const QTimeZone& zone) {
    return QString::fromLatin1(zone.id());
}

int TimeZone::secondsFromGMT(const QTimeZone& zone) {
    return zone.offsetFromUtc(Clock::now());
}

bool TimeZone::isDaylightSavingTime(const QTimeZone& zone) {
    const QDateTime now = Clock::now();
    const QDateTime newYear(QDate(now.date().year(), 1, 1), QTime(0, 0), QTimeZone::utc());
    int smallest = zone.offsetFromUtc(newYear);
    const auto changes = zone.transitions(newYear, newYear.addYears(1));
    for (const QTimeZone::OffsetData& change : changes)
        smallest = std::min(smallest, change.offsetFromUtc);
    return zone.offsetFromUtc(now) > smallest;
}
