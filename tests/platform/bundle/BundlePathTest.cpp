// SPDX-License-Identifier: MIT
#include "platform/bundle/Bundle.h"
#include "tests/platform/autostart/TestAutostart.h"

#include <QCoreApplication>

namespace {

class BundlePath : public TestAutostart {
protected:
    BundlePath() {
        for (const char* folder : {"home/applications", "system/applications", "bin"})
            QDir().mkpath(path(QString::fromLatin1(folder)));
        QFile::link(executable_, path(QStringLiteral("bin/moon")));
    }

    QString entry(const QString& data) const {
        return path(data + QStringLiteral("/applications/com.corvanta.Lumivane.desktop"));
    }

    void writeDesktopEntry(const QString& data, const QString& keys) const {
        write(entry(data), QStringLiteral("[Desktop Entry]\nType=Application\n%1\n").arg(keys).toUtf8());
    }

    static QString bundlePath() { return Bundle::main().bundlePath(); }

    const QString executable_ = QCoreApplication::applicationFilePath();

private:
    WithEnvironment home_{"XDG_DATA_HOME", path(QStringLiteral("home")).toUtf8()};
    WithEnvironment system_{"XDG_DATA_DIRS", path(QStringLiteral("system")).toUtf8()};
    WithEnvironment programs_{"PATH", path(QStringLiteral("bin")).toUtf8()};
};

} // namespace

TEST_F(BundlePath, IsTheDesktopEntryThatStartsThisProgram) {
    EXPECT_EQ(bundlePath(), executable_);
    writeDesktopEntry(QStringLiteral("system"), QStringLiteral("Exec=moon %U"));
    EXPECT_EQ(bundlePath(), entry(QStringLiteral("system"))) << "found in PATH, through a link";
    writeDesktopEntry(QStringLiteral("home"), QStringLiteral("Exec=/usr/bin/other"));
    EXPECT_EQ(bundlePath(), entry(QStringLiteral("system"))) << "another program of the same name";
    writeDesktopEntry(QStringLiteral("home"), QStringLiteral("Exec=sh -c moon\nTryExec=%1").arg(executable_));
    EXPECT_EQ(bundlePath(), entry(QStringLiteral("home")));
    writeDesktopEntry(QStringLiteral("system"), QStringLiteral("Exec=\"unbalanced"));
    writeDesktopEntry(QStringLiteral("home"), QStringLiteral("Exec=moon\nHidden=true"));
    EXPECT_EQ(bundlePath(), executable_);
}

TEST_F(BundlePath, IsTheAppImageThatThisProgramIsPartOf) {
    const QString image = makeProgram(QStringLiteral("Moon 1.0.AppImage"));
    const WithEnvironment appImage("APPIMAGE", image.toUtf8());
    {
        const WithEnvironment mounted("APPDIR", QCoreApplication::applicationDirPath().toUtf8());
        EXPECT_EQ(bundlePath(), image);
        // The entry inside the image starts the program, but is gone with its mount.
        writeDesktopEntry(QStringLiteral("system"), QStringLiteral("Exec=moon"));
        EXPECT_EQ(bundlePath(), image);
        writeDesktopEntry(QStringLiteral("home"), QStringLiteral("Exec=\"%1\" %U").arg(image));
        EXPECT_EQ(bundlePath(), entry(QStringLiteral("home")));
        QFile::remove(entry(QStringLiteral("home")));
    }
    EXPECT_EQ(bundlePath(), entry(QStringLiteral("system"))) << "no image is mounted";
    const WithEnvironment mounted("APPDIR", "/tmp/.mount_other");
    EXPECT_EQ(bundlePath(), entry(QStringLiteral("system"))) << "started by another's AppImage";
    QFile::remove(entry(QStringLiteral("system")));
    EXPECT_EQ(bundlePath(), executable_);
}
