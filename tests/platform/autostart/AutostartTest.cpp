// SPDX-License-Identifier: MIT
#include "platform/desktop_entry/DesktopEntry.h"
#include "tests/Interaction.h"
#include "tests/platform/autostart/TestAutostart.h"

#include <QProcess>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class AutostartTest : public TestAutostart {
protected:
    QString value(const QString& file, const char* key) const {
        QString error;
        const auto entry = DesktopEntry::fromFile(entryPath(file), &error);
        return entry ? entry->text(key) : error;
    }
};

QByteArray application(const QByteArray& exec, const QByteArray& more = {}) {
    return "[Desktop Entry]\nType=Application\nName=Some\nExec=" + exec + '\n' + more;
}

} // namespace

TEST_F(AutostartTest, WhatIsAddedIsListedAndLaunchedByGLib) {
    const QString result = path(u"result"_s);
    QStringList added;
    // Names that a shell, a desktop entry, a keyfile or a terminal would take for something else.
    for (const QString& name :
         {u"my \"quoted\" app %f Möon"_s, u"$HOME `id` $(id) ; & | > <"_s, u"back\\slash \\n \\\\ end\\"_s,
          u"new\nline\tand\rtab"_s, u" blanks at both ends "_s, u"it's #1 (x) * ? ~ 100%% %U"_s}) {
        added.append(makeProgram(u"programs/"_s + name,
                                 "#!/bin/sh\nprintf '%s|%s' \"$0\" $# > '" + result.toUtf8() + "'\n"));
        ASSERT_EQ(Autostart::append(added.constLast(), false), std::error_code()) << qPrintable(name);
        EXPECT_EQ(paths(), added);
        QFile::remove(result);
        const QString entry = entryPath(Autostart::items().constLast().file);
        ASSERT_EQ(QProcess::execute(u"gio"_s, {u"launch"_s, entry}), 0) << readFile(entry).constData();
        ASSERT_TRUE(waitFor([&] { return QFileInfo(result).size() > 0; })) << readFile(entry).constData();
        EXPECT_EQ(QString::fromUtf8(readFile(result)), added.constLast() + u"|0"_s);
    }
}

TEST_F(AutostartTest, ADesktopEntryIsCopiedSoThatALoginFindsItsProgram) {
    const QString program = makeProgram(u"my bin/moon"_s);
    const WithEnvironment programs("PATH", path(u"my bin"_s).toUtf8() + ":/usr/bin:/bin");
    const QString file = u"org.example.Moon.desktop"_s;
    using Row = std::tuple<const char*, const char*>;
    for (const auto& [exec, command] :
         {Row{" moon  --quiet \"a b\" %U", "\"PROGRAM\"  --quiet \"a b\" %U"},
          Row{"/bin/sh -c moon", "/bin/sh -c moon"}, Row{"no-such-program -x", "no-such-program -x"}}) {
        SCOPED_TRACE(exec);
        const QString expected = QString::fromLatin1(command).replace(u"PROGRAM"_s, program);
        writeFile(path(file), application(exec, "Icon=moon\nTryExec=moon\nName[de]=Mond\n"));
        ASSERT_EQ(Autostart::append(path(file), true), std::error_code());
        EXPECT_EQ(Autostart::items(), (QList<Autostart::Item>{{file, path(file), true}}));
        using Key = std::pair<const char*, QString>;
        for (const auto& [key, text] :
             {Key{"Exec", expected}, Key{"TryExec", expected.startsWith(u"no") ? u"moon"_s : program},
              Key{"Icon", u"moon"_s}, Key{"X-LXQt-Need-Tray", u"true"_s},
              Key{"X-KDE-autostart-after", u"panel"_s}, Key{"X-GNOME-Autostart-Delay", u"2"_s}})
            EXPECT_EQ(value(file, key), text);
        EXPECT_EQ(QProcess::execute(u"desktop-file-validate"_s, {entryPath(file)}), 0);

        // As version 1.0.0 wrote it, switched off since.
        const QByteArray before = application(exec, "Name[de]=Mond\nTryExec=moon\nHidden=true\n"
                                                    "X-LoginItem-Position=1\nX-LoginItem-Path=" +
                                                        path(file).toUtf8() + "\n# mine\n");
        writeEntry(file, before);
        const CaughtLog log;
        for (int i = 0; i < 2; ++i)
            Autostart::mend(path(file));
        const QByteArray after = readFile(entryPath(file));
        EXPECT_EQ(value(file, "Exec").simplified(), expected.simplified());
        EXPECT_EQ(log.lines().size(), after == before ? 0 : 1);
        EXPECT_TRUE(after.contains("Name[de]=Mond\n") && after.contains("\n# mine\n"));
        EXPECT_TRUE(value(file, "Hidden") == u"true" && value(file, "X-LoginItem-Position") == u"1");
        QFile::remove(entryPath(file));
    }
    const CaughtLog log;
    writeFile(path(file), "[Desktop Entry]\nType=Link\nURL=/\n");
    EXPECT_EQ(Autostart::append(path(file), false), std::errc::invalid_argument);
    EXPECT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(AutostartTest, OthersEntriesAreReadAndKeptAndTheOrderIsTheOneOfAdding) {
    const QByteArray foreign = "# mine\r\n[Desktop Entry]\nExec=env  FOO=1\nType=Application\n\n[Other]\nx=y";
    writeEntry(u"m.desktop"_s, foreign);
    writeEntry(u"c.desktop"_s, application("'/no such/ program' %f"));
    writeEntry(u"lost.desktop"_s, application("no-such-program-anywhere"));
    QStringList expected{u"/no such/ program"_s, entryPath(u"lost.desktop"_s), u"/usr/bin/env"_s};
    for (const QString& name : {u"c"_s, u"a"_s, u"b"_s}) {
        expected.append(makeProgram(name));
        EXPECT_EQ(Autostart::append(expected.constLast(), false), std::error_code());
    }
    EXPECT_EQ(paths(), expected);
    EXPECT_TRUE(files().contains(u"c-2.desktop"_s)) << "a name that is taken stays another's";
    Autostart::append(path(u"c"_s), true); // once more: it moves, and does not start twice
    expected.move(3, 5);
    EXPECT_EQ(paths(), expected);
    // The desktop's own settings switch an entry off by a key in it, and adding it switches it on again.
    const QString off = entryPath(u"a.desktop"_s);
    writeFile(off, readFile(off) + "Hidden=true\nX-LoginItem-Position=99999999999999999999\n");
    expected.removeOne(path(u"a"_s));
    EXPECT_EQ(paths(), expected);
    Autostart::append(path(u"a"_s), false);
    EXPECT_EQ(paths(), expected << path(u"a"_s));
    EXPECT_EQ(Autostart::remove(Autostart::items()[0]), std::error_code());
    EXPECT_EQ(files().size(), 5);
    EXPECT_EQ(readFile(entryPath(u"m.desktop"_s)), foreign);
}

TEST_F(AutostartTest, WhatTheDesktopDoesNotStartIsNoLoginItem) {
    using Row = std::pair<QString, const char*>;
    for (const auto& [file, keys] :
         {Row{u"off1.desktop"_s, "Hidden=true"}, Row{u"off2.desktop"_s, "X-GNOME-Autostart-enabled=false"},
          Row{u"off3.desktop"_s, "OnlyShowIn=KDE;GNOME;"}, Row{u"off4.desktop"_s, "NotShowIn=KDE;XFCE;"},
          Row{u".hidden.desktop"_s, ""}, Row{u"on1.desktop"_s, "OnlyShowIn=KDE;XFCE;\nHidden=false"},
          Row{u"on2.desktop"_s, "NotShowIn=KDE;"}})
        writeEntry(file, application("/bin/" + file.left(3).toUtf8(), keys));
    writeEntry(u"link.desktop"_s, "[Desktop Entry]\nType=Link\nURL=/\n");
    writeEntry(u"none.desktop"_s, "[Desktop Entry]\nType=Application\nName=No program\n");
    EXPECT_EQ(paths(), (QStringList{u"/bin/on1"_s, u"/bin/on2"_s}));
    const WithEnvironment desktop("XDG_CURRENT_DESKTOP", "X-Other:KDE");
    EXPECT_EQ(paths().filter(u"/bin/on"_s), QStringList{u"/bin/on1"_s});
}

TEST_F(AutostartTest, DamagedEntriesAreLeftOutWithOneLine) {
    writeEntry(u"huge.desktop"_s, application("/bin/huge", QByteArray(300 * 1024, '#')));
    writeEntry(u"binary.desktop"_s, QByteArray("\xFF\0\xFE", 3));
    writeEntry(u"empty.desktop"_s, {});
    QFile::link(u"loop.desktop"_s, entryPath(u"loop.desktop"_s));
    ASSERT_EQ(mkfifo(qPrintable(entryPath(u"pipe.desktop"_s)), 0600), 0);
    const QStringList damaged = files();
    writeEntry(u"good.desktop"_s, application("/bin/good"));
    const CaughtLog log;
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(paths(), QStringList{u"/bin/good"_s});
    EXPECT_EQ(log.lines().size(), damaged.size()) << qPrintable(log.lines().join(u'\n'));
    for (const QString& file : damaged)
        EXPECT_EQ(log.lines().filter(entryPath(file)).size(), 1) << qPrintable(file);
    // Nor does adding one of these names follow a link or replace what is there.
    EXPECT_EQ(Autostart::append(makeProgram(u"loop"_s), false), std::error_code());
    EXPECT_TRUE(files().contains(u"loop-2.desktop"_s));
}

TEST_F(AutostartTest, ARefusingDiskLosesNothing) {
    const QString program = makeProgram(u"Moon"_s);
    const QString other = makeProgram(u"Other"_s);
    ASSERT_EQ(Autostart::append(program, false), std::error_code());
    const QStringList before = files();
    const QByteArray bytes = readFile(entryPath(u"Moon.desktop"_s));
    // No room for more than a few bytes in any file.
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit room{};
    getrlimit(RLIMIT_FSIZE, &room);
    const rlimit few{10, room.rlim_max};
    setrlimit(RLIMIT_FSIZE, &few);
    EXPECT_EQ(Autostart::append(program, true), std::errc::io_error);
    EXPECT_EQ(Autostart::append(other, false), std::errc::io_error);
    setrlimit(RLIMIT_FSIZE, &room);
    std::signal(SIGXFSZ, handler);

    const bool isRoot = geteuid() == 0; // whom no permissions bind
    const auto setModes = [this](mode_t mode) {
        for (const QString& folder : {u"config/autostart"_s, u"config"_s, u""_s})
            chmod(qPrintable(path(folder)), mode);
    };
    setModes(0555);
    ASSERT_TRUE(!isRoot || seteuid(65534) == 0);
    EXPECT_EQ(Autostart::append(other, false), std::errc::permission_denied);
    EXPECT_EQ(Autostart::remove({u"Moon.desktop"_s, program, false}), std::errc::permission_denied);
    ASSERT_TRUE(!isRoot || seteuid(0) == 0);
    setModes(0755);
    EXPECT_EQ(files(), before);
    EXPECT_EQ(readFile(entryPath(u"Moon.desktop"_s)), bytes);
    // A file where the folder should be.
    const WithEnvironment config("XDG_CONFIG_HOME", program.toUtf8());
    EXPECT_EQ(Autostart::append(program, false), std::errc::not_a_directory);
}
