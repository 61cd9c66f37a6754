// SPDX-License-Identifier: MIT
#pragma once

#include "platform/autostart/Autostart.h"
#include "tests/TestMain.h"

#include <QDir>
#include <QFile>

/// An autostart folder, and a folder for programs, of a test's own.
class TestAutostart : public testing::Test {
protected:
    TestAutostart() { QDir().mkpath(entryPath(QString())); }

    QString path(const QString& file) const { return home_.filePath(file); }
    QString entryPath(const QString& file) const { return path(u"config/autostart/"_s + file); }

    /// Writes an entry of another program's into the autostart folder.
    void writeEntry(const QString& file, const QByteArray& bytes) const { writeFile(entryPath(file), bytes); }

    /// A program in the programs' folder that can be run.
    QString makeProgram(const QString& name, const QByteArray& script = "#!/bin/sh\n") const {
        writeFile(path(name), script);
        QFile::setPermissions(path(name), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return path(name);
    }

    /// Every name in the folder, drafts and all.
    QStringList files() const {
        return QDir(entryPath(QString()))
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
    QTemporaryDir home_{QDir::tempPath() + u"/home-XXXXXX"_s};
    WithEnvironment config_{"XDG_CONFIG_HOME", home_.filePath(u"config"_s).toUtf8()};
    WithEnvironment desktop_{"XDG_CURRENT_DESKTOP", "XFCE"};
};
