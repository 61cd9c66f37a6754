// SPDX-License-Identifier: MIT
#include "platform/richtext/RTFReader.h"

#include "tests/TestMain.h"

#include <QGuiApplication>
#include <QPalette>
#include <QTextBlock>
#include <QTextCursor>

namespace {

class RTFReaderTest : public testing::Test {
protected:
    void readWhole(const QByteArray& rtf) {
        error_.clear();
        document_ = documentFromRTF(rtf, &error_);
    }

    /// Reads a text within a well-formed frame.
    QString textOf(const QByteArray& body) {
        readWhole("{\\rtf1\\ansi " + body + "}");
        return document_ ? document_->toRawText().replace(QChar::ParagraphSeparator, u'\n')
                         : u"unread: "_s + error_;
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

TEST_F(RTFReaderTest, ReadsTextWithItsBreaksAndEscapesAndSkipsTheRest) {
    using Row = std::tuple<QByteArray, QString>;
    for (const auto& [rtf, text] : {
             Row{"one\\par two\\line\nthree\\par", u"one\ntwo\u2028three"_s},
             Row{"\\{a\\}\\\\b caf\\'e9", u"{a}\\b caf\u00E9"_s},
             Row{QByteArrayLiteral("a\0b\x01"), u"ab"_s},
             Row{"{\\fonttbl{\\f0\\fswiss Sans;}}{\\colortbl;\\red1;}{\\info{\\title t}\\par}a", u"a"_s},
             Row{"{\\*\\generator G;}{\\*\\unknown u{\\par\\line}}{\\pict 00ff}b\\unknown c", u"bc"_s},
         })
        EXPECT_EQ(textOf(rtf), text) << rtf.constData();
}

TEST_F(RTFReaderTest, ReadsTheLooksOfCharactersAndParagraphs) {
    ASSERT_EQ(textOf("{\\colortbl;\\red128\\green0\\blue255;}{\\qc\\sa150 a{\\b b{\\i\\fs36 c}}\\par}"
                     "\\pard\\sb30{\\cf1 d\\cf0 e\\cf9 f}\\par\\pard g"),
              u"abc\ndef\ng");
    for (const int plain : {0, 5, 6, 8})
        EXPECT_EQ(formatAt(plain), QTextCharFormat()) << plain << ": the application's font and colours";
    for (const int bold : {1, 2}) {
        EXPECT_EQ(formatAt(bold).fontWeight(), QFont::Bold);
        EXPECT_EQ(formatAt(bold).fontItalic(), bold == 2);
    }
    EXPECT_EQ(formatAt(2).fontPointSize(), 18);
    EXPECT_EQ(formatAt(4).foreground().color(), QColor(128, 0, 255));
    const QTextBlock first = document_->begin();
    EXPECT_EQ(first.blockFormat().alignment() & Qt::AlignHorizontal_Mask, Qt::AlignHCenter);
    EXPECT_EQ(first.blockFormat().bottomMargin(), 10);
    EXPECT_EQ(first.next().blockFormat().topMargin(), 2);
    EXPECT_EQ(document_->lastBlock().blockFormat(), QTextBlockFormat());
}

TEST_F(RTFReaderTest, KeepsLinksToPagesAndMailOnly) {
    const auto linkOf = [this](const QByteArray& instruction) {
        EXPECT_EQ(textOf("{\\field{\\*\\fldinst{" + instruction + "}}{\\fldrslt{x}}}y"), u"xy");
        EXPECT_FALSE(document_ && formatAt(1).isAnchor()) << "the link ends with its field";
        return document_ ? formatAt(0).anchorHref() : QString();
    };
    EXPECT_EQ(linkOf("HYPERLINK \"https://www.corvanta.example/a?b=c\""),
              u"https://www.corvanta.example/a?b=c");
    EXPECT_EQ(formatAt(0).foreground(), QGuiApplication::palette().link());
    EXPECT_EQ(linkOf(" HYPERLINK \"mailto:a@corvanta.example\" "), u"mailto:a@corvanta.example");
    for (const char* refused : {"HYPERLINK \"file:///etc/passwd\"", "HYPERLINK \"https:///x\"",
                                "HYPERLINK \"https://a b\"", "PAGE"})
        EXPECT_EQ(linkOf(refused), QString()) << refused;
}

TEST_F(RTFReaderTest, RefusesDamagedAndOversizedTexts) {
    const QByteArray whole("{\\rtf1\\ansi{\\colortbl;\\red1;}{\\field{\\*\\fldinst{HYPERLINK "
                           "\"https://a.example\"}}{\\fldrslt b}}\\'e9\\par\\qc z}");
    for (qsizetype length = 0; length < whole.size(); ++length) {
        readWhole(whole.left(length));
        EXPECT_EQ(document_, nullptr) << length;
        EXPECT_FALSE(error_.isEmpty()) << length;
    }
    for (const char* damaged : {"{\\html a}", "{\\rtf1 \\'+f}"}) {
        readWhole(damaged);
        EXPECT_EQ(document_, nullptr) << damaged;
    }
    const QByteArray deep = QByteArray("{").repeated(99) + "a" + QByteArray("}").repeated(99);
    EXPECT_EQ(textOf(deep), u"a");
    EXPECT_TRUE(textOf("{" + deep + "}").startsWith(u"unread")) << "nested too deep";
    EXPECT_TRUE(textOf(QByteArray("{}").repeated(1 << 15)).startsWith(u"unread")) << "too large";
}
