// SPDX-License-Identifier: MIT
#include "platform/updates/UpdateChecker.h"

#include "platform/bundle/Bundle.h"
#include "platform/preferences/Preferences.h"
#include "platform/updates/UpdateAlert.h"
#include "tests/platform/updates/FeedServer.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressDialog>
#include <QPushButton>

namespace {

const UpdateCheckerTiming kAtOnce{.firstCheck = std::chrono::milliseconds(0),
                                  .limits = {.time = std::chrono::seconds(5), .bytes = 1 << 16}};

Preferences* defaults() {
    return Preferences::standard();
}

QByteArray runningBuild() {
    return Bundle::main().infoString(u"CFBundleVersion"_s).toUtf8();
}

/// The one alert that comes up; null when none does.
UpdateAlert* alert() {
    waitFor([] { return !shownWindows<UpdateAlert>().isEmpty(); });
    EXPECT_EQ(shownWindows<UpdateAlert>().size(), 1);
    return shownWindows<UpdateAlert>().value(0);
}

QString textOf(const UpdateAlert* shown, const char* name) {
    const auto* label = shown ? shown->findChild<QLabel*>(QLatin1String(name)) : nullptr;
    return label ? label->text() : u"(none)"_s;
}

/// A text in the shape that the dialogs give it, for the running program.
QString running(const char* format) {
    const Bundle& bundle = Bundle::main();
    return QString::fromUtf8(format)
        .replace(u"NAME"_s, bundle.infoString(u"CFBundleName"_s))
        .replace(u"VERSION"_s, bundle.infoString(u"CFBundleShortVersionString"_s));
}

QString offered() {
    return running("A new version of NAME is available!");
}

class Delegate : public UpdateCheckerDelegate {
public:
    QList<FeedParameter> feedParametersForUpdater(UpdateChecker*, bool) override {
        ++questions;
        return parameters;
    }
    bool openDownloadPage(const QUrl& page) override {
        opened.append(page);
        return opens;
    }

    QList<FeedParameter> parameters;
    int questions = 0;
    QList<QUrl> opened;
    bool opens = true;
};

class UpdateCheckerTest : public testing::Test {
protected:
    UpdateCheckerTest() {
        defaults()->remove(SULastCheckTimeKey);
        defaults()->remove(SUSkippedVersionKey);
        defaults()->remove(SUScheduledCheckIntervalKey);
        defaults()->set(SUEnableAutomaticChecksKey, false);
    }

    ~UpdateCheckerTest() override {
        EXPECT_TRUE(waitFor([] { return shownWindows<UpdateAlert>().isEmpty(); }));
    }

    void serve(const QByteArray& feed) { server_.put(u"feed"_s, feed); }

    std::unique_ptr<UpdateChecker> checker(const UpdateCheckerTiming& timing = kAtOnce) {
        auto updater = std::make_unique<UpdateChecker>(timing);
        updater->setDelegate(&delegate_);
        updater->setFeedURL(server_.url(u"feed"_s));
        return updater;
    }

    /// An updater that looks by itself as soon as it may.
    std::unique_ptr<UpdateChecker> automatic(const UpdateCheckerTiming& timing = kAtOnce) {
        defaults()->set(SUEnableAutomaticChecksKey, true);
        return checker(timing);
    }

    /// Asks for a check; whether its answer's headline and sentence hold these words. Then presses a key in
    /// it.
    void expectAnswer(const QString& headline, const QString& sentence, int key = Qt::Key_Escape) {
        const auto updater = checker();
        updater->checkForUpdates(nullptr);
        UpdateAlert* answer = alert();
        ASSERT_NE(answer, nullptr);
        EXPECT_EQ(textOf(answer, "headline"), headline);
        EXPECT_TRUE(textOf(answer, "sentence").contains(sentence)) << qPrintable(textOf(answer, "sentence"));
        press(answer, key);
    }

    /// Whether one check by itself comes to its end without a word to the user.
    void expectSilence() {
        const qsizetype before = server_.requests().size();
        defaults()->remove(SULastCheckTimeKey);
        const auto updater = automatic();
        EXPECT_TRUE(waitFor([&] { return updater->timeUntilNextCheck() > std::chrono::minutes(30); }));
        EXPECT_EQ(server_.requests().size(), before + 1);
        EXPECT_TRUE(shownWindows<UpdateAlert>().isEmpty());
    }

    FeedServer server_;
    Delegate delegate_;
};

} // namespace

TEST_F(UpdateCheckerTest, OffersANewerVersion) {
    serve(
        feedWith(runningBuild() + ".1", "9 %1 &lt;b>", "https://www.example/get", "<script>notes</script>"));
    const auto updater = checker();
    updater->checkForUpdates(nullptr);
    UpdateAlert* offer = alert();
    ASSERT_TRUE(offer);
    EXPECT_EQ(textOf(offer, "sentence"), running("NAME 9 %1 <b> is now available (you have VERSION)."));
    for (const QLabel* label : offer->findChildren<QLabel*>())
        EXPECT_TRUE(label->textFormat() == Qt::PlainText || label->text().isEmpty());
    auto* notes = offer->findChild<QPlainTextEdit*>();
    EXPECT_EQ(notes->toPlainText(), u"<script>notes</script>");
    EXPECT_FALSE(offer->isModal());
    press(notes, Qt::Key_Return);
    EXPECT_EQ(delegate_.opened, QList{QUrl(u"https://www.example/get"_s)});

    // Without a browser the user gets the address, and without a page no button for it.
    delegate_.opens = false;
    updater->checkForUpdates(nullptr);
    press(alert(), Qt::Key_Return);
    EXPECT_TRUE(textOf(alert(), "sentence").contains(u"https://www.example/get"));
    press(alert(), Qt::Key_Escape);
    serve(feedWith(runningBuild() + ".1", "9", "javascript:alert(1)"));
    expectAnswer(offered(), running("NAME 9 is now"), Qt::Key_Return);
    EXPECT_EQ(delegate_.opened.size(), 2);
}

TEST_F(UpdateCheckerTest, TellsOnlyTheAskerOfNothingNewAndOfFailures) {
    serve(feedWith(runningBuild(), "9"));
    expectAnswer(u"You're up to date!"_s, running("NAME VERSION is currently the newest version available."));
    expectSilence();
    const CaughtLog log;
    serve("<rss><channel>");
    expectAnswer(u"Update Error!"_s, u"understood"_s, Qt::Key_Return);
    expectSilence();
    EXPECT_EQ(log.lines().filter(u"The check for updates failed (line 1:"_s).size(), 2);

    const auto updater = automatic();
    updater->setFeedURL(QUrl(u"http://localhost/feed"_s));
    EXPECT_FALSE(updater->timeUntilNextCheck());
    updater->checkForUpdates(nullptr);
    EXPECT_TRUE(textOf(alert(), "sentence").contains(u"where to look"));
    press(alert(), Qt::Key_Escape);
}

TEST_F(UpdateCheckerTest, SkipsOrRemindsAsTold) {
    const auto answerOffer = [&](const char* button) {
        defaults()->remove(SULastCheckTimeKey);
        const auto updater = automatic();
        UpdateAlert* offer = alert();
        ASSERT_TRUE(offer);
        offer->findChild<QPushButton*>(QLatin1String(button))->click();
    };
    serve(feedWith(runningBuild() + ".1", "9.1"));
    answerOffer("remindLater");
    answerOffer("skip");
    expectSilence();
    expectAnswer(offered(), u"9.1"_s); // who asks hears of a skipped one too
    serve(feedWith(runningBuild() + ".2", "9.2"));
    answerOffer("remindLater");
}

TEST_F(UpdateCheckerTest, ChecksByItselfOncePerInterval) {
    constexpr int kHour = 3600;
    using Row = std::tuple<int, int, std::chrono::milliseconds, int>;
    const auto lastCheck = [](int secondsAgo) {
        const QDateTime when = QDateTime::currentDateTimeUtc().addSecs(-secondsAgo);
        defaults()->set(SULastCheckTimeKey, when.toString(Qt::ISODate));
    };
    UpdateCheckerTiming timing = kAtOnce;
    for (const auto& [interval, last, first, expected] :
         {Row{0, 0, {}, kHour},                                      // an interval of 0 counts as an hour
          Row{7200, 3700, {}, 3500}, Row{7200, -400 * 86400, {}, 0}, // a last check in the future is none
          Row{60, 400 * 86400, std::chrono::minutes(5), 300}}) {
        defaults()->set(SUScheduledCheckIntervalKey, interval);
        lastCheck(last);
        timing.firstCheck = first;
        const auto wait = automatic(timing)->timeUntilNextCheck();
        ASSERT_TRUE(wait);
        EXPECT_NEAR(static_cast<double>(wait->count()) / 1000, expected, 30) << interval << ' ' << last;
    }

    // Waits are cut into pieces, after which the clock is asked again; the switch counts as soon as it
    // changes.
    serve(feedWith("0", "0"));
    timing.firstCheck = {};
    timing.longestWait = std::chrono::milliseconds(1);
    lastCheck(0);
    const auto updater = automatic(timing);
    EXPECT_GT(updater->timeUntilNextCheck(), std::chrono::minutes(30));
    defaults()->set(SUEnableAutomaticChecksKey, false);
    EXPECT_FALSE(updater->timeUntilNextCheck());
    defaults()->set(SUEnableAutomaticChecksKey, true);
    lastCheck(8 * 86400);
    EXPECT_TRUE(waitFor([&] { return delegate_.questions == 1; }));
    EXPECT_TRUE(waitFor([&] { return updater->timeUntilNextCheck() > std::chrono::minutes(30); }))
        << "counted from this check";
    EXPECT_EQ(server_.requests().size(), 1);
}

TEST_F(UpdateCheckerTest, KeepsToOneCheckAndOneDialog) {
    serve(feedWith(runningBuild() + ".1", "9"));
    delegate_.parameters = {{u"a b"_s, u"c&d=ä"_s}};
    const auto updater = automatic();
    ASSERT_TRUE(waitFor([&] { return delegate_.questions == 1; }));
    updater->checkForUpdates(nullptr);
    UpdateAlert* offer = alert();
    updater->checkForUpdates(nullptr);
    letPass(100);
    EXPECT_EQ(alert(), offer);
    EXPECT_EQ(server_.requests(), QStringList{u"trusted /feed?a%20b=c%26d%3D%C3%A4"_s});
    press(offer, Qt::Key_Escape);
}

TEST_F(UpdateCheckerTest, LetsTheAskerGiveUpWaiting) {
    serve(feedWith("0", "0"));
    UpdateChecker updater(kAtOnce);
    updater.setFeedURL(server_.url(u"silent"_s));
    updater.checkForUpdates(nullptr);
    const auto progress = [] { return shownWindows<QProgressDialog>().value(0); };
    ASSERT_TRUE(waitFor([&] { return progress() != nullptr; }));
    progress()->findChild<QPushButton*>()->click();
    EXPECT_TRUE(waitFor([&] { return !progress(); }));
    EXPECT_TRUE(shownWindows<UpdateAlert>().isEmpty());
    expectAnswer(u"You're up to date!"_s, QString());
}
