// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/values/ExtraStringUtilities.h"

#include "shared/utilities/classes/values/Exception.h"
#include "shared/utilities/classes/values/ExtraMutableStringUtilities.h"
#include "shared/utilities/classes/values/PascalString.h"
#include "tests/TestMain.h"

#include <stdexcept>

using namespace ExtraStringUtilities;

TEST(ExtraStringUtilitiesTest, CharactersNumbersAndReplacements) {
    EXPECT_EQ(firstCharacter(u"Moon"_s), u'M');
    EXPECT_EQ(lastCharacter(u"Moon"_s), u'n');
    EXPECT_THROW(firstCharacter(QString()), std::out_of_range);
    EXPECT_EQ(stringWithFloat(0.0625F), u"0.062") << "a tie goes to the even digit";
    using Row = std::tuple<const char*, const char*, const char*, int>;
    for (const auto& [before, search, after, count] :
         {Row{"aaa", "aa", "<a>a", 1}, Row{"aAaA", "aa", "<a><a>", 2}, Row{"abc", "", "abc", 0}}) {
        QString text = QLatin1String(before);
        EXPECT_EQ(ExtraMutableStringUtilities::replaceAll(text, QLatin1String(search), u"<a>"_s), count);
        EXPECT_EQ(text, QLatin1String(after));
    }
}

TEST(ExtraStringUtilitiesTest, PascalStrings) {
    const PascalString text = pascalStringWithEncoding(u"Mönd•"_s, 0);
    EXPECT_EQ(text[0], 5);
    EXPECT_EQ(text[2], 0x9A);
    EXPECT_EQ(stringWithPascalString(text), u"Mönd•");
    EXPECT_EQ(pascalStringWithEncoding(QString(127, u'x') + QChar(0x6708), 0)[0], 127);
    EXPECT_TRUE(stringWithPascalString({}).isNull());
    const std::uint8_t boastful[]{200, 'a', 'b'};
    EXPECT_EQ(stringWithPascalString(boastful), u"ab");
    EXPECT_THROW(pascalStringWithEncoding(u"a"_s, 12345), InternalInconsistencyException);
    EXPECT_THROW(pascalStringWithEncoding(u"\u6708"_s, 0), InternalInconsistencyException);
}
