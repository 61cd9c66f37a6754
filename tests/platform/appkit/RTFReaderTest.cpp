// SPDX-License-Identifier: MIT
#include "platform/appkit/RTFReader.h"

#include <QGuiApplication>
#include <QPalette>
#include <QTextBlock>
#include <QTextCursor>

#include <gtest/gtest.h>

namespace {

class RTFReaderTest : public testing::Test {
protected:
    /// Reads a text within a well-formed frame.
    void read(const QByteArray& body) { readWhole("{\\rtf1\\ansi " + body + "}"); }

    void readWhole(const QByteArray& rtf) {
        error_.clear();
        document_ = documentFromRTF(rtf, &error_);
    }

    QString textOf(const QByteArray& body) {
        read(body);
        return document_ ? document_->toRawText().replace(QChar::ParagraphSeparator, u'\n')
                         : QStringLiteral("unread: ") + error_;
    }

    QTextCharFormat formatAt(int position) {
        QTextCursor cursor(document_.get());
        cursor.setPosition(position + 1);
        return cursor.charFormat();
    }

    std::unique_ptr<QTextDocument> document_;
    QString error_;
};

} // namespace

TEST_F(RTFReaderTest, ReadsPlainTextWithItsBreaksAndEscapes) {
    EXPECT_EQ(textOf("one\\par two\\line\nthree\\tab four\\\nfive\\par"), u"one\ntwo\u2028three\tfour\nfive");
    EXPECT_EQ(textOf("\\par\\par a"), u"\n\na");
    EXPECT_EQ(textOf("\\{a\\}\\\\b\\~c"), u"{a}\\b\u00A0c");
    EXPECT_EQ(textOf("a\\emdash\\bullet  b\\lquote c\\rquote"), u"a\u2014\u2022 b\u2018c\u2019");
    EXPECT_EQ(textOf("caf\\'e9 \\'80\\'93"), u"caf\u00E9 \u20AC\u201C");
    EXPECT_EQ(textOf("\\ansicpg1251\\'ff"), u"\u044F");
    EXPECT_EQ(textOf("\\mac\\'8e"), u"\u00E9");
    EXPECT_EQ(textOf(QByteArrayLiteral("a\0b\x01")), u"ab");
}

TEST_F(RTFReaderTest, ReadsUnicodeAndSkipsItsStandIns) {
    EXPECT_EQ(textOf("a\\u960?b"), u"a\u03C0b");
    EXPECT_EQ(textOf("\\uc0\\u960 b\\uc2\\u960\\'70ic{\\uc0\\u945 d}\\u946 xyz"),
              u"\u03C0b\u03C0c\u03B1d\u03B2z");
    EXPECT_EQ(textOf("{\\u960}{\\b a}"), u"\u03C0a") << "a stand-in does not reach out of its group";
    EXPECT_EQ(textOf("\\u960\\u946?"), u"\u03C0\u03B2") << "one that has none";
    EXPECT_EQ(textOf("\\u-10180?\\u-8423?"), u"\U0001F319");
    EXPECT_EQ(textOf("\\u127769?"), u"\U0001F319");
    EXPECT_EQ(textOf("\\u-10180?a\\u-8423?\\u-10180?"), u"\uFFFDa\uFFFD\uFFFD");
    EXPECT_EQ(textOf("a\\u64976?\\u65532?\\u8233?\\u65535?b"), u"ab") << "what a text document can't hold";
}

TEST_F(RTFReaderTest, ReadsTheLooksOfCharacters) {
    read("{\\*\\x{\\colortbl\\red9;}}{\\colortbl;\\red128\\green0\\blue255;\\green64;}a\\b b{\\i\\fs36 "
         "c}\\b0\\cf1 d\\ul e\\plain f\\cf0 g\\cf9 "
         "h\\fs0 i\\cf2 j");
    ASSERT_NE(document_, nullptr) << error_.toStdString();
    ASSERT_EQ(document_->toPlainText(), u"abcdefghij");
    EXPECT_EQ(formatAt(0), QTextCharFormat()) << "the application's font and colours";
    EXPECT_EQ(formatAt(1).fontWeight(), QFont::Bold);
    EXPECT_FALSE(formatAt(1).fontItalic());
    EXPECT_EQ(formatAt(2).fontWeight(), QFont::Bold);
    EXPECT_TRUE(formatAt(2).fontItalic());
    EXPECT_EQ(formatAt(2).fontPointSize(), 18);
    EXPECT_EQ(formatAt(3).foreground().color(), QColor(128, 0, 255));
    EXPECT_NE(formatAt(3).fontWeight(), QFont::Bold);
    EXPECT_TRUE(formatAt(4).fontUnderline());
    EXPECT_EQ(formatAt(9).foreground().color(), QColor(0, 64, 0));
    for (const int plain : {5, 6, 7, 8})
        EXPECT_EQ(formatAt(plain), QTextCharFormat()) << plain;
}

TEST_F(RTFReaderTest, ReadsTheShapeOfParagraphs) {
    read("\\qc\\sa150 a\\par b\\par\\pard c\\qr\\par{\\qj d\\par}e");
    ASSERT_NE(document_, nullptr) << error_.toStdString();
    QList<Qt::Alignment> alignments;
    for (QTextBlock block = document_->begin(); block.isValid(); block = block.next())
        alignments.append(block.blockFormat().alignment() & Qt::AlignHorizontal_Mask);
    EXPECT_EQ(alignments, (QList<Qt::Alignment>{Qt::AlignHCenter, Qt::AlignHCenter, Qt::AlignRight,
                                                Qt::AlignJustify, Qt::AlignRight}));
    EXPECT_EQ(document_->begin().blockFormat().bottomMargin(), 10);
    EXPECT_EQ(document_->lastBlock().blockFormat().bottomMargin(), 0);
}

TEST_F(RTFReaderTest, KeepsLinksToPagesAndMailOnly) {
    const auto linkOf = [this](const QByteArray& instruction) {
        read("{\\field{\\*\\fldinst{" + instruction + "}}{\\fldrslt{x}}}y");
        EXPECT_EQ(document_ ? document_->toPlainText() : error_, u"xy");
        EXPECT_FALSE(document_ && formatAt(1).isAnchor()) << "the link ends with its field";
        return document_ ? formatAt(0).anchorHref() : QString();
    };
    EXPECT_EQ(linkOf("HYPERLINK \"https://www.corvanta.example/a?b=c\""),
              u"https://www.corvanta.example/a?b=c");
    EXPECT_EQ(formatAt(0).foreground(), QGuiApplication::palette().link());
    EXPECT_EQ(linkOf(" HYPERLINK \"mailto:a@corvanta.example\" "), u"mailto:a@corvanta.example");
    EXPECT_EQ(linkOf("HYPERLINK \"HTTP://corvanta.example\""), u"http://corvanta.example");
    for (const char* refused : {"HYPERLINK \"file:///etc/passwd\"", "HYPERLINK \"javascript:alert(1)\"",
                                "HYPERLINK \"https:///x\"", "HYPERLINK \"/usr/bin/true\"",
                                "HYPERLINK \"https://a b\"", "HYPERLINK \\\\l \"https://a\"", "PAGE", ""})
        EXPECT_EQ(linkOf(refused), QString()) << refused;
}

TEST_F(RTFReaderTest, SkipsWhatItDoesNotShow) {
    EXPECT_EQ(
        textOf(
            "{\\fonttbl{\\f0\\fswiss Sans;}}{\\colortbl;\\red1;}{\\info{\\title t}\\par}{\\stylesheet x}a"),
        u"a");
    EXPECT_EQ(textOf("{\\*\\generator G;}{\\*\\unknown u{\\par\\u960?}\\emdash}{\\pict 00ff}b\\unknown c"),
              u"bc");
    EXPECT_EQ(textOf("a\\bin4 {}\\'b{\\pict\\bin3 }}}}c"), u"abc");
    EXPECT_EQ(textOf("a{\\v hidden}b"), u"ab");
    readWhole("{\\rtf1 a}\n\0 more {");
    EXPECT_NE(document_, nullptr) << "what follows the text is not its own";
}

TEST_F(RTFReaderTest, RefusesDamagedAndOversizedTexts) {
    for (const char* damaged :
         {"", "{", "plain", "{\\html a}", "{\\rtf1 a", "{\\rtf1 {a}", "{\\rtf1 \\", "{\\rtf1 \\'4",
          "{\\rtf1 \\'+f}", "{\\rtf1 \\bin9 abc}", "{\\rtf1 \\bin99999999999999999999 a}"}) {
        readWhole(damaged);
        EXPECT_EQ(document_, nullptr) << damaged;
        EXPECT_FALSE(error_.isEmpty()) << damaged;
    }
    const QByteArray deep = QByteArray("{").repeated(99) + "a" + QByteArray("}").repeated(99);
    EXPECT_EQ(textOf(deep), u"a");
    read("{" + deep + "}");
    EXPECT_EQ(document_, nullptr) << "nested too deep";
    EXPECT_EQ(textOf(QByteArray("a").repeated(99'000)).size(), 99'000);
    read(QByteArray("\\par ").repeated(100'001));
    EXPECT_EQ(document_, nullptr) << "too long";
    read(QByteArray("{}").repeated(1 << 20));
    EXPECT_EQ(document_, nullptr) << "too large";
    EXPECT_EQ(documentFromRTF("x", nullptr), nullptr);
}

TEST_F(RTFReaderTest, EndsOnEveryPrefixOfAText) {
    const QByteArray whole(
        "{\\rtf1\\ansi{\\colortbl;\\red1;}{\\field{\\*\\fldinst{HYPERLINK "
        "\"https://a.example\"}}{\\fldrslt b}}\\u-10180?\\u-8423?\\'e9\\bin2 xy\\par\\qc z}");
    for (qsizetype length = 0; length < whole.size(); ++length) {
        readWhole(whole.left(length));
        EXPECT_EQ(document_, nullptr) << length;
    }
    readWhole(whole);
    EXPECT_NE(document_, nullptr);
}
