// SPDX-License-Identifier: MIT
#pragma once

#include "platform/autostart/Autostart.h"
#include "tests/TestMain.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// An autostart folder, and a folder for programs, of a test's own.
class TestAutostart : public testing::Test {
protected:
    TestAutostart() { QDir(home_.path()).mkpath(QStringLiteral("config/autostart")); }

    QString path(const QString& file) const { return home_.filePath(file); }
    QString entryPath(const QString& file) const { return path(QStringLiteral("config/autostart/") + file); }

    /// Writes an entry of another program's into the autostart folder.
    void writeEntry(const QString& file, const QByteArray& bytes) const { write(entryPath(file), bytes); }

    /// A program in the programs' folder that can be run.
    QString makeProgram(const QString& name, const QByteArray& script = "#!/bin/sh\n") const {
        const QString program = path(name);
        QDir().mkpath(QFileInfo(program).path());
        write(program, script);
        QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return program;
    }

    static void write(const QString& path, const QByteArray& bytes) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    static QByteArray read(const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
        return file.readAll();
    }

    /// Every name in the folder, drafts and all.
    QStringList files() const {
        return QDir(path(QStringLiteral("config/autostart")))
            .entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    static QStringList paths() {
        QStringList paths;
        for (const auto& item : Autostart::items())
            paths.append(item.path);
        return paths;
    }

private:
    // A path without the program's name in it.
    QTemporaryDir home_{QDir::tempPath() + QStringLiteral("/home-XXXXXX")};
    WithEnvironment config_{"XDG_CONFIG_HOME", home_.filePath(QStringLiteral("config")).toUtf8()};
    WithEnvironment desktop_{"XDG_CURRENT_DESKTOP", "XFCE"};
};
