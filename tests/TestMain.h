// SPDX-License-Identifier: MIT
#pragma once

#include "platform/locale/Clock.h"

#include <QByteArray>
#include <QStringList>
#include <QTemporaryDir>

/// What a test program runs in: nothing of the person who runs the tests is read or written.
class TestEnvironment {
public:
    TestEnvironment();

private:
    QTemporaryDir home_;
};

/// Sets the system's time zone for a test's span.
class InZone {
public:
    explicit InZone(const char* name);
    ~InZone();
    InZone(const InZone&) = delete;
    InZone& operator=(const InZone&) = delete;

private:
    QByteArray before_;
};

/// Sets an environment variable for a test's span.
class WithEnvironment {
public:
    WithEnvironment(const char* name, const QByteArray& value);
    ~WithEnvironment();
    WithEnvironment(const WithEnvironment&) = delete;
    WithEnvironment& operator=(const WithEnvironment&) = delete;

private:
    const char* name_;
    QByteArray before_;
};

/// Catches what is logged while it lives.
class CaughtLog {
public:
    CaughtLog();
    ~CaughtLog();
    QStringList lines() const;
};

/// An instant at GMT.
QDateTime gmt(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);
