// SPDX-License-Identifier: MIT
#include "platform/autostart/Autostart.h"

#include "platform/desktop_entry/DesktopEntry.h"
#include "tests/Interaction.h"
#include "tests/platform/autostart/TestAutostart.h"

#include <QProcess>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class AutostartTest : public TestAutostart {};

/// A user whom the permissions of files bind, even where the tests run as root.
class AsOrdinaryUser {
public:
    AsOrdinaryUser() : isRoot_(geteuid() == 0) {
        if (isRoot_ && seteuid(65534) != 0)
            ADD_FAILURE();
    }
    ~AsOrdinaryUser() {
        if (isRoot_ && seteuid(0) != 0)
            ADD_FAILURE();
    }

private:
    bool isRoot_;
};

/// No room for more than a few bytes in any file.
class FullDisk {
public:
    FullDisk() : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit few{10, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &few);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }

private:
    void (*handler_)(int);
    rlimit before_{};
};

QByteArray application(const QByteArray& exec, const QByteArray& more = {}) {
    return "[Desktop Entry]\nType=Application\nName=Some\nExec=" + exec + '\n' + more;
}

/// Names that a shell, a desktop entry, a keyfile or a terminal would take for something else.
const QString kHostileNames[] = {
    QStringLiteral("plain"),
    QStringLiteral("my \"quoted\" app %f Möon"),
    QStringLiteral("$HOME `id` $(id) ; & | > <"),
    QStringLiteral("back\\slash \\n \\\\ end\\"),
    QStringLiteral("new\nline\tand\rtab"),
    QStringLiteral("it's #1 (x) * ? ~ 100%% %U"),
    QStringLiteral(" blanks at both ends "),
    QStringLiteral("Hidden=true"),
};

} // namespace

TEST_F(AutostartTest, WhatIsAddedIsListedAndLaunchedByGLib) {
    const QString result = path(QStringLiteral("result"));
    QStringList added;
    for (const QString& name : kHostileNames) {
        const QString program =
            makeProgram(QStringLiteral("programs/") + name,
                        "#!/bin/sh\nprintf '%s|%s' \"$0\" $# > '" + result.toUtf8() + "'\n");
        added.append(program);
        ASSERT_EQ(Autostart::append(program, false), std::error_code()) << qPrintable(name);
        EXPECT_EQ(paths(), added);

        QFile::remove(result);
        const QString entry = entryPath(Autostart::items().constLast().file);
        ASSERT_EQ(QProcess::execute(QStringLiteral("gio"), {QStringLiteral("launch"), entry}), 0)
            << read(entry).constData();
        ASSERT_TRUE(waitFor([&] { return QFileInfo(result).size() > 0; })) << read(entry).constData();
        EXPECT_EQ(QString::fromUtf8(read(result)), program + QStringLiteral("|0")) << read(entry).constData();
    }
}

TEST_F(AutostartTest, ADesktopEntryIsCopiedForTheSession) {
    const QString source = path(QStringLiteral("org.example.Moon.desktop"));
    write(source,
          application("\"/opt/My Moon/moon\" --quiet %U",
                      "Icon=moon\nTryExec=/opt/My Moon/moon\nName[de]=Mond\nMimeType=text/x-moon;\n"));
    ASSERT_EQ(Autostart::append(source, true), std::error_code());
    EXPECT_EQ(Autostart::items(),
              (QList<Autostart::Item>{{QStringLiteral("org.example.Moon.desktop"), source, true}}));
    QString error;
    const QString copied = entryPath(QStringLiteral("org.example.Moon.desktop"));
    const auto entry = DesktopEntry::fromFile(copied, &error);
    ASSERT_TRUE(entry) << qPrintable(error);
    EXPECT_EQ(entry->text("Exec"), QStringLiteral("\"/opt/My Moon/moon\" --quiet %U"));
    EXPECT_EQ(entry->text("Icon"), QStringLiteral("moon"));
    EXPECT_EQ(entry->text("TryExec"), QStringLiteral("/opt/My Moon/moon"));
    EXPECT_EQ(entry->text("X-LXQt-Need-Tray"), QStringLiteral("true"));
    EXPECT_EQ(entry->text("X-KDE-autostart-after"), QStringLiteral("panel"));
    EXPECT_EQ(entry->text("X-GNOME-Autostart-Delay"), QStringLiteral("2"));
    EXPECT_EQ(QProcess::execute(QStringLiteral("desktop-file-validate"), {copied}), 0);

    const CaughtLog log;
    for (const QByteArray& bytes :
         {QByteArray("[Desktop Entry]\nType=Link\nURL=/\n"), QByteArray("\0\1", 2)}) {
        write(source, bytes);
        EXPECT_EQ(Autostart::append(source, false), std::errc::invalid_argument);
    }
    EXPECT_EQ(log.lines().size(), 2);
    EXPECT_EQ(files().size(), 1);
}

TEST_F(AutostartTest, ALoginFindsTheProgramWithoutASearch) {
    const QString program = makeProgram(QStringLiteral("my bin/moon"));
    const WithEnvironment programs("PATH", path(QStringLiteral("my bin")).toUtf8() + ":/usr/bin:/bin");
    const QString source = path(QStringLiteral("org.example.Moon.desktop"));
    const QString added = entryPath(QStringLiteral("org.example.Moon.desktop"));
    const auto value = [&](const char* key) {
        QString error;
        const auto entry = DesktopEntry::fromFile(added, &error);
        return entry ? entry->text(key) : error;
    };
    const struct {
        const char* exec;
        const char* command; ///< PROGRAM stands for the program
    } cases[] = {
        {"moon", "\"PROGRAM\""},
        {" moon  --quiet \"a b\" %U", "\"PROGRAM\"  --quiet \"a b\" %U"},
        {"\"mo\"on 'x y'", "\"PROGRAM\" 'x y'"},
        {"/bin/sh -c moon", "/bin/sh -c moon"},
        {"no-such-program-anywhere -x", "no-such-program-anywhere -x"},
    };
    for (const auto& each : cases) {
        const QString command = QString::fromLatin1(each.command).replace(QStringLiteral("PROGRAM"), program);
        write(source, application(each.exec, "TryExec=moon\n"));
        ASSERT_EQ(Autostart::append(source, false), std::error_code());
        EXPECT_EQ(value("Exec"), command);
        EXPECT_EQ(value("TryExec"), command.startsWith(u"no") ? QStringLiteral("moon") : program)
            << each.exec;

        // As version 1.0.0 wrote it, switched off since.
        const QByteArray before = application(each.exec, "Name[de]=Mond\nTryExec=moon\nHidden=true\n"
                                                         "X-LoginItem-Position=1\nX-LoginItem-Path=" +
                                                             source.toUtf8() + "\n# mine\n");
        write(added, before);
        const CaughtLog log;
        Autostart::mend(source);
        Autostart::mend(source);
        EXPECT_EQ(value("Exec").simplified(), command.simplified());
        EXPECT_EQ(log.lines().size(), read(added) == before ? 0 : 1);
        EXPECT_TRUE(read(added).contains("Name[de]=Mond\n") && read(added).contains("\n# mine\n"));
        EXPECT_TRUE(value("Hidden") == u"true" && value("X-LoginItem-Position") == u"1");
        QFile::remove(added);
    }
}

TEST_F(AutostartTest, OtherProgramsEntriesAreReadAndNeverWritten) {
    const QByteArray foreign = "# mine\r\n[Desktop Entry]\nExec=env  FOO=1\nType=Application\n\n[Other]\nx=y";
    writeEntry(QStringLiteral("m.desktop"), foreign);
    writeEntry(QStringLiteral("Moon.desktop"), application("'/no such/ program' %f"));
    writeEntry(QStringLiteral("lost.desktop"), application("no-such-program-anywhere"));
    const QString program = makeProgram(QStringLiteral("Moon"));
    EXPECT_EQ(Autostart::append(program, false), std::error_code());
    EXPECT_EQ(paths(),
              (QStringList{QStringLiteral("/no such/ program"), entryPath(QStringLiteral("lost.desktop")),
                           QStringLiteral("/usr/bin/env"), program}));
    EXPECT_TRUE(files().contains(QStringLiteral("Moon-2.desktop"))) << "a name that is taken stays another's";

    EXPECT_EQ(Autostart::remove(Autostart::items()[0]), std::error_code());
    EXPECT_EQ(Autostart::append(program, true), std::error_code());
    EXPECT_EQ(files(), (QStringList{QStringLiteral("Moon-2.desktop"), QStringLiteral("lost.desktop"),
                                    QStringLiteral("m.desktop")}));
    EXPECT_EQ(read(entryPath(QStringLiteral("m.desktop"))), foreign);
}

TEST_F(AutostartTest, TheOrderIsTheOneOfAdding) {
    QStringList added;
    for (const char* name : {"c", "a", "b"}) {
        added.append(makeProgram(QString::fromLatin1(name)));
        Autostart::append(added.constLast(), false);
    }
    EXPECT_EQ(paths(), added);
    Autostart::append(added[0], true); // once more: it moves, and does not start twice
    added.append(added.takeFirst());
    EXPECT_EQ(paths(), added);
    EXPECT_EQ(files().size(), 3);

    // The desktop's own settings switch an entry off by a key in it.
    const QString first = entryPath(QStringLiteral("a.desktop"));
    write(first, read(first) + "Hidden=true\nX-LoginItem-Position=99999999999999999999\n");
    added.removeFirst();
    EXPECT_EQ(paths(), added);
    added.append(path(QStringLiteral("a")));
    EXPECT_EQ(Autostart::append(added.constLast(), false), std::error_code());
    EXPECT_EQ(paths(), added);
    EXPECT_EQ(files().size(), 3);
}

TEST_F(AutostartTest, WhatTheDesktopDoesNotStartIsNoLoginItem) {
    const QByteArray off[] = {"Hidden=true", "X-GNOME-Autostart-enabled=false", "OnlyShowIn=KDE;GNOME;",
                              "NotShowIn=KDE;XFCE;", "X-MATE-Autostart-enabled=false"};
    for (std::size_t i = 0; i < std::size(off); ++i)
        writeEntry(QStringLiteral("off%1.desktop").arg(i), application("/bin/off", off[i] + '\n'));
    writeEntry(QStringLiteral("link.desktop"), "[Desktop Entry]\nType=Link\nURL=/\n");
    writeEntry(QStringLiteral("none.desktop"), "[Desktop Entry]\nType=Application\nName=No program\n");
    writeEntry(QStringLiteral(".hidden.desktop"), application("/bin/off"));
    writeEntry(QStringLiteral("notes.txt"), application("/bin/off"));
    writeEntry(QStringLiteral("on1.desktop"),
               application("/bin/on1", "OnlyShowIn=KDE;XFCE;\nHidden=false\n"));
    writeEntry(QStringLiteral("on2.desktop"), application("/bin/on2", "NotShowIn=KDE;\n"));
    EXPECT_EQ(paths(), (QStringList{QStringLiteral("/bin/on1"), QStringLiteral("/bin/on2")}));
    const WithEnvironment desktop("XDG_CURRENT_DESKTOP", "X-Other:KDE");
    EXPECT_EQ(paths().filter(QStringLiteral("/bin/on")), QStringList{QStringLiteral("/bin/on1")});
}

TEST_F(AutostartTest, DamagedEntriesAreLeftOutWithOneLine) {
    writeEntry(QStringLiteral("huge.desktop"), application("/bin/huge", QByteArray(300 * 1024, '#')));
    writeEntry(QStringLiteral("binary.desktop"), QByteArray("\x7F"
                                                            "ELF\0\0\xFF\xFE",
                                                            8));
    writeEntry(QStringLiteral("empty.desktop"), {});
    writeEntry(QStringLiteral("headless.desktop"), "[Other]\nExec=/bin/x\n");
    QDir().mkpath(entryPath(QStringLiteral("folder.desktop")));
    QFile::link(QStringLiteral("loop.desktop"), entryPath(QStringLiteral("loop.desktop")));
    QFile::link(QStringLiteral("/dev/zero"), entryPath(QStringLiteral("zero.desktop")));
    ASSERT_EQ(mkfifo(qPrintable(entryPath(QStringLiteral("pipe.desktop"))), 0600), 0);
    const QStringList damaged = files();
    writeEntry(QStringLiteral("good.desktop"), application("/bin/good"));

    const CaughtLog log;
    EXPECT_EQ(paths(), QStringList{QStringLiteral("/bin/good")});
    EXPECT_EQ(paths(), QStringList{QStringLiteral("/bin/good")});
    EXPECT_EQ(log.lines().size(), damaged.size()) << qPrintable(log.lines().join(u'\n'));
    for (const QString& file : damaged)
        EXPECT_EQ(log.lines().filter(entryPath(file)).size(), 1) << qPrintable(file);

    // Nor does adding one of these names follow a link or replace what is there.
    EXPECT_EQ(Autostart::append(makeProgram(QStringLiteral("loop")), false), std::error_code());
    EXPECT_TRUE(files().contains(QStringLiteral("loop-2.desktop")));
    EXPECT_EQ(files().size(), damaged.size() + 2);
}

TEST_F(AutostartTest, ARefusingDiskLosesNothing) {
    const auto setModes = [this](mode_t ofFolders, mode_t ofEntry) {
        chmod(qPrintable(entryPath(QStringLiteral("Moon.desktop"))), ofEntry);
        for (const char* folder : {"config/autostart", "config", ""})
            chmod(qPrintable(path(QString::fromLatin1(folder))), ofFolders);
    };
    const QString program = makeProgram(QStringLiteral("Moon"));
    const QString other = makeProgram(QStringLiteral("Other"));
    ASSERT_EQ(Autostart::append(program, false), std::error_code());
    const auto items = Autostart::items();
    const QByteArray before = read(entryPath(QStringLiteral("Moon.desktop")));
    {
        const FullDisk full;
        EXPECT_EQ(Autostart::append(program, true), std::errc::io_error);
        EXPECT_EQ(Autostart::append(other, false), std::errc::io_error);
    }
    {
        setModes(0555, 0444);
        const AsOrdinaryUser user;
        EXPECT_EQ(Autostart::append(other, false), std::errc::permission_denied);
        EXPECT_EQ(Autostart::remove(items[0]), std::errc::permission_denied);
        EXPECT_EQ(Autostart::items(), items);
    }
    setModes(0755, 0600);
    EXPECT_EQ(files(), QStringList{QStringLiteral("Moon.desktop")});
    EXPECT_EQ(read(entryPath(QStringLiteral("Moon.desktop"))), before);

    // A file where the folder should be.
    const WithEnvironment config("XDG_CONFIG_HOME", program.toUtf8());
    EXPECT_EQ(Autostart::append(program, false), std::errc::not_a_directory);
    EXPECT_TRUE(Autostart::items().isEmpty());
}
