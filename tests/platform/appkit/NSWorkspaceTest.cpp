// SPDX-License-Identifier: MIT
#include "platform/appkit/NSWorkspace.h"

#include "platform/foundation/NSStringEncoding.h"
#include "tests/FakeDesktop.h"

namespace {

TEST(NSWorkspaceTest, FindsApplicationsByEveryName) {
    const FakeDesktop& desktop = FakeDesktop::shared();
    const QString browser = desktop.entry(QStringLiteral("browser.desktop"));
    for (const char* name : {"browser.desktop", "browser", "Test Browser"})
        EXPECT_EQ(NSWorkspace::fullPathForApplication(QString::fromLatin1(name)), browser) << name;
    EXPECT_EQ(NSWorkspace::fullPathForApplication(QStringLiteral("gone.desktop")),
              desktop.entry(QStringLiteral("gone.desktop")));
    for (const char* name : {"", "No Such Browser", "../applications/browser.desktop"})
        EXPECT_EQ(NSWorkspace::fullPathForApplication(QString::fromLatin1(name)), QString()) << name;
}

TEST(NSWorkspaceTest, EveryIdentifierHasANameThatFitsAndLeadsBack) {
    const FakeDesktop& desktop = FakeDesktop::shared();
    for (const QString& identifier : {QStringLiteral("mail.desktop"), FakeDesktop::longIdentifier()}) {
        const QString name = NSWorkspace::nameForApplication(identifier);
        const auto bytes = NSStringEncoding::bytesOfString(name, kCFStringEncodingMacRoman);
        ASSERT_TRUE(bytes);
        EXPECT_LE(bytes->size(), 63);
        EXPECT_EQ(NSWorkspace::fullPathForApplication(name), desktop.entry(identifier));
    }
}

TEST(NSWorkspaceTest, TellsWhatCanBeStarted) {
    const FakeDesktop& desktop = FakeDesktop::shared();
    const QString hidden = desktop.entry(QStringLiteral("hidden.desktop"));
    FakeDesktop::write(hidden,
                       QStringLiteral("[Desktop Entry]\nType=Application\nName=H\nExec=sh\nHidden=true\n"));
    const QString tryExec = desktop.entry(QStringLiteral("try.desktop"));
    FakeDesktop::write(
        tryExec,
        QStringLiteral("[Desktop Entry]\nType=Application\nName=T\nExec=sh\nTryExec=no-such-program\n"));
    EXPECT_TRUE(NSWorkspace::isExecutableApplication(desktop.entry(QStringLiteral("browser.desktop"))));
    EXPECT_TRUE(NSWorkspace::isExecutableApplication(desktop.program(QStringLiteral("browser"))));
    for (const QString& path : {desktop.entry(QStringLiteral("gone.desktop")), hidden, tryExec,
                                desktop.programs(), QStringLiteral("/etc/passwd"), QString()})
        EXPECT_FALSE(NSWorkspace::isExecutableApplication(path)) << path.toStdString();
    QFile::remove(hidden);
    QFile::remove(tryExec);
}

} // namespace
