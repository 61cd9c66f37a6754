// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/InternetConfig.h"

#include "tests/FakeDesktop.h"
#include "tests/TestMain.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>

#include <cerrno>

#include <sys/wait.h>
#include <unistd.h>

namespace {

std::string onePage(const QString& address) {
    return "--page " + address.toStdString();
}

class InternetConfigTest : public testing::Test {
protected:
    void SetUp() override {
        InternetConfig::showAlert = [this](const QString& message, const QString& details) {
            alerts.append({message, details});
        };
    }
    void TearDown() override { InternetConfig::showAlert = before; }

    FakeDesktop& desktop = FakeDesktop::shared();
    QList<QStringList> alerts;

private:
    std::function<void(const QString&, const QString&)> before = InternetConfig::showAlert;
};

TEST_F(InternetConfigTest, AddressesGoToTheApplicationOfTheirScheme) {
    const struct {
        const char* address;
        const char* program;
        const char* opened;
    } cases[]{
        {"http://example.com/a?b=c#d", "browser", "http://example.com/a?b=c#d"},
        {"HTTPS://example.com/", "browser", "https://example.com/"},
        {" \r\n\twww.example.com/moon \n", "browser", "http://www.example.com/moon"},
        {"mailto:moon@example.com?subject=it's%20full", "mail",
         "mailto:moon@example.com?subject=it's%20full"},
        {"x-long:page", "long", "x-long:page"},
    };
    for (const auto& [address, program, opened] : cases) {
        InternetConfig::launchURL(QStringLiteral(" \n\t"));
        InternetConfig::launchURL(QString::fromLatin1(address));
        EXPECT_EQ(desktop.starts(program), onePage(QString::fromLatin1(opened))) << address;
    }
    EXPECT_TRUE(alerts.isEmpty());
}

TEST_F(InternetConfigTest, LocalPagesGoToTheBrowserAndOtherFilesToTheSystemsChoice) {
    const QString page = desktop.program(QStringLiteral("page.HTML"));
    const QString notes = desktop.program(QStringLiteral("notes.txt"));
    FakeDesktop::write(page, QStringLiteral("<p>Moon</p>"));
    FakeDesktop::write(notes, QStringLiteral("Moon"));
    const QString pageURL = QUrl::fromLocalFile(page).toString(QUrl::FullyEncoded);
    const QString notesURL = QUrl::fromLocalFile(notes).toString(QUrl::FullyEncoded);

    // GIO hands local files over by their paths, as desktop entries allow.
    InternetConfig::launchURL(pageURL);
    EXPECT_EQ(desktop.starts("browser"), onePage(page));
    InternetConfig::launchURL(QString(pageURL).replace(QStringLiteral("file:///"), QStringLiteral("file:/")));
    EXPECT_EQ(desktop.starts("browser"), onePage(page));
    InternetConfig::launchURL(notesURL);
    EXPECT_EQ(desktop.starts("viewer"), onePage(notes));

    const QString mail = QUrl::fromLocalFile(desktop.entry(QStringLiteral("mail.desktop"))).toString();
    InternetConfig().launchURL(notesURL, mail);
    EXPECT_EQ(desktop.starts("mail"), onePage(notes));

    CaughtLog log;
    InternetConfig::launchURL(QStringLiteral("file:///nowhere/page.html"));
    ASSERT_EQ(log.lines().size(), 2);
    EXPECT_EQ(log.lines()[0], QStringLiteral("InternetConfig 236"));
    EXPECT_TRUE(log.lines()[1].startsWith(QStringLiteral(
        "LSOpenFromURLSpec faiure.  Returned (-43) with URL <file:///nowhere/page.html> Browser <file:///")));
}

TEST_F(InternetConfigTest, HostileAddressesAreDataOrAreRefused) {
    const QString shell = QStringLiteral("http://example.com/'$(touch%20x);a=$HOME&'*%25u%25F#\\");
    InternetConfig::launchURL(shell.chopped(1));
    EXPECT_EQ(desktop.starts("browser"), onePage(shell.chopped(1)));

    for (const char* address :
         {"http://example.com/%u", "http://example.com/\"x\"", "http://a b/", "http://a/`x`", "http://a/\nb",
          "--profile=/tmp/x://y", "http://example.com/m\xC3\xB6nd"}) {
        CaughtLog log;
        InternetConfig::launchURL(QString::fromUtf8(address));
        ASSERT_EQ(log.lines().size(), 2) << address;
        EXPECT_TRUE(log.lines()[1].contains(QStringLiteral("Returned (-50)"))) << address;
    }
    InternetConfig::launchURL(QStringLiteral("example.com"));
    EXPECT_EQ(desktop.starts("browser"), onePage(QStringLiteral("http://example.com")));
}

TEST_F(InternetConfigTest, NoPreferenceForASchemeIsLoggedAndRaised) {
    CaughtLog log;
    try {
        InternetConfig().launchURL(QStringLiteral("x-unknown:page"), QString());
        ADD_FAILURE() << "nothing raised";
    } catch (const InternetConfigException& failure) {
        EXPECT_EQ(failure.name(), QStringLiteral("InternetConfigException"));
        EXPECT_STREQ(failure.what(), "ICGetPref faiure.  Can't find default browser.  Returned -666");
    }
    EXPECT_EQ(log.lines(),
              QStringList(QStringLiteral("-[InternetConfig defaultBrowserForScheme:] 78 error=-666")));
    EXPECT_NO_THROW(InternetConfig::launchURL(QStringLiteral("x-unknown:page")));
}

TEST_F(InternetConfigTest, AMissingBrowserIsToldOnce) {
    InternetConfig::launchURL(QStringLiteral("x-gone:page%251"));
    const QString gone = QUrl::fromLocalFile(desktop.entry(QStringLiteral("gone.desktop"))).toString();
    EXPECT_EQ(alerts, (QList<QStringList>{
                          {QStringLiteral("Browser not found."),
                           QStringLiteral("url: <x-gone:page%251>, browser: <") + gone + QLatin1Char('>')}}));

    // A browser that the caller chose and that is gone gives way to the default.
    for (const QString& path :
         {QStringLiteral("/nowhere"), desktop.programs(), QStringLiteral("/etc/passwd")}) {
        InternetConfig().launchURL(QStringLiteral("http://a.example"),
                                   QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded));
        EXPECT_EQ(desktop.starts("browser"), onePage(QStringLiteral("http://a.example")));
    }
    EXPECT_EQ(alerts.size(), 4);

    // So does one that is put right while the alert stands.
    InternetConfig::showAlert = [&](const QString&, const QString&) {
        desktop.writeProgram(QStringLiteral("gone"));
    };
    InternetConfig::launchURL(QStringLiteral("x-gone:again"));
    EXPECT_EQ(desktop.starts("gone"), onePage(QStringLiteral("x-gone:again")));
    QFile::remove(desktop.program(QStringLiteral("gone")));
}

TEST_F(InternetConfigTest, AnApplicationThatCantBeFoundLeavesTheAddressToTheSystem) {
    const WithEnvironment path("PATH", desktop.programs().toLocal8Bit());
    {
        CaughtLog log;
        InternetConfig::launchURL(QStringLiteral("x-missing:page"));
        EXPECT_EQ(log.lines(), QStringList(QStringLiteral(
                                   "Can't find default browser from LaunchServices or InternetConfig.")));
    }
    desktop.writeProgram(QStringLiteral("xdg-open"));
    InternetConfig::launchURL(QStringLiteral("x-missing:page"));
    EXPECT_EQ(desktop.starts("xdg-open"), "x-missing:page");
    QFile::remove(desktop.program(QStringLiteral("xdg-open")));
}

TEST_F(InternetConfigTest, WhatIsStartedStandsOnItsOwn) {
    const WithEnvironment folder("APPDIR", "/tmp/.mount_moon");
    const WithEnvironment libraries("LD_LIBRARY_PATH", "/tmp/.mount_moon/usr/lib:/opt/lib");
    const WithEnvironment plugins("QT_PLUGIN_PATH", "/tmp/.mount_moon/plugins");
    const WithEnvironment token("XDG_ACTIVATION_TOKEN", "stale");
    InternetConfig::launchURL(QStringLiteral("http://a.example"));
    ASSERT_EQ(desktop.starts("browser"), onePage(QStringLiteral("http://a.example")));

    const QStringList found = desktop.surroundings();
    ASSERT_GT(found.size(), 3);
    EXPECT_NE(found[0].toInt(), getsid(0));
    EXPECT_EQ(found[1], QStringLiteral("/dev/null"));
    EXPECT_TRUE(found.contains(QStringLiteral("LD_LIBRARY_PATH=/opt/lib")));
    EXPECT_TRUE(found.filter(QStringLiteral(".mount_moon")).isEmpty());
    EXPECT_TRUE(found.filter(QStringLiteral("XDG_ACTIVATION_TOKEN")).isEmpty());
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

TEST(InternetConfigAlertTest, ShowsMarkupAsItIsAndReturnsWhenClosed) {
    QStringList texts;
    bool modal = false;
    QTimer::singleShot(0, [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        modal = box->isModal();
        for (const QLabel* label : box->findChildren<QLabel*>()) {
            if (!label->text().isEmpty() && label->textFormat() == Qt::PlainText)
                texts.append(label->text());
        }
        box->accept();
    });
    InternetConfig::showAlert(QStringLiteral("Browser not found."), QStringLiteral("url: <b>x</b>"));
    EXPECT_TRUE(modal);
    EXPECT_TRUE(texts.contains(QStringLiteral("Browser not found.")));
    EXPECT_TRUE(texts.contains(QStringLiteral("url: <b>x</b>")));
}

} // namespace
