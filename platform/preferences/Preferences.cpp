// SPDX-License-Identifier: MIT
#include "platform/preferences/Preferences.h"

#include "platform/files/ConfigFolder.h"
#include "platform/files/RegularFile.h"
#include "platform/locale/NumberFormatter.h"
#include "platform/log/Log.h"

#include <QFileInfo>
#include <QSettings>
#include <QStringDecoder>

#include <utility>

#include <glib.h>

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

/// Takes from all others what they may do with the file and its folder: the preferences tell where the user
/// lives.
void makePrivate(const QString& path) {
    const auto narrow = [](const QString& name) {
        constexpr auto kOthers = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                                 QFile::WriteOther | QFile::ExeOther;
        if (const auto given = QFile::permissions(name); given & kOthers)
            QFile::setPermissions(name, given & ~kOthers);
    };
    narrow(QFileInfo(path).absolutePath());
    if (!RegularFile::isOtherThing(path))
        narrow(path);
}

/// The value of the kind that a text of the file stands for, or an invalid one.
QVariant parsed(const QString& text, QMetaType kind, const PreferenceRange& range) {
    const auto isAmong = [&text](const QStringList& words) {
        return words.contains(text, Qt::CaseInsensitive);
    };
    bool isOfKind = true;
    QVariant value = text;
    switch (kind.id()) {
    case QMetaType::Bool:
        value = isAmong({QStringLiteral("true"), QStringLiteral("yes"), QStringLiteral("1")});
        isOfKind =
            value.toBool() || isAmong({QStringLiteral("false"), QStringLiteral("no"), QStringLiteral("0")});
        break;
    case QMetaType::Int:
        value = text.toInt(&isOfKind);
        break;
    case QMetaType::Float:
        value = text.toFloat(&isOfKind);
        // Not a number is in no range.
        isOfKind = isOfKind && value.toFloat() >= range.smallest && value.toFloat() <= range.largest;
        break;
    default:
        break;
    }
    return isOfKind ? value : QVariant();
}

/// A value as the file has it: of a number the shortest text that reads back as the same, 5.4 and not
/// 5.400000095367432.
QVariant stored(const QVariant& value) {
    return value.typeId() == QMetaType::Float ? NumberFormatter::plainString(value.toFloat()) : value;
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
    makePrivate(path);
    QString error;
    const auto bytes = RegularFile::read(path, kLargestFile, &error);
    // Something else in its place, or too large a file, must not even be opened as one.
    bool damaged =
        bytes ? !isText(*bytes) : RegularFile::isOtherThing(path) || QFileInfo(path).size() > kLargestFile;
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
    if (aside.isEmpty())
        logLine(QStringLiteral("The preferences in %1 are damaged and can't be moved; the defaults serve.")
                    .arg(path));
    else
        logLine(QStringLiteral("The preferences in %1 are damaged; kept as %2, the defaults serve.")
                    .arg(path, aside));
    // Without a place to keep it the user's file must not be written over: settings go to a file of their
    // own.
    settings_ = std::make_unique<QSettings>(aside.isEmpty() ? path + QStringLiteral(".new") : path,
                                            QSettings::IniFormat);
}

void Preferences::prepareFile() {
    const QString path = settings_->fileName();
    // QSettings would wait for a pipe in the place of its file, or of the lock beside it.
    for (const QString& file : {path, path + QStringLiteral(".lock")}) {
        if (RegularFile::isOtherThing(file))
            logLine(QStringLiteral("%1 is no regular file; kept as %2.").arg(file, keepAside(file)));
    }
    g_mkdir_with_parents(QFile::encodeName(QFileInfo(path).absolutePath()).constData(), 0700);
    // QSettings keeps the permissions of the file that it writes anew, but makes one that everybody may read.
    QFile(path).open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner);
    makePrivate(path);
}

QVariant Preferences::read(const QString& name, const PreferenceRange& range,
                           const QVariant& fallback) const {
    if (const QVariant own = settings_->value(name); own.isValid()) {
        if (const QVariant value = parsed(own.toString(), fallback.metaType(), range); value.isValid())
            return value;
        if (!reported_.contains(name)) {
            reported_.append(name);
            logLine(QStringLiteral(
                        "The preference %1 holds \"%2\", which is no value for it; its default serves.")
                        .arg(name, own.toString()));
        }
    }
    return registered_.value(name, {fallback, {}}).fallback;
}

QString Preferences::answer(const QString& name) const {
    return settings_->value(name, stored(registered_.value(name).fallback)).toString();
}

void Preferences::store(const QString& name, const QVariant& value) {
    const QString before = answer(name);
    const QVariant after = stored(value);
    if (settings_->contains(name) && before == after.toString())
        return;
    prepareFile();
    settings_->setValue(name, after);
    synchronizeLater();
    if (before != after.toString())
        Q_EMIT valueChanged(name);
}

void Preferences::forget(const QString& name) {
    const QString before = answer(name);
    prepareFile();
    settings_->remove(name);
    synchronizeLater();
    if (before != answer(name))
        Q_EMIT valueChanged(name);
}

bool Preferences::synchronize() {
    synchronizesLater_ = false;
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
        QMetaObject::invokeMethod(this, &Preferences::synchronize, Qt::QueuedConnection);
}
