// SPDX-License-Identifier: MIT
#pragma once

#include "platform/browser/DefaultApplications.h"
#include "tests/Interaction.h"
#include "tests/TestMain.h"

#include <QDir>
#include <QFile>

/// Installed applications that write down how they are started: scripts with desktop entries, and the lists
/// that make them defaults, in the test run's own XDG folders. Made once a run, before GIO first looks.
class FakeDesktop {
public:
    static FakeDesktop& shared() {
        static FakeDesktop desktop;
        return desktop;
    }

    QString program(const QString& name) const { return folder_.filePath(name); }
    QString entry(const QString& identifier) const {
        return qEnvironmentVariable("XDG_DATA_HOME") + u"/applications/"_s + identifier;
    }
    QString programs() const { return folder_.path(); }

    void writeProgram(const QString& name) const {
        writeFile(program(name), u"#!/bin/sh\n"
                                 "export PATH=/usr/bin:/bin\n"
                                 "output=$(readlink /proc/$$/fd/1)\n"
                                 "cd '%1/starts'\n"
                                 "{ cut -d' ' -f6 /proc/$$/stat; echo $output; env; } > env\n"
                                 "printf '%s\\n' \"$*\" >> %2\n"_s.arg(programs(), name)
                                     .toUtf8());
        QFile::setPermissions(program(name), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    /// The arguments of each start of a program since the last call, a line each; waits for the first.
    std::string starts(const char* name) const {
        const QString file = program(u"starts/"_s + QLatin1String(name));
        if (!waitFor([&] { return QFileInfo(file).size() > 0; }))
            return "none";
        const QByteArray lines = readFile(file);
        QFile::remove(file);
        return lines.trimmed().toStdString();
    }

    /// The session, the output and the environment of the last start.
    QStringList surroundings() const {
        return QString::fromUtf8(readFile(program(u"starts/env"_s))).split(u'\n', Qt::SkipEmptyParts);
    }

private:
    FakeDesktop() : folder_(QDir::tempPath() + u"/moon $HOME XXXXXX"_s) {
        QDir(programs()).mkpath(u"starts"_s);
        for (const QString& name : {u"browser"_s, u"mail"_s, u"viewer"_s, u"gone"_s}) {
            if (name != u"gone")
                writeProgram(name);
            const QString quoted = program(name).replace(u'%', u"%%"_s).replace(u'$', u"\\\\$"_s);
            const QString text = u"[Desktop Entry]\nType=Application\nName=%1\nExec=\"%2\" --page %u\n"_s;
            writeFile(entry(name + u".desktop"_s), text.arg(name, quoted).toUtf8());
        }
        writeFile(qEnvironmentVariable("XDG_CONFIG_HOME") + u"/mimeapps.list"_s,
                  "[Default Applications]\nx-scheme-handler/http=browser.desktop\n"
                  "x-scheme-handler/https=browser.desktop;\ntext/html=viewer.desktop\n"
                  "x-scheme-handler/mailto=mail.desktop\ntext/plain=viewer.desktop\n"
                  "x-scheme-handler/x-gone=gone.desktop;\nx-scheme-handler/x-missing=missing.desktop\n");
        // Where an earlier test has made GIO look already, it takes a moment to see what is new.
        EXPECT_TRUE(waitFor([] { return DefaultApplications::forScheme(u"mailto"_s).has_value(); }));
    }

    QTemporaryDir folder_;
};
