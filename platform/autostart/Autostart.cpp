// SPDX-License-Identifier: MIT
#include "platform/autostart/Autostart.h"

#include "platform/desktop_entry/DesktopEntry.h"
#include "platform/files/ConfigFolder.h"
#include "platform/log/Log.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <cerrno>
#include <optional>
#include <vector>

#include <glib.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr char kPathKey[] = "X-LoginItem-Path";
constexpr char kHiddenKey[] = "X-LoginItem-Hidden";
constexpr char kPositionKey[] = "X-LoginItem-Position";
constexpr quint64 kLargestPosition = 1'000'000'000'000;

struct Entry {
    Autostart::Item item;
    bool isStarted;                  ///< by this desktop
    std::optional<quint64> position; ///< of entries that were added here
};

std::error_code systemError(int number) {
    return {number, std::system_category()};
}

QString folderPath() {
    return configFolder() + QStringLiteral("/autostart");
}

QString filePath(const QString& file) {
    return folderPath() + u'/' + file;
}

void reportOnce(const QString& file, const QString& reason) {
    static QSet<QString> reported;
    if (reported.contains(file))
        return;
    reported.insert(file);
    logLine(QStringLiteral("%1 is left out of the login items: %2.").arg(file, reason));
}

Entry entryOf(const QString& file, const DesktopEntry& desktopEntry) {
    const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':', Qt::SkipEmptyParts);
    Entry entry{{file, desktopEntry.text(kPathKey), desktopEntry.flag(kHiddenKey, false)},
                desktopEntry.startsIn(desktops),
                std::nullopt};
    if (entry.item.path.startsWith(u'/')) {
        const quint64 position = desktopEntry.text(kPositionKey).toULongLong();
        entry.position = position < kLargestPosition ? position : 0;
    } else {
        const QString program = desktopEntry.program();
        entry.item.path = program.startsWith(u'/') ? program : filePath(file);
        entry.item.hidden = false;
    }
    return entry;
}

/// All entries of the folder in the list's order, the ones that aren't started too.
std::vector<Entry> allEntries() {
    const QDir folder(folderPath());
    const QStringList files = folder.entryList(QDir::AllEntries | QDir::System, QDir::Name);
    std::vector<Entry> entries;
    for (const QString& file : files) {
        if (!file.endsWith(u".desktop"))
            continue;
        QString error;
        if (const auto desktopEntry = DesktopEntry::fromFile(filePath(file), &error))
            entries.push_back(entryOf(file, *desktopEntry));
        else
            reportOnce(filePath(file), error);
    }
    std::ranges::stable_sort(entries, {}, &Entry::position); // none comes before any
    return entries;
}

/// Has an entry start `program`, where it leaves it to the login's PATH to find one; whether that changed it.
/// A login knows fewer folders of programs than a shell, and where it finds none it says nothing.
bool nameProgramWhole(DesktopEntry* entry, const QString& program) {
    const auto isRelative = [](const QString& path) { return !path.isEmpty() && !path.startsWith(u'/'); };
    const QString tried = entry->text("TryExec");
    const bool startsByName = isRelative(entry->namedProgram());
    if (!program.startsWith(u'/') || (!startsByName && !isRelative(tried)))
        return false;
    if (startsByName)
        entry->setProgram(program);
    if (isRelative(tried)) {
        const QString found = absoluteProgram(tried);
        entry->setText("TryExec", found.isEmpty() ? program : found);
    }
    return true;
}

std::optional<DesktopEntry> autostartOfEntry(const QString& path) {
    QString error;
    const auto source = DesktopEntry::fromFile(path, &error);
    if (!source || source->text("Type") != u"Application" || source->text("Exec").isEmpty()) {
        logLine(QStringLiteral("%1 starts no program, and is no login item. %2").arg(path, error));
        return std::nullopt;
    }
    DesktopEntry entry;
    for (const char* key : {"Type", "Name", "Icon", "Exec", "TryExec", "Path", "Terminal"})
        entry.copy(key, *source);
    nameProgramWhole(&entry, source->program());
    return entry;
}

DesktopEntry autostartOfProgram(const QString& path) {
    DesktopEntry entry;
    entry.setText("Type", QStringLiteral("Application"));
    entry.setText("Name", QFileInfo(path).fileName());
    entry.setText("Exec", execFor(path));
    entry.setText("TryExec", path);
    return entry;
}

std::optional<DesktopEntry> autostartEntry(const QString& path, bool hidden, quint64 position) {
    auto entry =
        path.endsWith(u".desktop") ? autostartOfEntry(path) : std::optional(autostartOfProgram(path));
    if (!entry)
        return std::nullopt;
    entry->setText(kPathKey, path);
    entry->setText(kPositionKey, QString::number(position));
    if (hidden)
        entry->setText(kHiddenKey, QStringLiteral("true"));
    // A program that lives in the tray wants the tray to be there first.
    entry->setText("X-LXQt-Need-Tray", QStringLiteral("true"));
    entry->setText("X-KDE-autostart-after", QStringLiteral("panel"));
    entry->setText("X-GNOME-Autostart-Delay", QStringLiteral("2"));
    return entry;
}

/// A name for a new entry that nothing in the folder has, a dangling link neither.
QString freeFileName(const QString& path) {
    const auto isUnfit = [](QChar c) {
        return c.unicode() > 127 || !(c.isLetterOrNumber() || c == u'.' || c == u'_' || c == u'-');
    };
    QString stem = QFileInfo(path).fileName();
    if (stem.endsWith(u".desktop"))
        stem.chop(8);
    // Long names leave room for a number; a leading dot would hide the entry from some sessions.
    std::ranges::replace_if(stem, isUnfit, QChar(u'_'));
    stem.truncate(100);
    if (stem.isEmpty() || stem.startsWith(u'.'))
        stem.prepend(QStringLiteral("item"));
    QString file = stem + QStringLiteral(".desktop");
    struct stat status {};
    for (int i = 2; lstat(QFile::encodeName(filePath(file)).constData(), &status) == 0; ++i)
        file = QStringLiteral("%1-%2.desktop").arg(stem).arg(i);
    return file;
}

/// GLib tells a kind of its own; the number of the system that it stands for.
int systemNumber(const GError& error) {
    constexpr int kLastNumber = 133;
    for (int number = 1; error.code != G_FILE_ERROR_FAILED && number <= kLastNumber; ++number) {
        if (g_file_error_from_errno(number) == error.code)
            return number;
    }
    return EIO;
}

/// Writes an entry whole or not at all.
std::error_code writeEntry(const QString& file, const QByteArray& bytes) {
    constexpr auto kWhole =
        static_cast<GFileSetContentsFlags>(G_FILE_SET_CONTENTS_CONSISTENT | G_FILE_SET_CONTENTS_DURABLE);
    g_autoptr(GError) error = nullptr;
    if (g_file_set_contents_full(QFile::encodeName(filePath(file)).constData(), bytes.constData(),
                                 bytes.size(), kWhole, 0600, &error))
        return {};
    return systemError(systemNumber(*error));
}

std::error_code makeFolder() {
    const QByteArray folder = QFile::encodeName(folderPath());
    return g_mkdir_with_parents(folder.constData(), 0700) == 0 ? std::error_code() : systemError(errno);
}

} // namespace

QList<Autostart::Item> Autostart::items() {
    QList<Item> list;
    for (const Entry& entry : allEntries()) {
        if (entry.isStarted)
            list.append(entry.item);
    }
    return list;
}

std::error_code Autostart::append(const QString& path, bool hidden) {
    if (const std::error_code error = makeFolder())
        return error;
    const std::vector<Entry> entries = allEntries();
    const quint64 position = entries.empty() ? 1 : entries.back().position.value_or(0) + 1;
    const auto entry = autostartEntry(path, hidden, position);
    if (!entry)
        return std::make_error_code(std::errc::invalid_argument);
    const auto earlier = std::ranges::find_if(
        entries, [&](const Entry& each) { return each.position && each.item.path == path; });
    return writeEntry(earlier == entries.end() ? freeFileName(path) : earlier->item.file, entry->toBytes());
}

void Autostart::mend(const QString& path) {
    QString error;
    const auto source = DesktopEntry::fromFile(path, &error);
    for (const Entry& entry : allEntries()) {
        if (!source || !entry.position || entry.item.path != path)
            continue;
        auto added = DesktopEntry::fromFile(filePath(entry.item.file), &error);
        if (!added || !nameProgramWhole(&*added, source->program()))
            continue;
        const std::error_code failure = writeEntry(entry.item.file, added->toBytes());
        logLine(failure ? QStringLiteral("%1 can't be made to start %2 by its whole path (%3).")
                              .arg(filePath(entry.item.file), source->program(),
                                   QString::fromStdString(failure.message()))
                        : QStringLiteral("%1 starts %2 by its whole path now.")
                              .arg(filePath(entry.item.file), source->program()));
    }
}

std::error_code Autostart::remove(const Item& item) {
    const bool removed = unlink(QFile::encodeName(filePath(item.file)).constData()) == 0;
    return removed ? std::error_code() : systemError(errno);
}
