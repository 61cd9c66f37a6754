// SPDX-License-Identifier: MIT
#include "platform/updates/Appcast.h"

#include "tests/platform/updates/FeedServer.h"

#include <QElapsedTimer>

namespace {

/// The reason for which `feed` is refused; empty when it is read.
QString refusal(const QByteArray& feed) {
    QString error;
    const auto appcast = Appcast::read(feed, &error);
    EXPECT_EQ(appcast.has_value(), error.isEmpty());
    return error;
}

AppcastItem newestOf(const QByteArray& feed) {
    QString error;
    const auto appcast = Appcast::read(feed, &error);
    EXPECT_TRUE(appcast) << qPrintable(error);
    return appcast ? appcast->newest() : AppcastItem();
}

QByteArray inItem(const QByteArray& children) {
    return "<rss><channel><item>" + children + "<enclosure version='7'/></item></channel></rss>";
}

QByteArray item(const QByteArray& build) {
    return "<item><enclosure version='" + build + "'/></item>";
}

} // namespace

TEST(Appcast, ComparesBuildNumbersFieldByField) {
    const auto expectLater = [](const char16_t* later, const char16_t* earlier) {
        EXPECT_TRUE(compareBuildNumbers(later, earlier) > 0) << qPrintable(QString::fromUtf16(later));
        EXPECT_TRUE(compareBuildNumbers(earlier, later) < 0) << qPrintable(QString::fromUtf16(later));
    };
    expectLater(u"1.10", u"1.9");
    expectLater(u"101", u"100");
    expectLater(u"2", u"1.99.99");
    expectLater(u"1.0.1", u"1");
    expectLater(u"1", u"");
    expectLater(u"100000000000000000000000000000", u"99999999999999999999999999999");
    expectLater(u"1.18446744073709551617", u"1.18446744073709551616");
    for (const char16_t* same : {u"1", u"01", u"1.0", u"1.0.0.", u"1-dirty"})
        EXPECT_TRUE(compareBuildNumbers(u"1", same) == 0) << qPrintable(QString::fromUtf16(same));
}

TEST(Appcast, ReadsWhatAnItemSays) {
    const AppcastItem read = newestOf(feedWith("1.2", "1.2 beta", "https://www.example/get?a=1&amp;b=2",
                                               "First line\n<b>second</b> & third"));
    EXPECT_EQ(read.title, u"Version 1.2 beta");
    EXPECT_EQ(read.notes, u"First line\n<b>second</b> & third");
    EXPECT_EQ(read.build, u"1.2");
    EXPECT_EQ(read.version, u"1.2 beta");
    EXPECT_EQ(read.page, QUrl(QStringLiteral("https://www.example/get?a=1&b=2")));

    const AppcastItem spare = newestOf(
        inItem("<x:title xmlns:x='urn:x'>Other</x:title><description>a<b>b</b>\xc3\xa4</description>"));
    EXPECT_EQ(spare.title, QString());
    EXPECT_EQ(spare.notes, u"abä");
    EXPECT_EQ(spare.version, u"7") << "the build stands in for a version that is not given";
    EXPECT_TRUE(spare.page.isEmpty());
}

TEST(Appcast, TakesTheNewestOfTheItemsThatHaveABuild) {
    const QByteArray feed = "<rss><channel>" + item("1.9") + item("1.10") + item("abc") + item("") +
                            item("9.") + item("99" + QByteArray(70, '9')) + "<item/>" + item("1.2") +
                            "</channel><other>" + item("50") + "</other></rss>";
    QString error;
    const auto appcast = Appcast::read(feed, &error);
    ASSERT_TRUE(appcast) << qPrintable(error);
    EXPECT_EQ(appcast->items().size(), 3);
    EXPECT_EQ(appcast->newest().build, u"1.10");
}

TEST(Appcast, OffersOnlySecureWebPages) {
    for (const char* link : {"javascript:alert(1)", "JavaScript:alert(1)", "file:///etc/passwd",
                             "ftp://www.example/", "http://www.example/get", "/relative", "data:text/html,x",
                             "https://", "https://good.example@www.example/", "mailto:a@b.example", ""})
        EXPECT_TRUE(newestOf(inItem("<link>" + QByteArray(link) + "</link>")).page.isEmpty()) << link;
    EXPECT_TRUE(
        newestOf(inItem("<link>https://a.example/" + QByteArray(5000, 'a') + "</link>")).page.isEmpty());
    EXPECT_FALSE(newestOf(inItem("<link>\n https://www.example/get \n</link>")).page.isEmpty());
}

TEST(Appcast, CutsAndCleansTexts) {
    const AppcastItem read =
        newestOf(inItem("<title>one\ntwo&#x202e;" + QByteArray(5000, 'x') + "</title><description>" +
                        QByteArray(500000, 'n') + "</description>"));
    EXPECT_TRUE(read.title.startsWith(u"one twox")) << qPrintable(read.title.left(20));
    EXPECT_LE(read.title.size(), 200);
    EXPECT_EQ(read.notes.size(), 65536);
}

TEST(Appcast, RefusesWhatIsNoHonestFeed) {
    const QByteArray good = feedWith("2", "2.0");
    ASSERT_EQ(refusal(good), QString());
    for (const QByteArray& bad :
         {QByteArray(), QByteArray("not xml"), QByteArray("<html/>"), QByteArray("<rss><channel/></rss>"),
          good.chopped(3), good + "<rss/>", QByteArray(good).replace("What", "\xff\xfe"),
          QByteArray(good).replace("utf-8", "utf-8\xc3"), inItem("&unknown;"), inItem("<x:y/>"),
          inItem(QByteArray("<a>").repeated(40) + QByteArray("</a>").repeated(40)),
          "<rss><channel>" + item("1").repeated(1001) + "</channel></rss>"})
        EXPECT_NE(refusal(bad), QString()) << bad.left(60).constData();
    // A document type is refused as such, before any of its entities counts.
    for (const char* declared : {"<!DOCTYPE rss>", "<!DOCTYPE rss SYSTEM 'file:///etc/passwd'>",
                                 "<!DOCTYPE rss [<!ENTITY a 'aaaa'><!ENTITY b '&a;&a;&a;&a;'>]>"})
        EXPECT_TRUE(refusal(declared + inItem("<title>t</title>")).contains(u"document types")) << declared;
}

TEST(Appcast, IsQuickWithAHostileMegabyte) {
    QByteArray attributes = "<rss ";
    for (int at = 0; attributes.size() < 1 << 20; ++at)
        attributes += "a" + QByteArray::number(at) + "='>' ";
    QElapsedTimer timer;
    timer.start();
    for (const QByteArray& hostile :
         {attributes + "/>", QByteArray("<rss>").repeated(1 << 18), QByteArray("<rss><!--").repeated(1 << 17),
          inItem("<description>" + QByteArray("<![CDATA[]]>").repeated(80000) + "</description>"),
          QByteArray("<rss ") + QByteArray(1 << 20, '\''), QByteArray(1 << 20, '<'),
          QByteArray(1 << 20, '\0')})
        refusal(hostile);
    EXPECT_LT(timer.elapsed(), 5000) << "a tag's attributes must not take the square of their number";
}
