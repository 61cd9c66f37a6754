// SPDX-License-Identifier: MIT
#include "platform/bundle/Bundle.h"
#include "tests/platform/autostart/TestAutostart.h"

#include <QCoreApplication>

namespace {

class BundlePath : public TestAutostart {
protected:
    BundlePath() {
        makeProgram(u"bin/x"_s); // with its folder
        QFile::link(executable_, path(u"bin/moon"_s));
    }

    QString entry(const QString& data) const {
        return path(data + u"/applications/com.corvanta.Lumivane.desktop"_s);
    }

    void writeDesktopEntry(const QString& data, const QString& keys) const {
        writeFile(entry(data), u"[Desktop Entry]\nType=Application\n%1\n"_s.arg(keys).toUtf8());
    }

    static QString bundlePath() { return Bundle::main().bundlePath(); }

    const QString executable_ = QCoreApplication::applicationFilePath();

private:
    WithEnvironment home_{"XDG_DATA_HOME", path(u"home"_s).toUtf8()};
    WithEnvironment system_{"XDG_DATA_DIRS", path(u"system"_s).toUtf8()};
    WithEnvironment programs_{"PATH", path(u"bin"_s).toUtf8()};
};

} // namespace

TEST_F(BundlePath, IsTheDesktopEntryThatStartsThisProgram) {
    EXPECT_EQ(bundlePath(), executable_);
    writeDesktopEntry(u"system"_s, u"Exec=moon %U"_s);
    EXPECT_EQ(bundlePath(), entry(u"system"_s)) << "found in PATH, through a link";
    writeDesktopEntry(u"home"_s, u"Exec=/usr/bin/other"_s);
    EXPECT_EQ(bundlePath(), entry(u"system"_s)) << "another program of the same name";
    writeDesktopEntry(u"home"_s, u"Exec=sh -c moon\nTryExec=%1"_s.arg(executable_));
    EXPECT_EQ(bundlePath(), entry(u"home"_s));
    writeDesktopEntry(u"system"_s, u"Exec=\"unbalanced"_s);
    writeDesktopEntry(u"home"_s, u"Exec=moon\nHidden=true"_s);
    EXPECT_EQ(bundlePath(), executable_);
}

TEST_F(BundlePath, IsTheAppImageThatThisProgramIsPartOf) {
    const QString image = makeProgram(u"Moon 1.0.AppImage"_s);
    const WithEnvironment appImage("APPIMAGE", image.toUtf8());
    {
        const WithEnvironment mounted("APPDIR", QCoreApplication::applicationDirPath().toUtf8());
        EXPECT_EQ(bundlePath(), image);
        // The entry inside the image starts the program, but is gone with its mount.
        writeDesktopEntry(u"system"_s, u"Exec=moon"_s);
        EXPECT_EQ(bundlePath(), image);
        writeDesktopEntry(u"home"_s, u"Exec=\"%1\" %U"_s.arg(image));
        EXPECT_EQ(bundlePath(), entry(u"home"_s));
        QFile::remove(entry(u"home"_s));
    }
    const WithEnvironment mounted("APPDIR", "/tmp/.mount_other");
    EXPECT_EQ(bundlePath(), entry(u"system"_s)) << "started by another's AppImage";
}
