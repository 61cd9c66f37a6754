// SPDX-License-Identifier: MIT
#include "app/shell/ApplicationDelegate.h"

#include "app/engine/PreferenceKeys.h"
#include "platform/bundle/Bundle.h"
#include "platform/preferences/Preferences.h"
#include "platform/updates/UpdateAlert.h"
#include "shared/utilities/classes/ExtraStringSystemUtilities.h"
#include "tests/FakeDesktop.h"
#include "tests/platform/autostart/TestAutostart.h"
#include "tests/platform/updates/FeedServer.h"

namespace {

class ApplicationDelegateTest : public TestAutostart {
protected:
    QUrl program(const QString& name) const { return QUrl::fromLocalFile(makeProgram(name)); }

    const InZone zone_{"America/New_York"};
    ApplicationDelegate delegate_;
};

} // namespace

TEST_F(ApplicationDelegateTest, APersonsFirstStartReadsTheDefaults) {
    Preferences* defaults = Preferences::standard();
    defaults->set(SUAllowsAutomaticUpdatesKey, true);
    defaults->set(SUAutomaticallyUpdateKey, true);
    const ApplicationDelegate delegate;
    using Row = std::pair<const char*, double>;
    for (const auto& [name, number] :
         {Row{"LVTimeZoneType", 2.0}, Row{"LVLatitude", 40.714}, Row{"LVLongitude", -74.006},
          Row{"LVBrightness", 0.5}, Row{"SUScheduledCheckInterval", 604800}})
        EXPECT_NEAR(defaults->floatForKey(QLatin1String(name)), number, 0.001) << name;
    for (const char* name : {"LVMoonDisclosure", "LVSettingsDisclosure", "SUEnableAutomaticChecks"})
        EXPECT_TRUE(defaults->boolForKey(QLatin1String(name))) << name;
    EXPECT_FALSE(defaults->value(SUAllowsAutomaticUpdatesKey)) << "whatever was there";
    EXPECT_FALSE(defaults->value(SUAutomaticallyUpdateKey));
}

TEST_F(ApplicationDelegateTest, SwitchingOnClearsOlderCopiesAway) {
    const QUrl older = program(u"old/LUMIVANE 0.9"_s);
    const QUrl other = program(u"other"_s);
    const QUrl beta = program(u"lumivane beta/run"_s);
    for (const QUrl& each : {older, other, beta})
        Autostart::append(each.toLocalFile(), false);
    const QUrl self = program(u"Lumivane"_s);
    EXPECT_TRUE(delegate_.alreadySetToStartup(older));
    EXPECT_FALSE(delegate_.alreadySetToStartup(self));
    const CaughtLog log;
    delegate_.toggleSetToStartup(self);
    EXPECT_EQ(paths(), (QStringList{other.toLocalFile(), self.toLocalFile()}));
    EXPECT_EQ(log.lines(), (QStringList{u"Removed %1 from the login items."_s.arg(beta.toLocalFile()),
                                        u"Removed %1 from the login items."_s.arg(older.toLocalFile())}));
    EXPECT_FALSE(Autostart::items().constLast().hidden);
    delegate_.toggleSetToStartup(self);
    EXPECT_EQ(paths(), QStringList{other.toLocalFile()});
    delegate_.toggleSetToStartup(std::nullopt);
    EXPECT_EQ(paths().last(), Bundle::main().bundlePath()) << "the application itself is meant by nothing";
}

TEST_F(ApplicationDelegateTest, AsksItsOwnFeedThroughTheSystemsProxy) {
    // The proxy stands where the network would be: it sees which host is asked for and lets nothing through.
    FeedServer proxy;
    const WithEnvironment environment("https_proxy", "http://" + proxy.host("plain").toUtf8());
    const CaughtLog log;
    delegate_.initCheckForUpdateURL();
    delegate_.forwardCheckForUpdate(nullptr);
    EXPECT_TRUE(waitFor([] { return !shownWindows<UpdateAlert>().isEmpty(); }))
        << "the user asked, so it is told";
    shownWindows<UpdateAlert>().constFirst()->close();
    const Bundle& bundle = Bundle::main();
    const QString host = bundle.infoString(u"LVFeedHost"_s);
    EXPECT_EQ(proxy.requests(), QStringList(u"plain %1:443"_s.arg(host)));
    EXPECT_EQ(log.lines().value(0),
              u"Checking for update: https://%1/cgi-sys/cgiwrap/Corvanta/SharewareAppCast.pl"
              "?bld=%2&frq=604800&prd=lv&end=i386&ver=%3&sys=%4"_s.arg(
                  host, bundle.infoString(u"CFBundleVersion"_s),
                  bundle.infoString(u"CFBundleShortVersionString"_s),
                  ExtraStringUtilities::stringWithOSVersion()));
    for (const QString& bad : {u"https://feed.example/?ver=1.0 beta"_s, u"https://feed.example/\u00df"_s})
        EXPECT_TRUE(ApplicationDelegate::feedURL(bad).isEmpty()) << qPrintable(bad);
}

TEST(ApplicationDelegate, AnOffersPageOpensInTheDefaultBrowser) {
    const FakeDesktop& desktop = FakeDesktop::shared();
    ApplicationDelegate delegate;
    EXPECT_TRUE(delegate.openDownloadPage(QUrl(u"https://www.example/get?a=b%20c"_s)));
    EXPECT_EQ(desktop.starts("browser"), "--page https://www.example/get?a=b%20c");
    const CaughtLog log;
    EXPECT_FALSE(delegate.openDownloadPage(QUrl(u"x-nobody:page"_s)));
    EXPECT_FALSE(log.lines().isEmpty());
}
