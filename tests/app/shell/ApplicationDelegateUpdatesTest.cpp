// SPDX-License-Identifier: MIT
#include "app/shell/ApplicationDelegate.h"

#include "platform/bundle/Bundle.h"
#include "platform/updates/UpdateAlert.h"
#include "shared/utilities/classes/ExtraStringSystemUtilities.h"
#include "tests/FakeDesktop.h"
#include "tests/TestMain.h"
#include "tests/platform/updates/FeedServer.h"

#include <QApplication>

namespace {

bool closeAlert() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* alert = qobject_cast<UpdateAlert*>(window); alert && alert->isVisible())
            return alert->close();
    }
    return false;
}

} // namespace

TEST(ApplicationDelegateUpdates, AsksItsOwnFeedThroughTheSystemsProxy) {
    // The proxy stands where the network would be: it sees which host is asked for and lets nothing through.
    FeedServer proxy;
    const WithEnvironment environment("https_proxy", "http://" + proxy.host("plain").toUtf8());

    const CaughtLog log;
    ApplicationDelegate delegate;
    delegate.initCheckForUpdateURL();
    delegate.forwardCheckForUpdate(nullptr);
    EXPECT_TRUE(waitFor(closeAlert)) << "the user asked, so the failure is told";

    const Bundle& bundle = Bundle::main();
    const QString host = bundle.infoString(QStringLiteral("LVFeedHost"));
    EXPECT_EQ(proxy.requests(), QStringList(QStringLiteral("plain %1:443").arg(host)));
    EXPECT_EQ(log.lines().value(0),
              QStringLiteral("Checking for update: https://%1/cgi-sys/cgiwrap/Corvanta/SharewareAppCast.pl"
                             "?bld=%2&frq=604800&prd=lv&end=i386&ver=%3&sys=%4")
                  .arg(host, bundle.infoString(QStringLiteral("CFBundleVersion")),
                       bundle.infoString(QStringLiteral("CFBundleShortVersionString")),
                       ExtraStringUtilities::stringWithOSVersion()));
}

TEST(ApplicationDelegateUpdates, AnAddressThatNobodyMeantIsNone) {
    for (const char16_t* version : {u"1.0 beta", u"1.0\u00df", u"1.0\n"}) {
        const QString url = ApplicationDelegate::feedURLString(
            QStringLiteral("feed.example"), QStringLiteral("100"), QStringLiteral("604800"),
            QString::fromUtf16(version), QStringLiteral("120000"));
        EXPECT_TRUE(ApplicationDelegate::feedURL(url).isEmpty()) << qPrintable(url);
    }
}

TEST(ApplicationDelegateUpdates, AnOffersPageOpensInTheDefaultBrowser) {
    const FakeDesktop& desktop = FakeDesktop::shared();
    ApplicationDelegate delegate;
    EXPECT_TRUE(delegate.openDownloadPage(QUrl(QStringLiteral("https://www.example/get?a=b%20c"))));
    EXPECT_EQ(desktop.starts("browser"), "--page https://www.example/get?a=b%20c");
    const CaughtLog log;
    EXPECT_FALSE(delegate.openDownloadPage(QUrl(QStringLiteral("x-nobody:page"))));
    EXPECT_FALSE(log.lines().isEmpty());
}
