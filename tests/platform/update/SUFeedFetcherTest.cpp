// SPDX-License-Identifier: MIT
#include "platform/update/SUFeedFetcher.h"

#include "tests/platform/update/FeedServer.h"

#include <QElapsedTimer>

namespace {

struct Outcome {
    std::optional<QByteArray> feed;
    std::optional<SUFailure> failure;
    QString reason;
};

Outcome fetch(const QUrl& url,
              const SUFetchLimits& limits = {.time = std::chrono::seconds(5), .bytes = 4096}) {
    Outcome outcome;
    int ends = 0;
    SUFeedFetcher fetcher(limits);
    QObject::connect(&fetcher, &SUFeedFetcher::fetched, [&](const QByteArray& feed) {
        outcome.feed = feed;
        ++ends;
    });
    QObject::connect(&fetcher, &SUFeedFetcher::failed, [&](SUFailure failure, const QString& reason) {
        outcome.failure = failure;
        outcome.reason = reason;
        ++ends;
    });
    fetcher.fetch(url);
    EXPECT_EQ(ends, 0) << "the outcome comes later";
    EXPECT_TRUE(waitFor([&] { return ends > 0; }));
    letPass(20);
    EXPECT_EQ(ends, 1);
    return outcome;
}

QString redirectTo(const QUrl& url, const char* how = "redirect?") {
    return QLatin1String(how) + QString::fromLatin1(QUrl::toPercentEncoding(url.toString()));
}

} // namespace

TEST(SUFeedFetcher, FetchesOverCheckedHttps) {
    FeedServer server;
    server.put(QStringLiteral("feed"), "<rss/>");
    EXPECT_EQ(fetch(server.url(QStringLiteral("feed"))).feed, "<rss/>");
    EXPECT_EQ(fetch(server.url(redirectTo(server.url(QStringLiteral("feed"))))).feed, "<rss/>");
    server.put(QStringLiteral("full"), QByteArray(4096, 'x'));
    EXPECT_EQ(fetch(server.url(QStringLiteral("full"))).feed.value_or("").size(), 4096);
}

TEST(SUFeedFetcher, TellsNothingToAHostThatItCantTrust) {
    FeedServer server;
    server.put(QStringLiteral("feed"), "<rss/>");
    const QUrl plain = server.url(QStringLiteral("feed"), "plain");
    EXPECT_EQ(fetch(server.url(QStringLiteral("feed"), "selfsigned")).failure, SUFailure::Untrusted);
    EXPECT_EQ(fetch(server.url(QStringLiteral("feed"), "elsewhere")).failure, SUFailure::Untrusted);
    EXPECT_EQ(fetch(plain).failure, SUFailure::NoFeed);
    EXPECT_EQ(fetch(QUrl()).failure, SUFailure::NoFeed);
    EXPECT_EQ(server.requests(), QStringList());

    EXPECT_EQ(fetch(server.url(redirectTo(plain))).failure, SUFailure::InsecureRedirect);
    EXPECT_EQ(fetch(server.url(redirectTo(QUrl(QStringLiteral("file:///etc/passwd"))))).failure,
              SUFailure::InsecureRedirect);
    EXPECT_EQ(fetch(server.url(redirectTo(server.url(QStringLiteral("feed"), "selfsigned")))).failure,
              SUFailure::Untrusted);
    for (const QString& request : server.requests())
        EXPECT_TRUE(request.startsWith(u"trusted /redirect")) << qPrintable(request);
}

TEST(SUFeedFetcher, EndsWhatHasNoEnd) {
    FeedServer server;
    server.put(QStringLiteral("long"), QByteArray(4097, 'x'));
    const SUFetchLimits brief{.time = std::chrono::milliseconds(300), .bytes = 4096};
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(fetch(server.url(QStringLiteral("long"))).failure, SUFailure::Unusable);
    EXPECT_EQ(fetch(server.url(QStringLiteral("endless"))).failure, SUFailure::Unusable);
    EXPECT_EQ(fetch(server.url(QStringLiteral("loop"))).failure, SUFailure::Unusable);
    EXPECT_EQ(fetch(server.url(QStringLiteral("silent")), brief).failure, SUFailure::TooSlow);
    EXPECT_TRUE(fetch(server.url(QStringLiteral("endless-header")), brief).failure);
    EXPECT_TRUE(
        fetch(server.url(redirectTo(server.url(QStringLiteral("silent")), "redirect-endless?")), brief)
            .failure);
    EXPECT_LT(timer.elapsed(), 4000);
}

TEST(SUFeedFetcher, TellsFailuresApart) {
    FeedServer server;
    EXPECT_EQ(fetch(server.url(QStringLiteral("unavailable"))).failure, SUFailure::Unusable);
    EXPECT_EQ(fetch(QUrl(QStringLiteral("https://127.0.0.1:1/"))).failure, SUFailure::Unreachable);
}
