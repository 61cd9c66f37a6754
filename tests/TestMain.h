// SPDX-License-Identifier: MIT
#pragma once

#include "platform/locale/Clock.h"

#include <QByteArray>
#include <QLocale>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <tuple>

using namespace Qt::StringLiterals;

/// What a test program runs in: nothing of the person who runs the tests is read or written.
class TestEnvironment {
public:
    TestEnvironment();

private:
    QTemporaryDir home_;
};

/// Sets an environment variable for a test's span.
class WithEnvironment {
public:
    WithEnvironment(const char* name, const QByteArray& value);
    ~WithEnvironment();
    Q_DISABLE_COPY(WithEnvironment)

private:
    const char* name_;
    QByteArray before_;
};

/// Sets the system's time zone for a test's span.
struct InZone : WithEnvironment {
    explicit InZone(const QByteArray& name) : WithEnvironment("TZ", name) {}
};

/// Sets the locale of the program's numbers for a test's span.
struct InLocale {
    explicit InLocale(const char* name) { QLocale::setDefault(QLocale(QLatin1String(name))); }
    ~InLocale() { QLocale::setDefault(QLocale::system()); }
    Q_DISABLE_COPY(InLocale)
};

/// A folder in the place of the program's resources.
struct OtherResources {
    QTemporaryDir folder;
    WithEnvironment resources{"LUMIVANE_RESOURCES", folder.path().toUtf8()};
    QString path(const QString& file) const { return folder.filePath(file); }
};

/// Catches what is logged while it lives.
class CaughtLog {
public:
    CaughtLog();
    ~CaughtLog();
    QStringList lines() const;
};

/// Write and read a whole file, with the folders that it is in; failures end the run.
void writeFile(const QString& path, const QByteArray& bytes);
QByteArray readFile(const QString& path);

/// An instant at GMT.
QDateTime gmt(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);
