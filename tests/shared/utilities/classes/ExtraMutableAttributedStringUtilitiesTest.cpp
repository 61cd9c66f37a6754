// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraMutableAttributedStringUtilities.h"

#include "tests/TestMain.h"

#include <QTextCursor>
#include <QTextDocument>

using ExtraMutableAttributedStringUtilities::replaceAllAttributedStrings;

TEST(ExtraMutableAttributedStringUtilitiesTest, ReplacesEveryMarkerOnceAndCounts) {
    using Row = std::tuple<QString, QString, QString, QString, int>;
    for (const auto& [plain, target, with, expected, count] :
         {Row{u"v[V], again [V]\n[V]"_s, u"[V]"_s, u"1.0"_s, u"v1.0, again 1.0\n1.0"_s, 3},
          Row{u"one\ntwo"_s, u"e\nt"_s, u"-"_s, u"on-wo"_s, 1},
          Row{u"text"_s, QString(), u"x"_s, u"text"_s, 0},
          Row{u"[V[V]]"_s, u"[V]"_s, QString(), QString(), 2}, // one arises from the other's removal
          Row{u"[V] [V]"_s, u"[V]"_s, u"<[V]>"_s, u"<[V]> <[V]>"_s, 2}}) {
        QTextDocument text;
        text.setPlainText(plain);
        EXPECT_EQ(replaceAllAttributedStrings(text, target, with), count) << qPrintable(plain);
        EXPECT_EQ(text.toPlainText(), expected);
    }
}

TEST(ExtraMutableAttributedStringUtilitiesTest, TheNewTextLooksLikeWhatItReplaces) {
    QTextDocument text;
    text.setHtml(u"plain <b>[</b><i>V]</i><u>under</u>"_s);
    EXPECT_EQ(replaceAllAttributedStrings(text, u"[V]"_s, u"1.0"_s), 1);
    QTextCursor cursor(&text);
    for (int position = 6; position <= 10; ++position) {
        cursor.setPosition(position);
        const bool isNew = position > 6 && position < 10;
        EXPECT_EQ(cursor.charFormat().fontWeight() == QFont::Bold, isNew) << position;
        EXPECT_FALSE(cursor.charFormat().fontItalic());
    }
    EXPECT_TRUE(cursor.charFormat().fontUnderline());
}
