// SPDX-License-Identifier: MIT
#include "platform/locale/DateFormatter.h"

#include "platform/log/Log.h"

#include <QDateTime>
#include <QTimeZone>

#include <array>
#include <map>
#include <memory>
#include <optional>
#include <tuple>

#include <gio/gio.h>
#include <unicode/dtptngen.h>
#include <unicode/gregocal.h>
#include <unicode/smpdtfmt.h>

namespace {

constexpr char16_t kNarrowNoBreakSpace = 0x202F;

enum class HourCycle { OfLocale, Twelve, TwentyFour };

/// LC_TIME as the C library resolves it: LC_ALL, then LC_TIME, then LANG.
QByteArray timeLocaleName() {
    for (const char* variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        if (QByteArray value = qgetenv(variable); !value.isEmpty())
            return value;
    }
    return "C";
}

/// The script that a modifier stands for ("sr_RS@latin"), empty for one that means something else.
QByteArray scriptOf(const QByteArray& modifier) {
    for (const auto& [name, script] : {std::pair{"latin", "Latn"}, std::pair{"iqtelif", "Latn"},
                                       std::pair{"cyrillic", "Cyrl"}, std::pair{"devanagari", "Deva"}}) {
        if (modifier.compare(name, Qt::CaseInsensitive) == 0)
            return script;
    }
    return {};
}

/// Of LANGUAGE[_TERRITORY][.CODESET][@MODIFIER] the codeset alone says nothing about dates.
QByteArray withoutCodeset(const QByteArray& posixName) {
    const QList<QByteArray> halves = posixName.split('@');
    QByteArray name = halves[0].split('.')[0];
    if (name == "C" || name == "POSIX")
        name = "en_US";
    else if (const QByteArray script = scriptOf(halves.value(1)); !script.isEmpty())
        name.insert(name.indexOf('_') < 0 ? name.size() : name.indexOf('_'), '_' + script);
    else if (halves.size() > 1)
        name += '@' + halves[1];
    return name;
}

QLocale qtLocale() {
    return QLocale(QString::fromLatin1(withoutCodeset(timeLocaleName()).split('@')[0]));
}

icu::Locale icuLocale(const QByteArray& posixName) {
    icu::Locale locale = icu::Locale::createCanonical(withoutCodeset(posixName).constData());
    UErrorCode status = U_ZERO_ERROR;
    locale.setKeywordValue("calendar", "gregorian", status);
    return locale;
}

HourCycle settingOf(const char* schemaId, const char* key) {
    GSettingsSchemaSource* source = g_settings_schema_source_get_default();
    g_autoptr(GSettingsSchema) schema =
        source ? g_settings_schema_source_lookup(source, schemaId, TRUE) : nullptr;
    if (!schema || !g_settings_schema_has_key(schema, key))
        return HourCycle::OfLocale;
    g_autoptr(GSettings) settings = g_settings_new_full(schema, nullptr, nullptr);
    g_autoptr(GVariant) value = g_settings_get_value(settings, key);
    bool is24 = false;
    if (g_variant_is_of_type(value, G_VARIANT_TYPE_BOOLEAN))
        is24 = g_variant_get_boolean(value);
    else if (g_variant_is_of_type(value, G_VARIANT_TYPE_STRING))
        is24 = qstrcmp(g_variant_get_string(value, nullptr), "24h") == 0;
    return is24 ? HourCycle::TwentyFour : HourCycle::Twelve;
}

HourCycle desktopHourCycle() {
    // Read once: opening a settings backend starts a thread and a bus connection.
    static const HourCycle cycle = [] {
        const QByteArray desktop = qgetenv("XDG_CURRENT_DESKTOP").toUpper();
        if (desktop.contains("CINNAMON"))
            return settingOf("org.cinnamon.desktop.interface", "clock-use-24h");
        if (desktop.contains("GNOME") || desktop.contains("UNITY") || desktop.contains("BUDGIE"))
            return settingOf("org.gnome.desktop.interface", "clock-format");
        return HourCycle::OfLocale;
    }();
    return cycle;
}

icu::DateFormat::EStyle icuStyle(DateFormatter::Style style) {
    using icu::DateFormat;
    constexpr std::array styles{DateFormat::kNone, DateFormat::kShort, DateFormat::kMedium,
                                DateFormat::kLong};
    return styles.at(static_cast<std::size_t>(style));
}

/// Puts the desktop's hour cycle in place of the locale's.
void applyHourCycle(icu::DateFormat& format, const icu::Locale& locale, HourCycle cycle, bool withSeconds) {
    auto* simple = dynamic_cast<icu::SimpleDateFormat*>(&format);
    if (!simple || cycle == HourCycle::OfLocale)
        return;
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateTimePatternGenerator> generator(
        icu::DateTimePatternGenerator::createInstance(locale, status));
    if (U_FAILURE(status))
        return;
    const char* skeleton =
        cycle == HourCycle::TwentyFour ? (withSeconds ? "Hms" : "Hm") : (withSeconds ? "hms" : "hm");
    const icu::UnicodeString pattern =
        generator->getBestPattern(icu::UnicodeString::fromUTF8(skeleton), status);
    if (U_SUCCESS(status))
        simple->applyPattern(pattern);
}

/// The formatter for a style. Making one reads ICU's data, so they are kept for as long as locale and cycle
/// stay.
const icu::DateFormat* formatter(DateFormatter::Style dateStyle, DateFormatter::Style timeStyle) {
    using Key = std::tuple<QByteArray, DateFormatter::Style, DateFormatter::Style>;
    static std::map<Key, std::unique_ptr<icu::DateFormat>> made;
    const QByteArray localeName = timeLocaleName();
    auto [place, isNew] = made.try_emplace(Key{localeName, dateStyle, timeStyle});
    if (isNew) {
        // A new format asks for the default zone, and ICU would search the system's zones for it.
        icu::TimeZone::setDefault(*icu::TimeZone::getGMT());
        const icu::Locale locale = icuLocale(localeName);
        const bool isTime = timeStyle != DateFormatter::Style::None;
        place->second.reset(isTime ? icu::DateFormat::createTimeInstance(icuStyle(timeStyle), locale)
                                   : icu::DateFormat::createDateInstance(icuStyle(dateStyle), locale));
        if (!place->second) {
            logLine(
                QStringLiteral("No date format for the locale \"%1\".").arg(QString::fromLatin1(localeName)));
            return nullptr;
        }
        if (isTime)
            applyHourCycle(*place->second, locale, desktopHourCycle(),
                           timeStyle == DateFormatter::Style::Medium);
        // The caller's seconds are already those of the wall clock that is shown.
        place->second->setTimeZone(*icu::TimeZone::getGMT());
    }
    return place->second.get();
}

QString fromICU(icu::UnicodeString text) {
    text.findAndReplace(icu::UnicodeString(kNarrowNoBreakSpace), icu::UnicodeString(u' '));
    return QString(reinterpret_cast<const QChar*>(text.getBuffer()), text.length());
}

/// The letters of a Unicode time pattern as Qt writes them. Quoted words are the same in both.
QString qtTimeFormat(const QString& pattern) {
    QString format;
    bool quoted = false;
    for (const QChar letter : pattern) {
        quoted ^= letter == u'\'';
        if (quoted || !letter.isLetter() || letter.unicode() > 'z' || QStringView(u"Hhms").contains(letter))
            format += letter;
        else if (letter == u'k')
            format += u'H';
        else if (letter == u'K')
            format += u'h';
        else if (QStringView(u"abB").contains(letter) && !format.endsWith(u"Ap"))
            format += u"Ap";
    }
    return format.trimmed();
}

/// The short styles by Qt's tables, which are in memory: to make a format ICU reads 3 MB, which a program in
/// the tray can do without until its panel opens. Nothing where Qt lacks the locale, a letter of its format
/// ("in the morning", "at noon") or the desktop's hour cycle.
std::optional<QString> shortByQt(std::int64_t wall, bool isTime) {
    const QLocale locale = qtLocale();
    QString format =
        isTime ? locale.timeFormat(QLocale::ShortFormat) : locale.dateFormat(QLocale::ShortFormat);
    const bool hasHalves = format.contains(u"AP", Qt::CaseInsensitive);
    const HourCycle cycle = isTime ? desktopHourCycle() : HourCycle::OfLocale;
    if (locale.language() == QLocale::C || format.contains(u'B') ||
        (cycle != HourCycle::OfLocale && (cycle == HourCycle::Twelve) != hasHalves))
        return std::nullopt;
    format.replace(QLatin1String("AP"), QLatin1String("Ap"), Qt::CaseInsensitive); // as the locale writes it
    const auto moment = QDateTime::fromSecsSinceEpoch(wall, QTimeZone::utc());
    return locale.toString(moment, format).replace(kNarrowNoBreakSpace, u' ');
}

QString formatted(std::int64_t wall, DateFormatter::Style dateStyle, DateFormatter::Style timeStyle) {
    using Style = DateFormatter::Style;
    if (dateStyle == Style::Short || timeStyle == Style::Short) {
        if (const auto text = shortByQt(wall, timeStyle == Style::Short))
            return *text;
    }
    const icu::DateFormat* const format = formatter(dateStyle, timeStyle);
    icu::UnicodeString text;
    if (format)
        format->format(static_cast<UDate>(wall) * 1000.0, text);
    return fromICU(text);
}

} // namespace

QString DateFormatter::dateString(std::int64_t wall, Style style) {
    return style == Style::None ? QString() : formatted(wall, style, Style::None);
}

QString DateFormatter::timeString(std::int64_t wall, Style style) {
    return style == Style::None ? QString() : formatted(wall, Style::None, style);
}

QLocale DateFormatter::locale() {
    const QLocale named = qtLocale();
    return named.language() == QLocale::C ? QLocale(QLocale::English, QLocale::UnitedStates) : named;
}

QString DateFormatter::editingFormat() {
    QString date = locale().dateFormat(QLocale::ShortFormat);
    if (!date.contains(u"yyyy"))
        date.replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
    icu::UnicodeString time;
    if (const auto* format =
            dynamic_cast<const icu::SimpleDateFormat*>(formatter(Style::None, Style::Medium)))
        format->toPattern(time);
    return date + QLatin1Char(' ') + qtTimeFormat(fromICU(time));
}
