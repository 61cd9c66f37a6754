// SPDX-License-Identifier: MIT
#include "platform/foundation/NSStringEncoding.h"

#include <gtest/gtest.h>

namespace {

TEST(NSStringEncodingTest, EveryMacRomanByteComesBack) {
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes.append(static_cast<char>(byte));
    const QString text = NSStringEncoding::stringWithBytes(bytes, kCFStringEncodingMacRoman);
    ASSERT_EQ(text.size(), 256);
    EXPECT_EQ(text[0xA5], QChar(0x2022));
    EXPECT_EQ(text[0x8A], QChar(u'\u00E4'));
    EXPECT_EQ(text[0xDB], QChar(0x20AC));
    EXPECT_EQ(NSStringEncoding::bytesOfString(text, kCFStringEncodingMacRoman), bytes);
}

TEST(NSStringEncodingTest, ALackingCharacterOrEncodingIsAFailureNotASubstitute) {
    const QString moon = QStringLiteral("a\u6708");
    EXPECT_FALSE(NSStringEncoding::bytesOfString(moon, kCFStringEncodingMacRoman));
    EXPECT_FALSE(NSStringEncoding::bytesOfString(QStringLiteral("\u00E4"), kCFStringEncodingASCII));
    EXPECT_FALSE(NSStringEncoding::bytesOfString(QStringLiteral("a"), 12345));
    EXPECT_EQ(NSStringEncoding::bytesOfString(moon, kCFStringEncodingUTF8), moon.toUtf8());
    EXPECT_EQ(NSStringEncoding::bytesOfString(QString(), kCFStringEncodingMacRoman), QByteArray());
    EXPECT_TRUE(NSStringEncoding::stringWithBytes("a", 12345).isNull());
}

} // namespace
