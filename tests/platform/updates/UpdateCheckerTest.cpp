// SPDX-License-Identifier: MIT
#include "platform/updates/UpdateChecker.h"

#include "platform/bundle/Bundle.h"
#include "platform/preferences/Preferences.h"
#include "platform/updates/UpdateAlert.h"
#include "tests/TestMain.h"
#include "tests/platform/updates/FeedServer.h"

#include <QApplication>
#include <QKeyEvent>
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
    return Bundle::main().infoString(QStringLiteral("CFBundleVersion")).toUtf8();
}

QList<UpdateAlert*> alerts() {
    QList<UpdateAlert*> found;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* alert = qobject_cast<UpdateAlert*>(window); alert && alert->isVisible())
            found.append(alert);
    }
    return found;
}

/// The one alert that comes up; null when none does.
UpdateAlert* alert() {
    waitFor([] { return !alerts().isEmpty(); });
    EXPECT_EQ(alerts().size(), 1);
    return alerts().value(0);
}

QString textOf(const UpdateAlert* shown, const char* name) {
    const auto* label = shown ? shown->findChild<QLabel*>(QLatin1String(name)) : nullptr;
    return label ? label->text() : QStringLiteral("(none)");
}

/// A text in the shape that the dialogs give it, for the running program.
QString running(const char* format) {
    const Bundle& bundle = Bundle::main();
    return QString::fromUtf8(format)
        .replace(QStringLiteral("NAME"), bundle.infoString(QStringLiteral("CFBundleName")))
        .replace(QStringLiteral("VERSION"), bundle.infoString(QStringLiteral("CFBundleShortVersionString")));
}

class Delegate : public UpdateCheckerDelegate {
public:
    QList<FeedParameter> feedParametersForUpdater(UpdateChecker*, bool sendingSystemProfile) override {
        EXPECT_FALSE(sendingSystemProfile);
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
        EXPECT_TRUE(waitFor([] { return alerts().isEmpty(); }));
    }

    void serve(const QByteArray& feed) { server_.put(QStringLiteral("feed"), feed); }

    /// An updater that looks by itself as soon as it may.
    std::unique_ptr<UpdateChecker> automatic(const UpdateCheckerTiming& timing = kAtOnce) {
        defaults()->set(SUEnableAutomaticChecksKey, true);
        auto updater = std::make_unique<UpdateChecker>(timing);
        updater->setDelegate(&delegate_);
        updater->setFeedURL(server_.url(QStringLiteral("feed")));
        return updater;
    }

    std::unique_ptr<UpdateChecker> asked() {
        auto updater = std::make_unique<UpdateChecker>(kAtOnce);
        updater->setDelegate(&delegate_);
        updater->setFeedURL(server_.url(QStringLiteral("feed")));
        updater->checkForUpdates(nullptr);
        return updater;
    }

    /// Whether one check by itself comes to its end without a word to the user.
    void expectSilence() {
        const qsizetype before = server_.requests().size();
        defaults()->remove(SULastCheckTimeKey);
        const auto updater = automatic();
        EXPECT_TRUE(waitFor([&] { return updater->timeUntilNextCheck() > std::chrono::minutes(30); }));
        EXPECT_EQ(server_.requests().size(), before + 1);
        EXPECT_TRUE(alerts().isEmpty());
    }

    FeedServer server_;
    Delegate delegate_;
};

} // namespace

TEST_F(UpdateCheckerTest, OffersANewerVersion) {
    serve(
        feedWith(runningBuild() + ".1", "9 %1 &lt;b>", "https://www.example/get", "<script>notes</script>"));
    const auto updater = asked();
    UpdateAlert* offer = alert();
    ASSERT_TRUE(offer);
    EXPECT_EQ(textOf(offer, "headline"), running("A new version of NAME is available!"));
    EXPECT_EQ(textOf(offer, "sentence"), running("NAME 9 %1 <b> is now available (you have VERSION)."));
    for (const QLabel* label : offer->findChildren<QLabel*>())
        EXPECT_TRUE(label->textFormat() == Qt::PlainText || label->text().isEmpty());
    auto* notes = offer->findChild<QPlainTextEdit*>();
    ASSERT_TRUE(notes);
    EXPECT_EQ(notes->toPlainText(), u"<script>notes</script>");
    EXPECT_TRUE(notes->isReadOnly());
    EXPECT_FALSE(offer->isModal());

    press(notes, Qt::Key_Return);
    EXPECT_EQ(delegate_.opened, QList{QUrl(QStringLiteral("https://www.example/get"))});
    EXPECT_EQ(delegate_.questions, 1);
}

TEST_F(UpdateCheckerTest, TellsTheAskerWhenThereIsNothingNewer) {
    for (const QByteArray& build : {runningBuild(), runningBuild() + ".0", QByteArray("0.99")}) {
        serve(feedWith(build, "9"));
        const auto updater = asked();
        UpdateAlert* answer = alert();
        EXPECT_EQ(textOf(answer, "headline"), u"You're up to date!");
        EXPECT_EQ(textOf(answer, "sentence"),
                  running("NAME VERSION is currently the newest version available."));
        press(answer, Qt::Key_Escape);
    }
    expectSilence();
}

TEST_F(UpdateCheckerTest, TellsOnlyTheAskerOfAFailure) {
    const CaughtLog log;
    serve("<rss><channel>");
    {
        const auto updater = asked();
        UpdateAlert* answer = alert();
        EXPECT_EQ(textOf(answer, "headline"), u"Update Error!");
        EXPECT_TRUE(textOf(answer, "sentence").contains(u"understood"));
        press(answer, Qt::Key_Return);
    }
    expectSilence();
    EXPECT_EQ(log.lines().filter(QStringLiteral("The check for updates failed (line 1:")).size(), 2);

    UpdateChecker updater(kAtOnce);
    for (const char* address : {"", "http://localhost/feed", "https:///feed"}) {
        defaults()->set(SUEnableAutomaticChecksKey, true);
        updater.setFeedURL(QUrl(QLatin1String(address)));
        letPass(20);
        EXPECT_TRUE(alerts().isEmpty()) << address;
        updater.checkForUpdates(nullptr);
        EXPECT_TRUE(textOf(alert(), "sentence").contains(u"where to look")) << address;
        press(alert(), Qt::Key_Escape);
    }
}

TEST_F(UpdateCheckerTest, SkipsOrRemindsAsTold) {
    const auto offered = [&](const char* button) {
        defaults()->remove(SULastCheckTimeKey);
        const auto updater = automatic();
        UpdateAlert* offer = alert();
        if (auto* pressed = offer ? offer->findChild<QPushButton*>(QLatin1String(button)) : nullptr)
            pressed->click();
        return offer != nullptr;
    };
    serve(feedWith(runningBuild() + ".1", "9.1"));
    EXPECT_TRUE(offered("remindLater"));
    EXPECT_TRUE(offered("skip"));
    EXPECT_EQ(defaults()->value(SUSkippedVersionKey), QString::fromUtf8(runningBuild() + ".1"));
    expectSilence();
    {
        const auto updater = asked();
        EXPECT_TRUE(textOf(alert(), "headline").contains(u"available"))
            << "who asks hears of a skipped one too";
        press(alert(), Qt::Key_Escape);
    }
    serve(feedWith(runningBuild() + ".2", "9.2"));
    EXPECT_TRUE(offered("remindLater"));
    EXPECT_TRUE(delegate_.opened.isEmpty());
}

TEST_F(UpdateCheckerTest, LeadsToWebPagesOnly) {
    serve(feedWith(runningBuild() + ".1", "9", "javascript:alert(1)"));
    {
        const auto updater = asked();
        UpdateAlert* offer = alert();
        ASSERT_TRUE(offer);
        EXPECT_FALSE(offer->findChild<QPushButton*>(QStringLiteral("learnMore")));
        press(offer, Qt::Key_Return);
        EXPECT_TRUE(delegate_.opened.isEmpty());
    }
    serve(feedWith(runningBuild() + ".1", "9"));
    delegate_.opens = false;
    const auto updater = asked();
    press(alert(), Qt::Key_Return);
    EXPECT_TRUE(textOf(alert(), "sentence").contains(u"https://www.example/get"));
    press(alert(), Qt::Key_Escape);
}

TEST_F(UpdateCheckerTest, ChecksByItselfOncePerInterval) {
    constexpr int kHour = 3600;
    constexpr std::chrono::minutes kFirst(5);
    const struct {
        int interval; ///< seconds
        int last;     ///< the last check, seconds ago
        std::chrono::milliseconds first;
        int wait; ///< seconds
    } cases[] = {
        {0, 0, {}, kHour},           // an interval of 0 counts as an hour
        {7200, 3700, {}, 3500},      //
        {60, 3700, {}, 0},           //
        {7200, -400 * 86400, {}, 0}, // a last check in the future is none
        {60, 400 * 86400, kFirst, 300},
    };
    const auto lastCheck = [](int secondsAgo) {
        const QDateTime when = QDateTime::currentDateTimeUtc().addSecs(-secondsAgo);
        defaults()->set(SULastCheckTimeKey, when.toString(Qt::ISODate));
    };
    UpdateCheckerTiming timing = kAtOnce;
    for (const auto& each : cases) {
        defaults()->set(SUScheduledCheckIntervalKey, each.interval);
        lastCheck(each.last);
        timing.firstCheck = each.first;
        const auto wait = automatic(timing)->timeUntilNextCheck();
        ASSERT_TRUE(wait);
        EXPECT_NEAR(static_cast<double>(wait->count()) / 1000, each.wait, 30)
            << each.interval << ' ' << each.last;
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
    delegate_.parameters = {{QStringLiteral("a b"), QStringLiteral("c&d=ä")}};
    const auto updater = automatic();
    ASSERT_TRUE(waitFor([&] { return delegate_.questions == 1; }));
    updater->checkForUpdates(nullptr);
    updater->checkForUpdates(nullptr);
    UpdateAlert* offer = alert();
    updater->checkForUpdates(nullptr);
    letPass(100);
    EXPECT_EQ(alert(), offer);
    EXPECT_EQ(server_.requests(), QStringList{QStringLiteral("trusted /feed?a%20b=c%26d%3D%C3%A4")});
    press(offer, Qt::Key_Escape);
}

TEST_F(UpdateCheckerTest, LetsTheAskerGiveUpWaiting) {
    serve(feedWith("0", "0"));
    UpdateChecker updater(kAtOnce);
    updater.setFeedURL(server_.url(QStringLiteral("silent")));
    updater.checkForUpdates(nullptr);
    const auto progress = [] {
        QProgressDialog* shown = nullptr;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (auto* dialog = qobject_cast<QProgressDialog*>(window); dialog && dialog->isVisible())
                shown = dialog;
        }
        return shown;
    };
    ASSERT_TRUE(waitFor([&] { return progress() != nullptr; }));
    progress()->findChild<QPushButton*>()->click();
    EXPECT_TRUE(waitFor([&] { return !progress(); }));
    EXPECT_TRUE(alerts().isEmpty());

    updater.setFeedURL(server_.url(QStringLiteral("feed")));
    updater.checkForUpdates(nullptr);
    EXPECT_EQ(textOf(alert(), "headline"), u"You're up to date!");
    press(alert(), Qt::Key_Return);
}
