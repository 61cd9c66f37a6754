// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/values/ExtraURLUtilities.h"

#include "tests/TestMain.h"

TEST(ExtraURLUtilitiesTest, TakesAStringAsItStandsOrNotAtAll) {
    using ExtraURLUtilities::urlWithURLString;
    for (const char* text : {"http://a.example/%20?q=a+b#c", "mailto:a@b.example", "www.example.com/x",
                             "file:///tmp/it's", "http://[::1]:80/"})
        EXPECT_EQ(urlWithURLString(QString::fromLatin1(text)).toEncoded(), text);
    for (const char* text : {"", "a b", "http://a/%u", "http://a/%", "http://a/\"", "http://a/\xE4",
                             "http://a/\n", "http://a/\x7F", "http://[::1", "http://a:port/"})
        EXPECT_FALSE(urlWithURLString(QString::fromLatin1(text)).isValid()) << text;
    EXPECT_FALSE(urlWithURLString(u"http://a/"_s + QChar::Null).isValid());
}
