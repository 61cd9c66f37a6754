// SPDX-License-Identifier: MIT
#include "platform/browser/DefaultApplications.h"

#include "tests/FakeDesktop.h"

namespace {

using DefaultApplications::Outcome;

const QUrl kPage(QStringLiteral("http://a.example/%25u"));

TEST(DefaultApplicationsTest, OpensWithAnApplicationOrTheSystemsChoice) {
    const FakeDesktop& desktop = FakeDesktop::shared();
    EXPECT_EQ(DefaultApplications::open(kPage, desktop.entry(QStringLiteral("mail.desktop"))),
              Outcome::Opened);
    EXPECT_EQ(desktop.starts("mail"), "--page http://a.example/%25u");
    EXPECT_EQ(DefaultApplications::open(kPage), Outcome::Opened);
    EXPECT_EQ(desktop.starts("browser"), "--page http://a.example/%25u");

    // The programs' folder has a name full of what command lines give a meaning to.
    EXPECT_EQ(DefaultApplications::open(kPage, desktop.program(QStringLiteral("viewer"))), Outcome::Opened);
    EXPECT_EQ(desktop.starts("viewer"), "http://a.example/%25u");
}

TEST(DefaultApplicationsTest, TellsWhyNothingOpened) {
    const FakeDesktop& desktop = FakeDesktop::shared();
    const struct {
        const char* application;
        QUrl address;
        Outcome outcome;
    } cases[]{
        {"", QUrl(QStringLiteral("x-unknown:page")), Outcome::NoApplication},
        {"", QUrl(QStringLiteral("file:///nowhere")), Outcome::FileNotFound},
        {"", QUrl(QStringLiteral("-option")), Outcome::NotAnAddress},
        {"", QUrl(), Outcome::NotAnAddress},
        {"nowhere.desktop", kPage, Outcome::FileNotFound},
        {"gone.desktop", kPage, Outcome::NotExecutable},
    };
    for (const auto& [application, address, outcome] : cases) {
        const QString path = *application ? desktop.entry(QLatin1String(application)) : QString();
        EXPECT_EQ(DefaultApplications::open(address, path), outcome) << address.toString().toStdString();
    }
}

TEST(DefaultApplicationsTest, TellsWhatCanBeStarted) {
    const FakeDesktop& desktop = FakeDesktop::shared();
    const QString hidden = desktop.entry(QStringLiteral("hidden.desktop"));
    FakeDesktop::write(hidden,
                       QStringLiteral("[Desktop Entry]\nType=Application\nName=H\nExec=sh\nHidden=true\n"));
    const QString tryExec = desktop.entry(QStringLiteral("try.desktop"));
    FakeDesktop::write(
        tryExec,
        QStringLiteral("[Desktop Entry]\nType=Application\nName=T\nExec=sh\nTryExec=no-such-program\n"));
    for (const QString& path :
         {desktop.entry(QStringLiteral("browser.desktop")), desktop.program(QStringLiteral("browser"))})
        EXPECT_TRUE(DefaultApplications::isExecutable(path)) << path.toStdString();
    for (const QString& path : {desktop.entry(QStringLiteral("gone.desktop")), hidden, tryExec,
                                desktop.programs(), QStringLiteral("/etc/passwd"), QString()})
        EXPECT_FALSE(DefaultApplications::isExecutable(path)) << path.toStdString();
    QFile::remove(hidden);
    QFile::remove(tryExec);
}

} // namespace
