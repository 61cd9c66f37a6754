// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/InternetConfig.h"

#include "tests/FakeDesktop.h"

#include <QLabel>
#include <QMessageBox>

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

TEST_F(InternetConfigTest, AddressesGoToTheApplicationOfTheirSchemeAsDataOrNotAtAll) {
    using Row = std::tuple<QString, const char*, QString>;
    const QString hostile = u"http://example.com/'$(touch%20x);a=$HOME&'*%25u%25F#"_s;
    for (const auto& [address, program, opened] :
         {Row{u"http://example.com/a?b=c#d"_s, "browser", u"http://example.com/a?b=c#d"_s},
          Row{u"HTTPS://example.com/"_s, "browser", u"https://example.com/"_s},
          Row{u" \r\n\twww.example.com/moon \n"_s, "browser", u"http://www.example.com/moon"_s},
          Row{u"example.com"_s, "browser", u"http://example.com"_s}, Row{hostile, "browser", hostile},
          Row{u"mailto:moon@example.com?subject=it's%20full"_s, "mail",
              u"mailto:moon@example.com?subject=it's%20full"_s}}) {
        InternetConfig::launchURL(u" \n\t"_s);
        InternetConfig::launchURL(address);
        EXPECT_EQ(desktop.starts(program), onePage(opened));
    }
    for (const QString& address : {u"http://example.com/%u"_s, u"--profile=/tmp/x://y"_s}) {
        const CaughtLog log;
        InternetConfig::launchURL(address);
        ASSERT_EQ(log.lines().size(), 2) << qPrintable(address);
        EXPECT_TRUE(log.lines()[1].contains(u"Returned (-50)")) << qPrintable(address);
    }
    EXPECT_TRUE(alerts.isEmpty());
}

TEST_F(InternetConfigTest, LocalPagesGoToTheBrowserAndOtherFilesToTheSystemsChoice) {
    const QString page = desktop.program(u"page.HTML"_s);
    const QString notes = desktop.program(u"notes.txt"_s);
    for (const QString& file : {page, notes})
        writeFile(file, "<p>Moon</p>");
    const QString pageURL = QUrl::fromLocalFile(page).toString(QUrl::FullyEncoded);
    const QString notesURL = QUrl::fromLocalFile(notes).toString(QUrl::FullyEncoded);
    // GIO hands local files over by their paths, as desktop entries allow.
    for (const QString& url : {pageURL, QString(pageURL).replace(u"file:///"_s, u"file:/"_s)}) {
        InternetConfig::launchURL(url);
        EXPECT_EQ(desktop.starts("browser"), onePage(page));
    }
    InternetConfig::launchURL(notesURL);
    EXPECT_EQ(desktop.starts("viewer"), onePage(notes));
    InternetConfig().launchURL(notesURL, QUrl::fromLocalFile(desktop.entry(u"mail.desktop"_s)).toString());
    EXPECT_EQ(desktop.starts("mail"), onePage(notes));

    CaughtLog log;
    InternetConfig::launchURL(u"file:///nowhere/page.html"_s);
    EXPECT_EQ(log.lines().value(0), u"InternetConfig 236");
    EXPECT_TRUE(log.lines().value(1).startsWith(
        u"LSOpenFromURLSpec faiure.  Returned (-43) with URL <file:///nowhere/p"));
}

TEST_F(InternetConfigTest, NoPreferenceForASchemeIsLoggedAndRaised) {
    EXPECT_THROW(InternetConfig().launchURL(u"x-unknown:page"_s, QString()), InternetConfigException);
    CaughtLog log;
    InternetConfig::launchURL(u"x-unknown:page"_s);
    EXPECT_EQ(log.lines(), (QStringList{u"-[InternetConfig defaultBrowserForScheme:] 78 error=-666"_s,
                                        u"ICGetPref faiure.  Can't find default browser.  Returned -666"_s}));
}

TEST_F(InternetConfigTest, AMissingBrowserIsToldOnce) {
    InternetConfig::launchURL(u"x-gone:page%251"_s);
    const QString gone = QUrl::fromLocalFile(desktop.entry(u"gone.desktop"_s)).toString();
    EXPECT_EQ(alerts, (QList<QStringList>{
                          {u"Browser not found."_s, u"url: <x-gone:page%251>, browser: <"_s + gone + u'>'}}));

    // A browser that the caller chose and that is gone gives way to the default.
    for (const QString& browser : {u"file:///nowhere"_s, u"file:///etc/passwd"_s}) {
        InternetConfig().launchURL(u"http://a.example"_s, browser);
        EXPECT_EQ(desktop.starts("browser"), onePage(u"http://a.example"_s));
    }
    EXPECT_EQ(alerts.size(), 3);

    // So does one that is put right while the alert stands.
    InternetConfig::showAlert = [&](const QString&, const QString&) { desktop.writeProgram(u"gone"_s); };
    InternetConfig::launchURL(u"x-gone:again"_s);
    EXPECT_EQ(desktop.starts("gone"), onePage(u"x-gone:again"_s));
    QFile::remove(desktop.program(u"gone"_s));
}

TEST_F(InternetConfigTest, AnApplicationThatCantBeFoundLeavesTheAddressToTheSystem) {
    const WithEnvironment path("PATH", desktop.programs().toLocal8Bit());
    const CaughtLog log;
    InternetConfig::launchURL(u"x-missing:page"_s);
    EXPECT_EQ(log.lines(),
              QStringList(u"Can't find default browser from LaunchServices or InternetConfig."_s));
    desktop.writeProgram(u"xdg-open"_s);
    InternetConfig::launchURL(u"x-missing:page"_s);
    EXPECT_EQ(desktop.starts("xdg-open"), "x-missing:page");
    QFile::remove(desktop.program(u"xdg-open"_s));
}

TEST_F(InternetConfigTest, WhatIsStartedStandsOnItsOwn) {
    const WithEnvironment folder("APPDIR", "/tmp/.mount_moon");
    const WithEnvironment libraries("LD_LIBRARY_PATH", "/tmp/.mount_moon/usr/lib:/opt/lib");
    const WithEnvironment token("XDG_ACTIVATION_TOKEN", "stale");
    InternetConfig::launchURL(u"http://a.example"_s);
    ASSERT_EQ(desktop.starts("browser"), onePage(u"http://a.example"_s));

    const QStringList found = desktop.surroundings();
    ASSERT_GT(found.size(), 3);
    EXPECT_NE(found[0].toInt(), getsid(0));
    EXPECT_EQ(found[1], u"/dev/null"_s);
    EXPECT_TRUE(found.contains(u"LD_LIBRARY_PATH=/opt/lib"_s));
    EXPECT_TRUE((found.filter(u".mount_moon"_s) + found.filter(u"XDG_ACTIVATION_TOKEN"_s)).isEmpty());
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

TEST(InternetConfigAlertTest, ShowsMarkupAsItIsAndReturnsWhenClosed) {
    int shown = 0;
    QTimer::singleShot(0, [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        for (const QLabel* label : box->findChildren<QLabel*>())
            shown += label->textFormat() == Qt::PlainText && label->text() == u"<b>x</b>";
        box->accept();
    });
    InternetConfig::showAlert(u"<b>x</b>"_s, u"<b>x</b>"_s);
    EXPECT_EQ(shown, 2) << "message and details";
}

} // namespace
