// SPDX-License-Identifier: MIT
#include "tests/TestMain.h"

#include <QDir>
#include <QFile>
#include <QTimeZone>

namespace {
QStringList caught;
}

WithEnvironment::WithEnvironment(const char* name, const QByteArray& value)
    : name_(name), before_(qgetenv(name)) {
    qputenv(name, value);
}

WithEnvironment::~WithEnvironment() {
    before_.isNull() ? qunsetenv(name_) : qputenv(name_, before_);
}

CaughtLog::CaughtLog() {
    caught.clear();
    qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& text) { caught.append(text); });
}

CaughtLog::~CaughtLog() {
    qInstallMessageHandler(nullptr);
}

QStringList CaughtLog::lines() const {
    return caught;
}

void writeFile(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s can't be written", qPrintable(path));
}

QByteArray readFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s can't be read", qPrintable(path));
    return file.readAll();
}

QDateTime gmt(int year, int month, int day, int hour, int minute, int second) {
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second), QTimeZone::utc());
}

TestEnvironment::TestEnvironment() {
    qputenv("HOME", home_.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home_.filePath(QStringLiteral("config")).toLocal8Bit());
    qunsetenv("LUMIVANE_CONFIG_HOME");
    qputenv("XDG_DATA_HOME", home_.filePath(QStringLiteral("data")).toLocal8Bit());
    qputenv("XDG_CACHE_HOME", home_.filePath(QStringLiteral("cache")).toLocal8Bit());
    qputenv("LC_ALL", "en_US.UTF-8");
    qputenv("TZ", "UTC");
}
