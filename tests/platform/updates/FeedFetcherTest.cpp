// SPDX-License-Identifier: MIT
#include "platform/updates/FeedFetcher.h"

#include "platform/bundle/Bundle.h"
#include "tests/platform/updates/FeedServer.h"

namespace {

struct Outcome {
    std::optional<QByteArray> feed;
    std::optional<FetchFailure> failure;
    QString reason;
};

Outcome fetch(const QUrl& url, const FetchLimits& limits = {.time = std::chrono::seconds(5), .bytes = 4096}) {
    Outcome outcome;
    int ends = 0;
    const auto underWay = fetchFeed(url, limits,
                                    {.fetched =
                                         [&](const QByteArray& feed) {
                                             outcome.feed = feed;
                                             ++ends;
                                         },
                                     .failed =
                                         [&](FetchFailure failure, const QString& reason) {
                                             outcome.failure = failure;
                                             outcome.reason = reason;
                                             ++ends;
                                         }});
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

TEST(FeedFetcher, FetchesOverCheckedHttps) {
    FeedServer server;
    server.put(QStringLiteral("feed"), "<rss/>");
    EXPECT_EQ(fetch(server.url(QStringLiteral("feed"))).feed, "<rss/>");
    server.put(QStringLiteral("full"), QByteArray(4096, 'x'));
    EXPECT_EQ(fetch(server.url(QStringLiteral("full"))).feed.value_or("").size(), 4096);
}

TEST(FeedFetcher, FollowsRedirectsWithOneRequestEach) {
    FeedServer server;
    server.put(QStringLiteral("feed"), "<rss/>");
    EXPECT_EQ(fetch(server.url(redirectTo(server.url(QStringLiteral("hops?2"))))).feed, "<rss/>");
    const QStringList asked = server.requests();
    ASSERT_EQ(asked.size(), 4) << qPrintable(asked.join(u'\n'));
    EXPECT_EQ(asked.mid(1), (QStringList{QStringLiteral("trusted /hops?2"), QStringLiteral("trusted /hops?1"),
                                         QStringLiteral("trusted /feed")}));
    EXPECT_EQ(fetch(server.url(QStringLiteral("hops?10"))).feed, "<rss/>");
    EXPECT_EQ(fetch(server.url(QStringLiteral("hops?11"))).failure, FetchFailure::Unusable);
}

TEST(FeedFetcher, TellsNothingOfTheUser) {
    FeedServer server;
    const QByteArray version =
        Bundle::main().infoString(QStringLiteral("CFBundleShortVersionString")).toUtf8();
    EXPECT_EQ(fetch(server.url(QStringLiteral("headers"))).feed,
              "Accept: */*\nHost: " + server.host().toUtf8() + "\nUser-Agent: Lumivane/" + version + "\n");
}

TEST(FeedFetcher, TellsNothingToAHostThatItCantTrust) {
    FeedServer server;
    server.put(QStringLiteral("feed"), "<rss/>");
    const QUrl plain = server.url(QStringLiteral("feed"), "plain");
    EXPECT_EQ(fetch(server.url(QStringLiteral("feed"), "selfsigned")).failure, FetchFailure::Untrusted);
    EXPECT_EQ(fetch(server.url(QStringLiteral("feed"), "elsewhere")).failure, FetchFailure::Untrusted);
    EXPECT_EQ(fetch(plain).failure, FetchFailure::NoFeed);
    EXPECT_EQ(fetch(QUrl()).failure, FetchFailure::NoFeed);
    EXPECT_EQ(server.requests(), QStringList());

    EXPECT_EQ(fetch(server.url(redirectTo(plain))).failure, FetchFailure::InsecureRedirect);
    EXPECT_EQ(fetch(server.url(redirectTo(QUrl(QStringLiteral("file:///etc/passwd"))))).failure,
              FetchFailure::InsecureRedirect);
    EXPECT_EQ(fetch(server.url(redirectTo(server.url(QStringLiteral("feed"), "selfsigned")))).failure,
              FetchFailure::Untrusted);
    for (const QString& request : server.requests())
        EXPECT_TRUE(request.startsWith(u"trusted /redirect")) << qPrintable(request);
}

TEST(FeedFetcher, EndsWhatHasNoEnd) {
    FeedServer server;
    server.put(QStringLiteral("long"), QByteArray(4097, 'x'));
    const QString endlessRedirect = redirectTo(server.url(QStringLiteral("long")), "redirect-endless?");
    for (const QString& path : {QStringLiteral("long"), QStringLiteral("endless"), endlessRedirect})
        EXPECT_EQ(fetch(server.url(path)).failure, FetchFailure::Unusable) << qPrintable(path);
    EXPECT_TRUE(fetch(server.url(QStringLiteral("endless-headers"))).failure);
    const FetchLimits brief{.time = std::chrono::milliseconds(300), .bytes = 4096};
    EXPECT_EQ(fetch(server.url(QStringLiteral("silent")), brief).failure, FetchFailure::TooSlow);
}

TEST(FeedFetcher, TellsFailuresApart) {
    FeedServer server;
    EXPECT_EQ(fetch(server.url(QStringLiteral("unavailable"))).failure, FetchFailure::Unusable);
    EXPECT_EQ(fetch(QUrl(QStringLiteral("https://127.0.0.1:1/"))).failure, FetchFailure::Unreachable);
    {
        const WithEnvironment noPrograms("PATH", "/nowhere");
        EXPECT_EQ(fetch(server.url(QStringLiteral("feed"))).failure, FetchFailure::NoCurl);
    }
    const WithEnvironment noAuthorities("SSL_CERT_FILE", "/nowhere");
    EXPECT_EQ(fetch(server.url(QStringLiteral("feed"))).failure, FetchFailure::NoSecurity);
}
