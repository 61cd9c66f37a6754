// SPDX-License-Identifier: MIT
#include "platform/desktop_entry/DesktopEntry.h"

#include "platform/files/RegularFile.h"

#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>

#include <glib.h>

namespace {

constexpr char kGroup[] = G_KEY_FILE_DESKTOP_GROUP;
constexpr qint64 kLargestFile = 256LL * 1024;

/// A value with the file's escapes. GKeyFile's own leave a blank at the end, which some readers strip.
QString escaped(QString value) {
    for (const auto& [character, escape] : {std::pair{u'\\', "\\\\"}, std::pair{u'\n', "\\n"},
                                            std::pair{u'\r', "\\r"}, std::pair{u'\t', "\\t"}})
        value.replace(QChar(character), QLatin1String(escape));
    if (value.endsWith(u' '))
        value.replace(value.size() - 1, 1, QStringLiteral("\\s"));
    if (value.startsWith(u' '))
        value.replace(0, 1, QStringLiteral("\\s"));
    return value;
}

QString quotedForExec(QString argument) {
    static const QRegularExpression special(QStringLiteral(R"((["`$\\]))"));
    argument.replace(special, QStringLiteral(R"(\\1)"));
    return u'"' + argument.replace(u'%', QStringLiteral("%%")) + u'"';
}

} // namespace

DesktopEntry::DesktopEntry() : file_(g_key_file_new(), &g_key_file_free) {
}

std::optional<DesktopEntry> DesktopEntry::fromBytes(const QByteArray& bytes, QString* error) {
    constexpr auto keepingAll =
        static_cast<GKeyFileFlags>(G_KEY_FILE_KEEP_COMMENTS | G_KEY_FILE_KEEP_TRANSLATIONS);
    DesktopEntry entry;
    g_autoptr(GError) failure = nullptr;
    if (!g_key_file_load_from_data(entry.file_.get(), bytes.constData(), static_cast<gsize>(bytes.size()),
                                   keepingAll, &failure)) {
        *error = QString::fromUtf8(failure->message);
        return std::nullopt;
    }
    if (!g_key_file_has_group(entry.file_.get(), kGroup)) {
        *error = QStringLiteral("it has no group \"Desktop Entry\"");
        return std::nullopt;
    }
    return entry;
}

std::optional<DesktopEntry> DesktopEntry::fromFile(const QString& path, QString* error) {
    const auto bytes = RegularFile::read(path, kLargestFile, error);
    return bytes ? fromBytes(*bytes, error) : std::nullopt;
}

QString DesktopEntry::text(const char* key) const {
    g_autofree char* value = g_key_file_get_string(file_.get(), kGroup, key, nullptr);
    return QString::fromUtf8(value);
}

bool DesktopEntry::flag(const char* key, bool otherwise) const {
    g_autoptr(GError) error = nullptr;
    const bool value = g_key_file_get_boolean(file_.get(), kGroup, key, &error) != FALSE;
    return error ? otherwise : value;
}

QStringList DesktopEntry::list(const char* key) const {
    g_auto(GStrv) values = g_key_file_get_string_list(file_.get(), kGroup, key, nullptr, nullptr);
    QStringList items;
    for (char** value = values; value && *value; ++value)
        items.append(QString::fromUtf8(*value));
    return items;
}

bool DesktopEntry::startsIn(const QStringList& desktops) const {
    const auto isAmong = [&desktops](const QStringList& names) {
        return std::ranges::any_of(names, [&](const QString& name) { return desktops.contains(name); });
    };
    if (text("Type") != u"Application" || text("Exec").isEmpty() || flag("Hidden", false) ||
        !flag("X-GNOME-Autostart-enabled", true) || !flag("X-MATE-Autostart-enabled", true))
        return false;
    if (g_key_file_has_key(file_.get(), kGroup, "OnlyShowIn", nullptr))
        return isAmong(list("OnlyShowIn"));
    return !isAmong(list("NotShowIn"));
}

QString DesktopEntry::namedProgram() const {
    g_auto(GStrv) arguments = nullptr;
    // GLib's own launcher splits Exec with this, and nobody's files are stricter than that.
    if (!g_shell_parse_argv(text("Exec").toUtf8().constData(), nullptr, &arguments, nullptr))
        return {};
    QString name = QString::fromUtf8(arguments[0]);
    name.replace(QLatin1String("%%"), QLatin1String("%"));
    return name;
}

QString DesktopEntry::program() const {
    const QString name = namedProgram();
    const QString path = absoluteProgram(name);
    return path.isEmpty() ? name : path;
}

void DesktopEntry::setProgram(const QString& path) {
    // The first argument, as a shell sees it.
    static const QRegularExpression named(
        QStringLiteral(R"(^(?:[^\s"'\\]++|\\.|"(?:[^"\\]++|\\.)*+"|'[^']*+')*+)"),
        QRegularExpression::DotMatchesEverythingOption);
    const QString exec = text("Exec").trimmed();
    setText("Exec", execFor(path) + exec.sliced(named.match(exec).capturedLength()));
}

void DesktopEntry::setText(const char* key, const QString& value) {
    g_key_file_set_value(file_.get(), kGroup, key, escaped(value).toUtf8().constData());
}

void DesktopEntry::copy(const char* key, const DesktopEntry& from) {
    g_autofree char* value = g_key_file_get_value(from.file_.get(), kGroup, key, nullptr);
    // A line's blank end, a carriage return too, is none of the value.
    if (value)
        g_key_file_set_value(file_.get(), kGroup, key, QByteArray(value).trimmed().constData());
}

QByteArray DesktopEntry::toBytes() const {
    gsize length = 0;
    g_autofree char* bytes = g_key_file_to_data(file_.get(), &length, nullptr);
    return QByteArray(bytes, static_cast<qsizetype>(length));
}

QString execFor(const QString& program) {
    // Where a percent sign is a program's own, GLib and systemd read it right in an argument alone. An
    // argument with an equals sign would be a variable to `env`.
    const bool asArgument = program.contains(u'%') && !program.contains(u'=');
    return (asArgument ? QStringLiteral("env ") : QString()) + quotedForExec(program);
}

QString absoluteProgram(const QString& name) {
    return name.startsWith(u'/') ? name : QStandardPaths::findExecutable(name);
}
