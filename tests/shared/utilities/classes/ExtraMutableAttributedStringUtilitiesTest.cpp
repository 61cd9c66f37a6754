// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraMutableAttributedStringUtilities.h"

#include <QTextCursor>
#include <QTextDocument>

#include <gtest/gtest.h>

#include <tuple>

namespace {

using ExtraMutableAttributedStringUtilities::replaceAllAttributedStrings;

using Result = std::tuple<QString, int>;

Result replaced(const char* plain, const char* target, const char* with) {
    QTextDocument text;
    text.setPlainText(QLatin1String(plain));
    const int count = replaceAllAttributedStrings(text, QLatin1String(target), QLatin1String(with));
    return {text.toPlainText(), count};
}

Result expected(const char* text, int count) {
    return {QLatin1String(text), count};
}

} // namespace

TEST(ExtraMutableAttributedStringUtilitiesTest, ReplacesEveryMarkerAndCounts) {
    EXPECT_EQ(replaced("v[V], again [V]\n[V]", "[V]", "1.0"), expected("v1.0, again 1.0\n1.0", 3));
    EXPECT_EQ(replaced("[v] [V", "[V]", "1.0"), expected("[v] [V", 0));
    EXPECT_EQ(replaced("a[V]", "[V]", ""), expected("a", 1));
    EXPECT_EQ(replaced("one\ntwo", "e\nt", "-"), expected("on-wo", 1));
    EXPECT_EQ(replaced("text", "", "x"), expected("text", 0));
    EXPECT_EQ(replaced("[V[V]]", "[V]", ""), expected("", 2)) << "one arose from the other's removal";
}

TEST(ExtraMutableAttributedStringUtilitiesTest, EndsWhenReplacementsMakeMarkers) {
    EXPECT_EQ(replaced("[V] [V]", "[V]", "<[V]>"), expected("<[V]> <[V]>", 2));
    EXPECT_EQ(replaced("[V]", "[V]", "[V]"), expected("[V]", 1));
}

TEST(ExtraMutableAttributedStringUtilitiesTest, TheNewTextLooksLikeWhatItReplaces) {
    QTextDocument text;
    text.setHtml(QStringLiteral("plain <b>[</b><i>V]</i><u>under</u>"));
    EXPECT_EQ(replaceAllAttributedStrings(text, QStringLiteral("[V]"), QStringLiteral("1.0")), 1);
    QTextCursor cursor(&text);
    for (int position = 7; position <= 9; ++position) {
        cursor.setPosition(position);
        EXPECT_EQ(cursor.charFormat().fontWeight(), QFont::Bold);
        EXPECT_FALSE(cursor.charFormat().fontItalic());
    }
    cursor.setPosition(10);
    EXPECT_TRUE(cursor.charFormat().fontUnderline());
    cursor.setPosition(6);
    EXPECT_NE(cursor.charFormat().fontWeight(), QFont::Bold);
}
