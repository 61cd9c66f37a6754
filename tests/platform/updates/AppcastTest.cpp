// SPDX-License-Identifier: MIT
#include "platform/updates/Appcast.h"

#include "tests/platform/updates/FeedServer.h"

#include <QElapsedTimer>

namespace {

/// The newest item of a feed; the reason why there is none as its title.
AppcastItem newestOf(const QByteArray& feed) {
    QString error;
    const auto newest = newestItem(feed, &error);
    EXPECT_EQ(newest.has_value(), error.isEmpty());
    return newest.value_or(AppcastItem{error, {}, {}, {}, {}});
}

QByteArray inItem(const QByteArray& children) {
    return "<rss><channel><item>" + children + "<enclosure version='7'/></item></channel></rss>";
}

QByteArray item(const QByteArray& build) {
    return "<item><enclosure version='" + build + "'/></item>";
}

} // namespace

TEST(Appcast, ComparesBuildNumbersFieldByField) {
    using Row = std::pair<QString, QString>;
    for (const auto& [later, earlier] :
         {Row{u"1.10"_s, u"1.9"_s}, Row{u"2"_s, u"1.99.99"_s}, Row{u"1.0.1"_s, u"1"_s}, Row{u"1"_s, {}},
          Row{u"1.18446744073709551617"_s, u"1.18446744073709551616"_s}}) {
        EXPECT_TRUE(compareBuildNumbers(later, earlier) > 0) << qPrintable(later);
        EXPECT_TRUE(compareBuildNumbers(earlier, later) < 0) << qPrintable(later);
    }
    for (const QString& same : {u"01"_s, u"1.0.0."_s, u"1-dirty"_s})
        EXPECT_TRUE(compareBuildNumbers(u"1", same) == 0) << qPrintable(same);
}

TEST(Appcast, ReadsTheNewestOfTheItemsThatHaveABuild) {
    const AppcastItem read = newestOf(feedWith("1.2", "1.2 beta", "https://www.example/get?a=1&amp;b=2",
                                               "First line\n<b>second</b> & third"));
    EXPECT_EQ(read.title, u"Version 1.2 beta");
    EXPECT_EQ(read.notes, u"First line\n<b>second</b> & third");
    EXPECT_EQ(read.version, u"1.2 beta");
    EXPECT_EQ(read.page, QUrl(u"https://www.example/get?a=1&b=2"_s));
    const AppcastItem spare = newestOf(
        inItem("<x:title xmlns:x='urn:x'>Other</x:title><description>a<b>b</b>\xc3\xa4</description>"));
    EXPECT_EQ(spare.title, QString());
    EXPECT_EQ(spare.notes, u"abä");
    EXPECT_EQ(spare.version, u"7") << "the build stands in for a version that is not given";
    EXPECT_EQ(newestOf("<rss><channel>" + item("1.9") + item("1.10") + item("abc") + item("") + item("9.") +
                       item("99" + QByteArray(70, '9')) + "<item/>" + item("1.2") + "</channel><other>" +
                       item("50") + "</other></rss>")
                  .build,
              u"1.10");
    const AppcastItem large =
        newestOf(inItem("<title>one\ntwo&#x202e;" + QByteArray(5000, 'x') + "</title><description>" +
                        QByteArray(500000, 'n') + "</description>"));
    EXPECT_TRUE(large.title.startsWith(u"one twox")) << qPrintable(large.title.left(20));
    EXPECT_LE(large.title.size(), 200);
    EXPECT_EQ(large.notes.size(), 65536);
}

TEST(Appcast, OffersOnlySecureWebPages) {
    for (const QByteArray& link :
         {QByteArray("JavaScript:alert(1)"), QByteArray("http://www.example/get"), QByteArray("https://"),
          QByteArray("https://good.example@www.example/"), "https://a.example/" + QByteArray(5000, 'a')})
        EXPECT_TRUE(newestOf(inItem("<link>" + link + "</link>")).page.isEmpty())
            << link.left(60).constData();
    EXPECT_FALSE(newestOf(inItem("<link>\n https://www.example/get \n</link>")).page.isEmpty());
}

TEST(Appcast, RefusesWhatIsNoHonestFeed) {
    const auto isRead = [](const QByteArray& feed) { return !newestOf(feed).build.isEmpty(); };
    const QByteArray good = feedWith("2", "2.0");
    ASSERT_TRUE(isRead(good));
    for (const QByteArray& bad :
         {QByteArray(), QByteArray("<html/>"), QByteArray("<rss><channel/></rss>"), good.chopped(3),
          good + "<rss/>", QByteArray(good).replace("What", "\xff\xfe"),
          QByteArray(good).replace("utf-8", "utf-8\xc3"), inItem("&unknown;"),
          inItem(QByteArray("<a>").repeated(40) + QByteArray("</a>").repeated(40)),
          "<rss><channel>" + item("1").repeated(1001) + "</channel></rss>"})
        EXPECT_FALSE(isRead(bad)) << bad.left(60).constData();
    // A document type is refused as such, before any of its entities counts.
    EXPECT_TRUE(newestOf("<!DOCTYPE rss [<!ENTITY a 'aaaa'>]>" + inItem("<title>t</title>"))
                    .title.contains(u"document types"));
    QByteArray attributes = "<rss ";
    for (int at = 0; attributes.size() < 1 << 20; ++at)
        attributes += "a" + QByteArray::number(at) + "='>' ";
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(isRead(attributes + "/>"));
    EXPECT_LT(timer.elapsed(), 5000) << "a tag's attributes must not take the square of their number";
}
