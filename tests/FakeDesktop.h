// SPDX-License-Identifier: MIT
#pragma once

#include "platform/browser/DefaultApplications.h"
#include "tests/Interaction.h"
#include "tests/TestMain.h"

#include <QDir>
#include <QFile>

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
    static QString longIdentifier() { return QString(70, u'a') + u"\u6708.desktop"_s; }

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
                                 "{ cut -d' ' -f6 /proc/$$/stat; echo $output; env; } > $$.env\n"
                                 "printf '%s\\n' \"$@\" > $$.part\n"
                                 "mv $$.part %2.$$\n"_s.arg(programs(), name)
                                     .toUtf8());
        QFile::setPermissions(program(name), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    /// The arguments of each start of a program since the last call, a line each; waits for the first.
    std::string starts(const char* name) const {
        const QDir folder(program(u"starts"_s));
        const QString prefix = QLatin1String(name) + u'.';
        const auto files = [&] { return folder.entryList({prefix + u'*'}); };
        waitFor([&] { return !files().isEmpty(); });
        QStringList all;
        for (const QString& file : files()) {
            all.append(linesOf(folder.filePath(file)).join(u' '));
            QFile::remove(folder.filePath(file));
            lastPid_ = file.mid(prefix.size());
        }
        return all.join(u'\n').toStdString();
    }

    /// The session, the output and the environment of the start that `starts` found last.
    QStringList surroundings() const { return linesOf(program(u"starts/%1.env"_s.arg(lastPid_))); }

private:
    FakeDesktop() : folder_(QDir::tempPath() + u"/moon $HOME XXXXXX"_s) {
        QDir(programs()).mkpath(u"starts"_s);
        using Row = std::tuple<QString, QString>;
        for (const auto& [name, identifier] :
             {Row{u"browser"_s, u"browser.desktop"_s}, Row{u"mail"_s, u"mail.desktop"_s},
              Row{u"viewer"_s, u"viewer.desktop"_s}, Row{u"long"_s, longIdentifier()},
              Row{u"gone"_s, u"gone.desktop"_s}}) {
            if (name != u"gone")
                writeProgram(name);
            const QString quoted = program(name).replace(u'%', u"%%"_s).replace(u'$', u"\\\\$"_s);
            writeFile(
                entry(identifier),
                u"[Desktop Entry]\nType=Application\nName=%1\nExec=\"%2\" --page %u\n"_s.arg(name, quoted)
                    .toUtf8());
        }
        writeFile(qEnvironmentVariable("XDG_CONFIG_HOME") + u"/mimeapps.list"_s,
                  u"[Default Applications]\nx-scheme-handler/http=browser.desktop\n"
                  "x-scheme-handler/https=browser.desktop;\ntext/html=viewer.desktop\n"
                  "x-scheme-handler/mailto=mail.desktop\ntext/plain=viewer.desktop\n"
                  "x-scheme-handler/x-long=%1\nx-scheme-handler/x-gone=gone.desktop;\n"
                  "x-scheme-handler/x-missing=missing.desktop\n"_s.arg(longIdentifier())
                      .toUtf8());
        // Where an earlier test has made GIO look already, it takes a moment to see what is new.
        EXPECT_TRUE(waitFor([] { return DefaultApplications::forScheme(u"mailto"_s).has_value(); }));
    }

    static QStringList linesOf(const QString& path) {
        return QString::fromUtf8(readFile(path)).split(u'\n', Qt::SkipEmptyParts);
    }

    QTemporaryDir folder_;
    mutable QString lastPid_;
};
