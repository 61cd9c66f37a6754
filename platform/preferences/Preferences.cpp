// SPDX-License-Identifier: MIT
#include "platform/preferences/Preferences.h"

#include "platform/files/ConfigFolder.h"
#include "platform/files/RegularFile.h"
#include "platform/locale/NumberFormatter.h"
#include "platform/log/Log.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStringDecoder>

#include <cmath>
#include <optional>
#include <utility>

#include <fcntl.h>
#include <glib.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr qint64 kLargestFile = 1 << 20;

bool isText(const QByteArray& bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString decoded = decoder(bytes);
    return !decoder.hasError() && !decoded.contains(QChar::Null);
}

/// Moves a file out of the way under a name that is free; the new name, or nothing when it can't be moved.
QString keepAside(const QString& path) {
    for (int number = 1; number < 1000; ++number) {
        const QString aside = number == 1 ? path + QStringLiteral(".damaged")
                                          : QStringLiteral("%1.damaged-%2").arg(path).arg(number);
        if (!QFileInfo::exists(aside))
            return QFile::rename(path, aside) ? aside : QString();
    }
    return {};
}

/// Whether something stands in the file's place that must not even be opened as one.
bool isOfNoUse(const QString& path) {
    return RegularFile::isOtherThing(path) || QFileInfo(path).size() > kLargestFile;
}

/// Takes from all others what they may do with a file or folder.
void narrow(const QString& path) {
    constexpr mode_t kOthers = S_IRWXG | S_IRWXO;
    const QByteArray name = QFile::encodeName(path);
    struct stat status {};
    if (stat(name.constData(), &status) == 0 && (status.st_mode & kOthers) != 0)
        chmod(name.constData(), status.st_mode & 07777 & ~kOthers);
}

/// The preferences tell where the user lives: the folder and the file are for nobody else. QSettings keeps
/// the permissions of the file that it writes anew, but makes one that everybody may read.
void makePrivate(const QString& path) {
    const QString folder = QFileInfo(path).absolutePath();
    g_mkdir_with_parents(QFile::encodeName(folder).constData(), S_IRWXU);
    narrow(folder);
    const int made =
        open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (made >= 0)
        close(made);
    else if (!RegularFile::isOtherThing(path))
        narrow(path);
}

std::optional<bool> toBool(const QString& text) {
    for (const char* yes : {"true", "yes", "1"}) {
        if (text.compare(QLatin1String(yes), Qt::CaseInsensitive) == 0)
            return true;
    }
    for (const char* no : {"false", "no", "0"}) {
        if (text.compare(QLatin1String(no), Qt::CaseInsensitive) == 0)
            return false;
    }
    return std::nullopt;
}

std::optional<float> toFloat(const QString& text) {
    bool ok = false;
    const float value = text.toFloat(&ok);
    return ok && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<int> toInteger(const QString& text) {
    bool ok = false;
    const int value = text.toInt(&ok);
    return ok ? std::optional(value) : std::nullopt;
}

} // namespace

Preferences* Preferences::standard() {
    static Preferences shared(configFolder() + QStringLiteral("/lumivane/lumivane.conf"));
    return &shared;
}

Preferences::Preferences(const QString& path) {
    openFile(path);
}

Preferences::~Preferences() = default;

void Preferences::openFile(const QString& path) {
    narrow(QFileInfo(path).absolutePath());
    if (!RegularFile::isOtherThing(path))
        narrow(path);
    QString error;
    const auto bytes = RegularFile::read(path, kLargestFile, &error);
    bool damaged = bytes ? !isText(*bytes) : isOfNoUse(path);
    if (!bytes && !damaged && QFileInfo::exists(path))
        logLine(
            QStringLiteral("The preferences in %1 can't be read (%2); the defaults serve.").arg(path, error));
    if (!damaged) {
        settings_ = std::make_unique<QSettings>(path, QSettings::IniFormat);
        damaged = settings_->status() == QSettings::FormatError;
    }
    if (!damaged)
        return;
    settings_.reset();
    const QString aside = keepAside(path);
    if (aside.isEmpty()) {
        // Without a place to keep it the user's file must not be written over: settings go to a file of their
        // own.
        logLine(QStringLiteral("The preferences in %1 are damaged and can't be moved; the defaults serve.")
                    .arg(path));
        settings_ = std::make_unique<QSettings>(path + QStringLiteral(".new"), QSettings::IniFormat);
        return;
    }
    logLine(QStringLiteral("The preferences in %1 are damaged; kept as %2, the defaults serve.")
                .arg(path, aside));
    settings_ = std::make_unique<QSettings>(path, QSettings::IniFormat);
}

void Preferences::prepareFile() {
    const QString path = settings_->fileName();
    // QSettings would wait for a pipe in the place of its file, or of the lock beside it.
    for (const QString& file : {path, path + QStringLiteral(".lock")}) {
        if (RegularFile::isOtherThing(file))
            logLine(QStringLiteral("%1 is no regular file; kept as %2.").arg(file, keepAside(file)));
    }
    makePrivate(path);
}

void Preferences::registerDefaults(const QVariantMap& defaults) {
    registered_.insert(defaults);
}

void Preferences::registerRange(const QString& key, const Range& range) {
    ranges_.insert(key, range);
}

QVariant Preferences::objectForKey(const QString& key) const {
    const QVariant stored = settings_->value(key);
    return stored.isValid() ? stored : registered_.value(key);
}

template <typename T, typename Convert>
T Preferences::typedValue(const QString& key, Convert convert) const {
    const QVariant stored = settings_->value(key);
    if (stored.isValid()) {
        if (const std::optional<T> value = convert(stored.toString()))
            return *value;
        if (!reportedKeys_.contains(key)) {
            reportedKeys_.append(key);
            logLine(QStringLiteral(
                        "The preference %1 holds \"%2\", which is no value for it; its default serves.")
                        .arg(key, stored.toString()));
        }
    }
    return convert(registered_.value(key).toString()).value_or(T());
}

int Preferences::integerForKey(const QString& key) const {
    return typedValue<int>(key, toInteger);
}

float Preferences::floatForKey(const QString& key) const {
    return typedValue<float>(key, [range = rangeForKey(key)](const QString& text) {
        const std::optional<float> value = toFloat(text);
        return value && *value >= range.smallest && *value <= range.largest ? value : std::nullopt;
    });
}

bool Preferences::boolForKey(const QString& key) const {
    return typedValue<bool>(key, toBool);
}

QString Preferences::stringForKey(const QString& key) const {
    return objectForKey(key).toString();
}

void Preferences::setInteger(int value, const QString& key) {
    store(key, value);
}

void Preferences::setFloat(float value, const QString& key) {
    store(key, NumberFormatter::plainString(value)); // 5.4, not 5.400000095367432
}

void Preferences::setBool(bool value, const QString& key) {
    store(key, value);
}

void Preferences::setObject(const QString& value, const QString& key) {
    store(key, value);
}

void Preferences::store(const QString& key, const QVariant& value) {
    const QString before = objectForKey(key).toString();
    if (settings_->contains(key) && before == value.toString())
        return;
    prepareFile();
    settings_->setValue(key, value);
    synchronizeLater();
    if (before != value.toString())
        Q_EMIT valueChanged(key);
}

void Preferences::removeObjectForKey(const QString& key) {
    const QString before = objectForKey(key).toString();
    prepareFile();
    settings_->remove(key);
    synchronizeLater();
    if (before != objectForKey(key).toString())
        Q_EMIT valueChanged(key);
}

bool Preferences::synchronize() {
    prepareFile();
    if (settings_->status() == QSettings::NoError) {
        settings_->sync();
    } else {
        // A QSettings keeps its error for good; another one on the file takes over what is still to be
        // written.
        settings_ = std::make_unique<QSettings>(settings_->fileName(), QSettings::IniFormat);
    }
    const bool written = settings_->status() == QSettings::NoError;
    if (!written && !refused_)
        logLine(QStringLiteral("The preferences can't be written to %1; they serve for this run.")
                    .arg(settings_->fileName()));
    refused_ = !written;
    return written;
}

void Preferences::synchronizeLater() {
    if (!std::exchange(synchronizesLater_, true))
        QMetaObject::invokeMethod(
            this,
            [this] {
                synchronizesLater_ = false;
                synchronize();
            },
            Qt::QueuedConnection);
}
