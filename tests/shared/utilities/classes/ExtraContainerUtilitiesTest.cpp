// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraContainerUtilities.h"

#include "shared/utilities/classes/values/ExtraURLUtilities.h"

#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QSlider>
#include <QStandardItemModel>
#include <QTextDocument>

#include <gtest/gtest.h>

#include <vector>

using namespace ExtraContainerUtilities;

namespace {

template <typename T>
constexpr bool kAnswers = requires(const T& object) {
    isEmpty(object);
};
static_assert(kAnswers<QString> && !kAnswers<int> && !kAnswers<QSlider> && !kAnswers<QObject>);

TEST(ExtraContainerUtilitiesTest, EmptyByLengthCountTextSizeOrRows) {
    EXPECT_TRUE(isEmpty(QString()));
    EXPECT_FALSE(isEmpty(QStringLiteral(" ")));
    EXPECT_TRUE(isEmpty(QMap<int, int>()));
    EXPECT_FALSE(isEmpty(QList<int>{0}));
    EXPECT_FALSE(isEmpty(std::vector<int>{0}));
    EXPECT_TRUE(isEmpty(QLabel()));
    EXPECT_FALSE(isEmpty(QLineEdit(QStringLiteral("x"))));
    EXPECT_TRUE(isEmpty(QTextDocument()));
    EXPECT_TRUE(isEmpty(QImage()));
    EXPECT_FALSE(isEmpty(QPixmap(1, 1)));
    EXPECT_TRUE(isEmpty(QStandardItemModel(0, 3)));
    EXPECT_FALSE(isEmpty(QStandardItemModel(1, 0)));
}

TEST(ExtraURLUtilitiesTest, TakesAStringAsItStandsOrNotAtAll) {
    using ExtraURLUtilities::urlWithURLString;
    for (const char* text : {"http://a.example/%20?q=a+b#c", "mailto:a@b.example", "www.example.com/x",
                             "file:///tmp/it's", "http://[::1]:80/"})
        EXPECT_EQ(urlWithURLString(QString::fromLatin1(text)).toEncoded(), text);
    for (const char* text : {"", "a b", "http://a/%u", "http://a/%", "http://a/\"", "http://a/\xE4",
                             "http://a/\n", "http://a/\x7F", "http://[::1", "http://a:port/"})
        EXPECT_FALSE(urlWithURLString(QString::fromLatin1(text)).isValid()) << text;
    EXPECT_FALSE(urlWithURLString(QStringLiteral("http://a/") + QChar::Null).isValid());
}

} // namespace
