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

/// The value that a text of the file stands for, or nothing.
template <typename T>
std::optional<T> parsed(const QString& text, const PreferenceRange& range);

template <>
std::optional<bool> parsed(const QString& text, const PreferenceRange&) {
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

template <>
std::optional<int> parsed(const QString& text, const PreferenceRange&) {
    bool ok = false;
    const int value = text.toInt(&ok);
    return ok ? std::optional(value) : std::nullopt;
}

template <>
std::optional<float> parsed(const QString& text, const PreferenceRange& range) {
    bool ok = false;
    const float value = text.toFloat(&ok);
    // Not a number is in no range.
    return ok && value >= range.smallest && value <= range.largest ? std::optional(value) : std::nullopt;
}

template <>
std::optional<QString> parsed(const QString& text, const PreferenceRange&) {
    return text;
}

template <typename T>
QVariant stored(const T& value) {
    return value;
}

/// The shortest text that reads back as the same number: 5.4, not 5.400000095367432.
template <>
QVariant stored(const float& value) {
    return NumberFormatter::plainString(value); // 5.4, not 5.400000095367432
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

template <typename T>
void Preferences::registerKey(const PreferenceKey<T>& key, const std::type_identity_t<T>& fallback) {
    registered_.insert(key.name, stored<T>(fallback));
    ranges_.insert(key.name, key.range);
}

template <typename T>
T Preferences::value(const PreferenceKey<T>& key) const {
    return read<T>(key.name, key.range, key.fallback);
}

template <typename T>
void Preferences::set(const PreferenceKey<T>& key, const std::type_identity_t<T>& value) {
    store(key.name, stored<T>(value));
}

template <typename T>
T Preferences::read(const QString& name, const PreferenceRange& range, const T& fallback) const {
    if (const QVariant own = settings_->value(name); own.isValid()) {
        if (const std::optional<T> value = parsed<T>(own.toString(), range))
            return *value;
        if (!reported_.contains(name)) {
            reported_.append(name);
            logLine(QStringLiteral(
                        "The preference %1 holds \"%2\", which is no value for it; its default serves.")
                        .arg(name, own.toString()));
        }
    }
    const QVariant registered = registered_.value(name);
    return registered.isValid() ? parsed<T>(registered.toString(), {}).value_or(fallback) : fallback;
}

int Preferences::integerForKey(const QString& name) const {
    return read<int>(name, {}, 0);
}

float Preferences::floatForKey(const QString& name) const {
    return read<float>(name, rangeForKey(name), 0.0F);
}

bool Preferences::boolForKey(const QString& name) const {
    return read<bool>(name, {}, false);
}

void Preferences::setInteger(int value, const QString& name) {
    store(name, value);
}

void Preferences::setFloat(float value, const QString& name) {
    store(name, stored(value));
}

void Preferences::setBool(bool value, const QString& name) {
    store(name, value);
}

QVariant Preferences::answer(const QString& name) const {
    const QVariant own = settings_->value(name);
    return own.isValid() ? own : registered_.value(name);
}

void Preferences::store(const QString& name, const QVariant& value) {
    const QString before = answer(name).toString();
    if (settings_->contains(name) && before == value.toString())
        return;
    prepareFile();
    settings_->setValue(name, value);
    synchronizeLater();
    if (before != value.toString())
        Q_EMIT valueChanged(name);
}

void Preferences::forget(const QString& name) {
    const QString before = answer(name).toString();
    prepareFile();
    settings_->remove(name);
    synchronizeLater();
    if (before != answer(name).toString())
        Q_EMIT valueChanged(name);
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

template void Preferences::registerKey(const PreferenceKey<bool>&, const bool&);
template bool Preferences::value(const PreferenceKey<bool>&) const;
template void Preferences::set(const PreferenceKey<bool>&, const bool&);

template void Preferences::registerKey(const PreferenceKey<int>&, const int&);
template int Preferences::value(const PreferenceKey<int>&) const;
template void Preferences::set(const PreferenceKey<int>&, const int&);

template void Preferences::registerKey(const PreferenceKey<float>&, const float&);
template float Preferences::value(const PreferenceKey<float>&) const;
template void Preferences::set(const PreferenceKey<float>&, const float&);

template void Preferences::registerKey(const PreferenceKey<QString>&, const QString&);
template QString Preferences::value(const PreferenceKey<QString>&) const;
template void Preferences::set(const PreferenceKey<QString>&, const QString&);
