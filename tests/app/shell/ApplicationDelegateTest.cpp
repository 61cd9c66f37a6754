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
    using Row = std::tuple<const char*, double>;
    for (const auto& [name, number] :
         {Row{"LVTimeZoneType", 2.0}, Row{"LVTimeZoneCustomGMTOffset", 0.0}, Row{"LVLatitude", 40.714},
          Row{"LVLongitude", -74.006}, Row{"LVBrightness", 0.5}, Row{"SUScheduledCheckInterval", 604800}})
        EXPECT_NEAR(defaults->floatForKey(QLatin1String(name)), number, 0.001) << name;
    for (const char* section : {"Calculation", "Information", "RiseSet", "Settings", "Moon"})
        EXPECT_TRUE(defaults->boolForKey(u"LV%1Disclosure"_s.arg(QLatin1String(section))));
    EXPECT_TRUE(defaults->boolForKey(u"SUEnableAutomaticChecks"_s));
    EXPECT_EQ(defaults->value(PreferenceKeys::customOffsetTitle), u"GMT +0");
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
    EXPECT_FALSE(delegate_.alreadySetToStartup(QUrl(older.toString().toLower()))) << "no case folding";

    const CaughtLog log;
    delegate_.toggleSetToStartup(self);
    EXPECT_EQ(paths(), (QStringList{other.toLocalFile(), self.toLocalFile()}));
    EXPECT_EQ(log.lines(), (QStringList{u"Removed %1 from the login items."_s.arg(beta.toLocalFile()),
                                        u"Removed %1 from the login items."_s.arg(older.toLocalFile())}));
    EXPECT_FALSE(Autostart::items().constLast().hidden);
    delegate_.toggleSetToStartup(self);
    EXPECT_EQ(paths(), QStringList{other.toLocalFile()});

    const QUrl otherName = program(u"Moon"_s);
    for (int i = 0; i < 2; ++i) {
        delegate_.toggleSetToStartup(otherName);
        EXPECT_TRUE(delegate_.alreadySetToStartup(otherName)) << "only what has the name is removed";
    }
    delegate_.toggleSetToStartup(std::nullopt);
    EXPECT_TRUE(paths().contains(Bundle::main().bundlePath()))
        << "the application itself is meant by nothing";
    delegate_.toggleSetToStartup(std::nullopt);
    EXPECT_FALSE(delegate_.alreadySetToStartup(std::nullopt));
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
    for (const QString& bad : {u"1.0 beta"_s, u"1.0\u00df"_s, u"1.0\n"_s})
        EXPECT_TRUE(ApplicationDelegate::feedURL(u"https://feed.example/?ver="_s + bad).isEmpty())
            << qPrintable(bad);
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
