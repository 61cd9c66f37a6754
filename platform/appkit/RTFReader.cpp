// SPDX-License-Identifier: MIT
#include "platform/appkit/RTFReader.h"

#include <QBrush>
#include <QColor>
#include <QGuiApplication>
#include <QHash>
#include <QList>
#include <QPalette>
#include <QRegularExpression>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QUrl>

#include <unicode/ucnv.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <optional>
#include <utility>
#include <vector>

namespace {

constexpr qsizetype kMaxInput = 1 << 20;
constexpr qsizetype kMaxText = 100'000;
constexpr qsizetype kMaxInstruction = 4096;
constexpr qsizetype kMaxColours = 256;
constexpr std::size_t kMaxDepth = 100;
constexpr int kMaxHalfPoints = 400;
constexpr int kMaxTwips = 2880;

// --- Characters
// -----------------------------------------------------------------------------------------------

using CodePage = std::array<char16_t, 256>;

constexpr int kWestern = 1252;
constexpr int kMacRoman = 10000;

CodePage makeCodePage(const QByteArray& name) {
    CodePage page;
    page.fill(QChar::ReplacementCharacter);
    UErrorCode status = U_ZERO_ERROR;
    UConverter* const converter = ucnv_open(name.constData(), &status);
    for (std::size_t byte = 0; byte < page.size() && U_SUCCESS(status); ++byte) {
        const char source = static_cast<char>(byte);
        char16_t unit = 0;
        UErrorCode result = U_ZERO_ERROR;
        if (ucnv_toUChars(converter, &unit, 1, &source, 1, &result) == 1 && U_SUCCESS(result))
            page[byte] = unit;
    }
    ucnv_close(converter);
    return page;
}

/// Western for a number that is no single-byte Windows or Mac character set.
const CodePage& codePage(int number) {
    static QHash<int, CodePage> made;
    if ((number < 1250 || number > 1258) && number != kMacRoman)
        number = kWestern;
    auto page = made.constFind(number);
    if (page == made.constEnd())
        page =
            made.insert(number, makeCodePage(number == kMacRoman ? QByteArrayLiteral("macintosh")
                                                                 : "windows-" + QByteArray::number(number)));
    return *page;
}

/// Whether a text document can hold the character; it uses some code points for its own ends.
bool isText(char32_t character) {
    if (character == u'\t' || character == QChar::LineSeparator)
        return true;
    const QChar::Category category = QChar::category(character);
    return category != QChar::Other_Control && category != QChar::Separator_Paragraph &&
           !QChar::isNonCharacter(character) && character != QChar::ObjectReplacementCharacter;
}

// --- What a group holds
// ---------------------------------------------------------------------------------------

struct CharacterStyle {
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool hidden = false;
    int halfPoints = 0;
    int colour = 0;
    bool operator==(const CharacterStyle&) const = default;
};

struct ParagraphStyle {
    Qt::Alignment alignment;
    int twipsBefore = 0;
    int twipsAfter = 0;
};

enum class Destination { Text, Skipped, Colours, FieldInstruction };

struct Group {
    CharacterStyle character;
    ParagraphStyle paragraph;
    Destination destination = Destination::Text;
    int charactersAfterUnicode = 1;
    std::shared_ptr<QString> fieldInstruction;
    QString link;
};

/// The target of a field that is a link to a page or a mail address, else an empty string.
QString linkTarget(const QString& instruction) {
    static const QRegularExpression hyperlink(QStringLiteral(R"rx(^\s*HYPERLINK\s+"([^"]*)")rx"),
                                              QRegularExpression::CaseInsensitiveOption);
    const QUrl url(hyperlink.match(instruction).captured(1).trimmed(), QUrl::StrictMode);
    const bool isPage = (url.scheme() == u"https" || url.scheme() == u"http") && !url.host().isEmpty();
    const bool isAddress = url.scheme() == u"mailto" && !url.path().isEmpty();
    return url.isValid() && (isPage || isAddress) ? url.toString(QUrl::FullyEncoded) : QString();
}

// --- The reader
// -----------------------------------------------------------------------------------------------

class Reader {
public:
    Reader(const QByteArray& rtf, QTextDocument& document) : rtf_(rtf), cursor_(&document) {}

    /// An empty string, or what is wrong with the text.
    QString read();

private:
    using Parameter = std::optional<int>;
    using Handler = void (*)(Reader&, Parameter);

    static const QHash<QByteArray, Handler>& handlers();
    static const QHash<QByteArray, char16_t>& symbols();

    Group& group() { return groups_.back(); }
    bool atEnd() const { return position_ >= rtf_.size(); }
    void fail(const char* reason) { reason_ = QString::fromLatin1(reason); }

    void openGroup();
    void closeGroup();
    void readControl();
    void readSymbol(char symbol);
    void readHexByte();
    Parameter readParameter();
    void obey(const QByteArray& word, Parameter parameter);
    void skipBytes(Parameter count);

    void addByte(unsigned char byte);
    void addUnicode(int value);
    void addUnit(char16_t unit);
    void settleSurrogate();
    void addCharacter(char32_t character);
    void addColour();
    bool skipFallback();

    void setComponent(void (QColor::*set)(int), Parameter value);
    QTextCharFormat runFormat() const;
    void setParagraphFormat();
    void flush();
    void endParagraph();

    const QByteArray& rtf_;
    qsizetype position_ = 0;
    QString reason_;
    std::vector<Group> groups_;
    const CodePage* codePage_ = &codePage(kWestern);
    bool starred_ = false;
    int fallbackLeft_ = 0;
    char16_t highSurrogate_ = 0;
    QList<QColor> colours_;
    QColor colour_;

    QTextCursor cursor_;
    QString run_;
    CharacterStyle runStyle_;
    QString runLink_;
    ParagraphStyle paragraphStyle_;
    qsizetype textSize_ = 0;
    bool paragraphEnded_ = false;
};

QString Reader::read() {
    if (rtf_.size() > kMaxInput)
        return QStringLiteral("It is too large.");
    if (!rtf_.startsWith("{\\rtf"))
        return QStringLiteral("It is not RTF.");
    cursor_.beginEditBlock();
    do {
        const char byte = rtf_[position_++];
        if (byte == '{')
            openGroup();
        else if (byte == '}')
            closeGroup();
        else if (byte == '\\')
            readControl();
        else if (byte != '\r' && byte != '\n')
            addByte(static_cast<unsigned char>(byte));
    } while (reason_.isEmpty() && !groups_.empty() && !atEnd());
    flush();
    if (!paragraphEnded_)
        setParagraphFormat();
    cursor_.endEditBlock();
    if (reason_.isEmpty() && !groups_.empty())
        fail("It breaks off.");
    return reason_;
}

void Reader::openGroup() {
    settleSurrogate();
    fallbackLeft_ = 0;
    starred_ = false;
    if (groups_.size() >= kMaxDepth)
        fail("Its groups are nested too deep.");
    else
        groups_.push_back(groups_.empty() ? Group() : Group(groups_.back()));
}

void Reader::closeGroup() {
    settleSurrogate();
    fallbackLeft_ = 0;
    starred_ = false;
    groups_.pop_back();
}

void Reader::readControl() {
    if (atEnd())
        return;
    const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    const qsizetype start = position_;
    while (!atEnd() && isLetter(rtf_[position_]))
        ++position_;
    if (position_ == start) {
        readSymbol(rtf_[position_++]);
        return;
    }
    const QByteArray word = rtf_.mid(start, position_ - start);
    const Parameter parameter = readParameter();
    if (word == "bin")
        skipBytes(parameter);
    else if (word == "u" || !skipFallback())
        // Another Unicode character is never a stand-in for one.
        obey(word, parameter);
}

Reader::Parameter Reader::readParameter() {
    constexpr int kLargest = 1'000'000'000;
    const auto isDigit = [this](qsizetype at) {
        return at < rtf_.size() && rtf_[at] >= '0' && rtf_[at] <= '9';
    };
    const bool negative = !atEnd() && rtf_[position_] == '-' && isDigit(position_ + 1);
    if (negative)
        ++position_;
    Parameter value;
    for (; isDigit(position_); ++position_)
        value =
            static_cast<int>(std::min<qint64>(value.value_or(0) * 10LL + (rtf_[position_] - '0'), kLargest));
    if (!atEnd() && rtf_[position_] == ' ')
        ++position_;
    return negative ? Parameter(-*value) : value;
}

void Reader::skipBytes(Parameter count) {
    const int bytes = std::max(count.value_or(0), 0);
    if (bytes > rtf_.size() - position_)
        fail("It breaks off within binary data.");
    else
        position_ += bytes;
    (void)skipFallback();
}

void Reader::readSymbol(char symbol) {
    if (symbol == '\'') {
        readHexByte();
        return;
    }
    if (skipFallback())
        return;
    if (symbol == '*')
        starred_ = true;
    else if (symbol == '\r' || symbol == '\n')
        endParagraph();
    else if (symbol == '\\' || symbol == '{' || symbol == '}')
        addUnit(static_cast<unsigned char>(symbol));
    else if (symbol == '\t')
        addUnit(u'\t');
    else if (symbol == '~')
        addUnit(QChar::Nbsp);
    else if (symbol == '-')
        addUnit(QChar::SoftHyphen);
    else if (symbol == '_')
        addUnit(u'\u2011');
}

void Reader::readHexByte() {
    // Not the string's own conversion: it takes signs and blanks for part of a number.
    const auto isHexadecimal = [](char c) { return std::isxdigit(static_cast<unsigned char>(c)) != 0; };
    const QByteArray digits = rtf_.mid(position_, 2);
    if (digits.size() < 2 || !std::all_of(digits.begin(), digits.end(), isHexadecimal)) {
        fail("It holds a malformed character.");
        return;
    }
    position_ += 2;
    addByte(static_cast<unsigned char>(QByteArray::fromHex(digits).front()));
}

/// Whether what was just read only stands in for the Unicode character before it.
bool Reader::skipFallback() {
    if (fallbackLeft_ == 0)
        return false;
    --fallbackLeft_;
    return true;
}

void Reader::obey(const QByteArray& word, Parameter parameter) {
    const bool optional = std::exchange(starred_, false);
    if (group().destination == Destination::Skipped)
        return;
    if (const auto symbol = symbols().constFind(word); symbol != symbols().constEnd())
        addUnit(*symbol);
    else if (optional && word != "fldinst")
        group().destination = Destination::Skipped;
    else if (const auto handler = handlers().constFind(word); handler != handlers().constEnd())
        (*handler)(*this, parameter);
}

const QHash<QByteArray, char16_t>& Reader::symbols() {
    static const QHash<QByteArray, char16_t> table{
        {"tab", u'\t'},         {"line", u'\u2028'},      {"emdash", u'\u2014'},    {"endash", u'\u2013'},
        {"emspace", u'\u2003'}, {"enspace", u'\u2002'},   {"bullet", u'\u2022'},    {"lquote", u'\u2018'},
        {"rquote", u'\u2019'},  {"ldblquote", u'\u201C'}, {"rdblquote", u'\u201D'}, {"ltrmark", u'\u200E'},
        {"rtlmark", u'\u200F'}, {"zwj", u'\u200D'},       {"zwnj", u'\u200C'},
    };
    return table;
}

const QHash<QByteArray, Reader::Handler>& Reader::handlers() {
    static const QHash<QByteArray, Handler> table = [] {
        QHash<QByteArray, Handler> made{
            {"par", [](Reader& r, Parameter) { r.endParagraph(); }},
            {"pard", [](Reader& r, Parameter) { r.group().paragraph = {}; }},
            {"ql", [](Reader& r, Parameter) { r.group().paragraph.alignment = Qt::AlignLeft; }},
            {"qr", [](Reader& r, Parameter) { r.group().paragraph.alignment = Qt::AlignRight; }},
            {"qc", [](Reader& r, Parameter) { r.group().paragraph.alignment = Qt::AlignHCenter; }},
            {"qj", [](Reader& r, Parameter) { r.group().paragraph.alignment = Qt::AlignJustify; }},
            {"sb",
             [](Reader& r, Parameter n) {
                 r.group().paragraph.twipsBefore = std::clamp(n.value_or(0), 0, kMaxTwips);
             }},
            {"sa",
             [](Reader& r, Parameter n) {
                 r.group().paragraph.twipsAfter = std::clamp(n.value_or(0), 0, kMaxTwips);
             }},
            {"plain", [](Reader& r, Parameter) { r.group().character = {}; }},
            {"b", [](Reader& r, Parameter n) { r.group().character.bold = n != 0; }},
            {"i", [](Reader& r, Parameter n) { r.group().character.italic = n != 0; }},
            {"ul", [](Reader& r, Parameter n) { r.group().character.underline = n != 0; }},
            {"ulnone", [](Reader& r, Parameter) { r.group().character.underline = false; }},
            {"v", [](Reader& r, Parameter n) { r.group().character.hidden = n != 0; }},
            {"fs",
             [](Reader& r, Parameter n) {
                 r.group().character.halfPoints = std::clamp(n.value_or(0), 0, kMaxHalfPoints);
             }},
            {"cf", [](Reader& r, Parameter n) { r.group().character.colour = n.value_or(0); }},
            {"ansicpg", [](Reader& r, Parameter n) { r.codePage_ = &codePage(n.value_or(kWestern)); }},
            {"mac", [](Reader& r, Parameter) { r.codePage_ = &codePage(kMacRoman); }},
            {"uc",
             [](Reader& r, Parameter n) { r.group().charactersAfterUnicode = std::max(n.value_or(1), 0); }},
            {"u", [](Reader& r, Parameter n) { r.addUnicode(n.value_or(QChar::ReplacementCharacter)); }},
            {"colortbl", [](Reader& r, Parameter) { r.group().destination = Destination::Colours; }},
            {"red", [](Reader& r, Parameter n) { r.setComponent(&QColor::setRed, n); }},
            {"green", [](Reader& r, Parameter n) { r.setComponent(&QColor::setGreen, n); }},
            {"blue", [](Reader& r, Parameter n) { r.setComponent(&QColor::setBlue, n); }},
            {"field", [](Reader& r, Parameter) { r.group().fieldInstruction = std::make_shared<QString>(); }},
            {"fldinst", [](Reader& r, Parameter) { r.group().destination = Destination::FieldInstruction; }},
            {"fldrslt",
             [](Reader& r, Parameter) {
                 if (r.group().fieldInstruction)
                     r.group().link = linkTarget(*r.group().fieldInstruction);
             }},
        };
        for (const char* word : {"fonttbl",
                                 "stylesheet",
                                 "info",
                                 "pict",
                                 "object",
                                 "header",
                                 "headerl",
                                 "headerr",
                                 "headerf",
                                 "footer",
                                 "footerl",
                                 "footerr",
                                 "footerf",
                                 "footnote",
                                 "filetbl",
                                 "listtable",
                                 "listoverridetable",
                                 "revtbl",
                                 "rsidtbl",
                                 "generator",
                                 "themedata",
                                 "xe",
                                 "tc",
                                 "rxe",
                                 "nonshppict",
                                 "annotation"})
            made.insert(word, [](Reader& r, Parameter) { r.group().destination = Destination::Skipped; });
        return made;
    }();
    return table;
}

void Reader::addByte(unsigned char byte) {
    starred_ = false;
    if (skipFallback())
        return;
    if (group().destination == Destination::Colours) {
        if (byte == ';')
            addColour();
        return;
    }
    settleSurrogate();
    addUnit((*codePage_)[byte]);
}

void Reader::addColour() {
    if (colours_.size() < kMaxColours)
        colours_.append(colour_);
    colour_ = QColor();
}

void Reader::addUnicode(int value) {
    // Written as a signed 16-bit number; some writers give larger characters whole.
    const int character = value < 0 ? value + 0x10000 : value;
    if (character < 0 || character > static_cast<int>(QChar::LastValidCodePoint)) {
        addUnit(QChar::ReplacementCharacter);
    } else if (QChar::requiresSurrogates(static_cast<char32_t>(character))) {
        addUnit(QChar::highSurrogate(static_cast<char32_t>(character)));
        addUnit(QChar::lowSurrogate(static_cast<char32_t>(character)));
    } else {
        addUnit(static_cast<char16_t>(character));
    }
    fallbackLeft_ = group().charactersAfterUnicode;
}

/// Adds a UTF-16 unit; halves of a pair are joined, half a pair alone becomes U+FFFD.
void Reader::addUnit(char16_t unit) {
    const char16_t before = std::exchange(highSurrogate_, u'\0');
    if (before && QChar::isLowSurrogate(unit)) {
        addCharacter(QChar::surrogateToUcs4(before, unit));
        return;
    }
    if (before)
        addCharacter(QChar::ReplacementCharacter);
    if (QChar::isHighSurrogate(unit))
        highSurrogate_ = unit;
    else
        addCharacter(QChar::isLowSurrogate(unit) ? char32_t(QChar::ReplacementCharacter) : char32_t(unit));
}

void Reader::settleSurrogate() {
    if (std::exchange(highSurrogate_, u'\0'))
        addCharacter(QChar::ReplacementCharacter);
}

void Reader::addCharacter(char32_t character) {
    const Group& in = group();
    if (!isText(character))
        return;
    if (in.destination == Destination::FieldInstruction && in.fieldInstruction &&
        in.fieldInstruction->size() < kMaxInstruction)
        in.fieldInstruction->append(QChar::fromUcs4(character));
    if (in.destination != Destination::Text || in.character.hidden)
        return;
    if (in.character != runStyle_ || in.link != runLink_) {
        flush();
        runStyle_ = in.character;
        runLink_ = in.link;
    }
    run_.append(QChar::fromUcs4(character));
    paragraphStyle_ = in.paragraph;
    if (++textSize_ > kMaxText)
        fail("Its text is too long.");
}

void Reader::setComponent(void (QColor::*set)(int), Parameter value) {
    if (!colour_.isValid())
        colour_ = QColor(0, 0, 0);
    (colour_.*set)(std::clamp(value.value_or(0), 0, 255));
}

QTextCharFormat Reader::runFormat() const {
    QTextCharFormat format;
    if (runStyle_.bold)
        format.setFontWeight(QFont::Bold);
    if (runStyle_.italic)
        format.setFontItalic(true);
    if (runStyle_.halfPoints > 0)
        format.setFontPointSize(runStyle_.halfPoints / 2.0);
    if (const QColor colour = colours_.value(runStyle_.colour); colour.isValid())
        format.setForeground(colour);
    if (!runLink_.isEmpty()) {
        format.setAnchor(true);
        format.setAnchorHref(runLink_);
        // A colour chosen for one background may be unreadable on another; the desktop's own is not.
        format.setForeground(QGuiApplication::palette().link());
    }
    if (runStyle_.underline || !runLink_.isEmpty())
        format.setFontUnderline(true);
    return format;
}

void Reader::setParagraphFormat() {
    constexpr double kTwipsInPixel = 15;
    QTextBlockFormat format;
    if (paragraphStyle_.alignment)
        format.setAlignment(paragraphStyle_.alignment);
    format.setTopMargin(paragraphStyle_.twipsBefore / kTwipsInPixel);
    format.setBottomMargin(paragraphStyle_.twipsAfter / kTwipsInPixel);
    cursor_.setBlockFormat(format);
}

void Reader::flush() {
    if (run_.isEmpty())
        return;
    if (std::exchange(paragraphEnded_, false))
        cursor_.insertBlock(QTextBlockFormat(), runFormat());
    cursor_.insertText(std::exchange(run_, QString()), runFormat());
}

/// A paragraph begins with its first character, so that the end of the last one opens no empty one.
void Reader::endParagraph() {
    settleSurrogate();
    if (group().destination != Destination::Text)
        return;
    flush();
    if (paragraphEnded_)
        cursor_.insertBlock(QTextBlockFormat(), runFormat());
    paragraphStyle_ = group().paragraph;
    setParagraphFormat();
    paragraphEnded_ = true;
    if (++textSize_ > kMaxText)
        fail("Its text is too long.");
}

} // namespace

std::unique_ptr<QTextDocument> documentFromRTF(const QByteArray& rtf, QString* error) {
    auto document = std::make_unique<QTextDocument>();
    document->setUndoRedoEnabled(false);
    const QString reason = Reader(rtf, *document).read();
    if (reason.isEmpty())
        return document;
    if (error)
        *error = reason;
    return nullptr;
}
