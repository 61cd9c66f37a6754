// SPDX-License-Identifier: MIT
#pragma once

#include "platform/browser/DefaultApplications.h"
#include "tests/Interaction.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// Installed applications that write down how they are started: scripts with desktop entries, and the lists
/// that make them defaults, in the test run's own XDG folders. Made once a run, before GIO first looks.
class FakeDesktop {
public:
    static FakeDesktop& shared() {
        static FakeDesktop desktop;
        return desktop;
    }

    /// A long identifier in another script.
    static QString longIdentifier() {
        return QString(70, QLatin1Char('a')) + QStringLiteral("\u6708.desktop");
    }

    QString program(const QString& name) const { return folder_.filePath(name); }
    QString entry(const QString& identifier) const { return entries_ + QLatin1Char('/') + identifier; }
    QString programs() const { return folder_.path(); }

    void writeProgram(const QString& name) const {
        write(program(name), QStringLiteral("#!/bin/sh\n"
                                            "export PATH=/usr/bin:/bin\n"
                                            "output=$(readlink /proc/$$/fd/1)\n"
                                            "cd '%1/starts'\n"
                                            "{ cut -d' ' -f6 /proc/$$/stat; echo $output; env; } > $$.env\n"
                                            "printf '%s\\n' \"$@\" > $$.part\n"
                                            "mv $$.part %2.$$\n")
                                 .arg(programs(), name));
        QFile::setPermissions(program(name), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    /// The arguments of each start of a program since the last call, a line each; waits for the first.
    std::string starts(const char* name) const {
        const QDir folder(programs() + QStringLiteral("/starts"));
        const QString prefix = QLatin1String(name) + QLatin1Char('.');
        const auto files = [&] { return folder.entryList({prefix + QLatin1Char('*')}); };
        waitFor([&] { return !files().isEmpty(); });
        QStringList all;
        for (const QString& file : files()) {
            all.append(linesOf(folder.filePath(file)).join(QLatin1Char(' ')));
            QFile::remove(folder.filePath(file));
            lastPid_ = file.mid(prefix.size());
        }
        return all.join(QLatin1Char('\n')).toStdString();
    }

    /// The session, the output and the environment of the start that `starts` found last.
    QStringList surroundings() const {
        return linesOf(programs() + QStringLiteral("/starts/%1.env").arg(lastPid_));
    }

    static void write(const QString& path, const QString& text) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
        file.write(text.toUtf8());
    }

private:
    FakeDesktop()
        : entries_(qEnvironmentVariable("XDG_DATA_HOME") + QStringLiteral("/applications")),
          folder_(QDir::tempPath() + QStringLiteral("/moon $HOME XXXXXX")) {
        QDir().mkpath(entries_);
        QDir(programs()).mkpath(QStringLiteral("starts"));
        const QString config = qEnvironmentVariable("XDG_CONFIG_HOME");
        QDir().mkpath(config);
        for (const char* name : {"browser", "mail", "viewer", "long"})
            writeProgram(QString::fromLatin1(name));
        writeEntry(QStringLiteral("browser.desktop"), QStringLiteral("Test Browser"),
                   QStringLiteral("browser"));
        writeEntry(QStringLiteral("mail.desktop"), QStringLiteral("Test Mail"), QStringLiteral("mail"));
        writeEntry(QStringLiteral("viewer.desktop"), QStringLiteral("Test Viewer"), QStringLiteral("viewer"));
        writeEntry(longIdentifier(), QStringLiteral("\u6708"), QStringLiteral("long"));
        writeEntry(QStringLiteral("gone.desktop"), QStringLiteral("Gone"), QStringLiteral("gone"));
        write(config + QStringLiteral("/mimeapps.list"),
              QStringLiteral("[Default Applications]\nx-scheme-handler/http=browser.desktop\n"
                             "x-scheme-handler/https=browser.desktop;\ntext/html=browser.desktop\n"
                             "x-scheme-handler/mailto=mail.desktop\ntext/plain=viewer.desktop\n"
                             "x-scheme-handler/x-long=%1\nx-scheme-handler/x-gone=gone.desktop;\n"
                             "x-scheme-handler/x-missing=missing.desktop\n")
                  .arg(longIdentifier()));
        // Where an earlier test has made GIO look already, it takes a moment to see what is new.
        EXPECT_TRUE(
            waitFor([] { return DefaultApplications::forScheme(QStringLiteral("mailto")).has_value(); }));
    }

    void writeEntry(const QString& identifier, const QString& name, const QString& script) const {
        QString quoted = program(script);
        quoted.replace(QLatin1Char('%'), QStringLiteral("%%"))
            .replace(QLatin1Char('$'), QStringLiteral("\\\\$"));
        write(entry(identifier), QStringLiteral("[Desktop Entry]\nType=Application\nName=%1\n"
                                                "Name[de]=Deutscher Name\nExec=\"%2\" --page %u\n")
                                     .arg(name, quoted));
    }

    static QStringList linesOf(const QString& path) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return {};
        return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

    QString entries_;
    QTemporaryDir folder_;
    mutable QString lastPid_;
};
