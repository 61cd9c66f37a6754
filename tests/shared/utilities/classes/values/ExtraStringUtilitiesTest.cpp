// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/values/ExtraStringUtilities.h"

#include "shared/utilities/classes/values/Exception.h"
#include "shared/utilities/classes/values/ExtraMutableStringUtilities.h"
#include "shared/utilities/classes/values/PascalString.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <tuple>

using namespace ExtraStringUtilities;

namespace {

TEST(ExtraStringUtilitiesTest, FirstAndLastCharacters) {
    EXPECT_EQ(firstCharacter(QStringLiteral("Moon")), QChar(u'M'));
    EXPECT_EQ(lastCharacter(QStringLiteral("Moon")), QChar(u'n'));
    EXPECT_THROW(firstCharacter(QString()), std::out_of_range);
    EXPECT_THROW(lastCharacter(QString()), std::out_of_range);
}

TEST(ExtraStringUtilitiesTest, NumbersAreRoundedAsInC) {
    EXPECT_EQ(stringWithFloat(0.0625F), QStringLiteral("0.062")) << "a tie goes to the even digit";
    EXPECT_EQ(stringWithFloat(std::numeric_limits<float>::max()).size(), 43);
}

TEST(ExtraStringUtilitiesTest, ReplacementsAreCountedOnce) {
    using ExtraMutableStringUtilities::replaceAll;
    for (const auto& [before, search, after, count] :
         {std::tuple{"aaa", "aa", "<a>a", 1}, std::tuple{"aAaA", "aa", "<a><a>", 2},
          std::tuple{"abc", "", "abc", 0}}) {
        QString text = QLatin1String(before);
        EXPECT_EQ(replaceAll(text, QLatin1String(search), QStringLiteral("<a>")), count) << before;
        EXPECT_EQ(text, QLatin1String(after));
    }
}

TEST(ExtraStringUtilitiesTest, PascalStrings) {
    const PascalString text = pascalStringWithEncoding(QStringLiteral("Mönd•"), 0);
    EXPECT_EQ(text[0], 5);
    EXPECT_EQ(text[2], 0x9A);
    EXPECT_EQ(text[5], 0xA5);
    EXPECT_EQ(stringWithPascalString(text), QStringLiteral("Mönd•"));

    EXPECT_EQ(pascalStringWithEncoding(QString(200, QLatin1Char('x')), 0)[0], 127);
    EXPECT_EQ(pascalStringWithEncoding(QString(127, QLatin1Char('x')), 0)[0], 127);
    EXPECT_EQ(pascalStringWithEncoding(QString(127, QLatin1Char('x')) + QChar(0x6708), 0)[0], 127);
    EXPECT_THROW(pascalStringWithEncoding(QString(100, QChar(0x6708)), kEncodingUTF8),
                 InternalInconsistencyException);

    EXPECT_THROW(pascalStringWithEncoding(QStringLiteral("a"), 12345), InternalInconsistencyException);

    EXPECT_TRUE(stringWithPascalString({}).isNull());
    const std::uint8_t boastful[]{200, 'a', 'b'};
    EXPECT_EQ(stringWithPascalString(boastful), QStringLiteral("ab"));
}

TEST(ExtraStringUtilitiesTest, AFailedConversionTellsItsPlace) {
    try {
        pascalStringWithEncoding(QStringLiteral("\u6708"), 0);
        ADD_FAILURE() << "nothing raised";
    } catch (const Exception& failure) {
        EXPECT_EQ(failure.name(), QStringLiteral("InternalInconsistencyException"));
        const QString reason = failure.reason();
        EXPECT_TRUE(reason.startsWith(QStringLiteral("Unable to CFStringGetPascalString., method: ")));
        EXPECT_TRUE(reason.contains(QStringLiteral("pascalStringWithEncoding")));
        EXPECT_TRUE(reason.contains(QStringLiteral(", file: PascalString, line: ")));
    }
}

} // namespace
