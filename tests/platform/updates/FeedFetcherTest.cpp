// SPDX-License-Identifier: MIT
#include "platform/updates/FeedFetcher.h"

#include "platform/bundle/Bundle.h"
#include "tests/platform/updates/FeedServer.h"

namespace {

using Failure = std::optional<FetchFailure>;

const FetchLimits kLimits{.time = std::chrono::seconds(5), .bytes = 4096};

/// What `url` answers, and why it does not.
std::pair<QByteArray, Failure> fetch(const QUrl& url, const FetchLimits& limits = kLimits) {
    std::pair<QByteArray, Failure> outcome;
    int ends = 0;
    const auto fetched = [&](const QByteArray& feed) {
        outcome.first = feed;
        ++ends;
    };
    const auto failed = [&](FetchFailure failure, const QString&) {
        outcome.second = failure;
        ++ends;
    };
    const auto underWay = fetchFeed(url, limits, {.fetched = fetched, .failed = failed});
    EXPECT_EQ(ends, 0) << "the outcome comes later";
    EXPECT_TRUE(waitFor([&] { return ends > 0; }));
    letPass(20);
    EXPECT_EQ(ends, 1);
    return outcome;
}

} // namespace

TEST(FeedFetcher, OnlyAFeedFromATrustedHostIsTaken) {
    FeedServer server;
    for (const auto& [name, size] : {std::pair{u"feed"_s, 6}, {u"full"_s, 4096}, {u"long"_s, 4097}})
        server.put(name, QByteArray(size, 'x'));
    const auto to = [](const QUrl& url) {
        return u"redirect?"_s + QString::fromLatin1(QUrl::toPercentEncoding(url.toString()));
    };
    using Row = std::tuple<QUrl, qsizetype, Failure>;
    for (const auto& [url, size, failure] : {
             Row{server.url(u"feed"_s), 6, {}},
             Row{server.url(u"full"_s), 4096, {}},
             Row{server.url(to(server.url(u"hops?9"_s))), 6, {}},
             Row{server.url(u"hops?11"_s), 0, FetchFailure::Unusable},
             Row{server.url(u"absent"_s), 0, FetchFailure::Unusable},
             Row{server.url(u"long"_s), 0, FetchFailure::Unusable},
             Row{server.url(u"endless"_s), 0, FetchFailure::Unusable},
             Row{server.url(u"feed"_s, "selfsigned"), 0, FetchFailure::Untrusted},
             Row{server.url(to(server.url(u"feed"_s, "selfsigned"))), 0, FetchFailure::Untrusted},
             Row{server.url(u"feed"_s, "plain"), 0, FetchFailure::NoFeed},
             Row{QUrl(), 0, FetchFailure::NoFeed},
             Row{server.url(to(server.url(u"feed"_s, "plain"))), 0, FetchFailure::InsecureRedirect},
             Row{server.url(to(QUrl(u"file:///etc/passwd"_s))), 0, FetchFailure::InsecureRedirect},
             Row{QUrl(u"https://127.0.0.1:1/"_s), 0, FetchFailure::Unreachable},
         }) {
        const auto [feed, failed] = fetch(url);
        EXPECT_EQ(feed.size(), size) << qPrintable(url.toString());
        EXPECT_EQ(failed, failure) << qPrintable(url.toString());
    }
    for (const QString& request : server.requests())
        EXPECT_TRUE(request.startsWith(u"trusted /")) << qPrintable(request) << " was told of the user";
    EXPECT_EQ(fetch(server.url(u"silent"_s), {.time = std::chrono::milliseconds(300)}).second,
              FetchFailure::TooSlow);
    {
        const WithEnvironment noPrograms("PATH", "/nowhere");
        EXPECT_EQ(fetch(server.url(u"feed"_s)).second, FetchFailure::NoCurl);
    }
    // Every request looks the same, though each answer would set a cookie.
    EXPECT_EQ(fetch(server.url(u"headers"_s)).first,
              "Accept: */*\nHost: " + server.host().toUtf8() + "\nUser-Agent: Lumivane/" +
                  Bundle::main().infoString(u"CFBundleShortVersionString"_s).toUtf8() + "\n");
    const WithEnvironment noAuthorities("SSL_CERT_FILE", "/nowhere");
    EXPECT_EQ(fetch(server.url(u"feed"_s)).second, FetchFailure::NoSecurity);
}
