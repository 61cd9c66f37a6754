// SPDX-License-Identifier: MIT
#include "platform/richtext/RTFReader.h"

#include <QGuiApplication>
#include <QPalette>
#include <QRegularExpression>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QUrl>

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace {

constexpr qsizetype kMaxInput = 1 << 16;
constexpr std::size_t kMaxDepth = 100;
constexpr int kMaxHalfPoints = 400;
constexpr int kMaxTwips = 2880;
constexpr double kTwipsInPixel = 15;

enum class Destination { Text, Skipped, Colours, FieldInstruction };

struct Group {
    QTextCharFormat characters;
    QTextBlockFormat paragraph;
    Destination destination = Destination::Text;
    std::shared_ptr<QString> fieldInstruction; ///< shared with the groups in the field
};

/// The target of a field that is a link to a page or a mail address, else an empty string.
QString linkTarget(const QString& instruction) {
    static const QRegularExpression hyperlink(QStringLiteral(R"rx(^\s*HYPERLINK\s+"([^"]*)")rx"));
    const QUrl url(hyperlink.match(instruction).captured(1), QUrl::StrictMode);
    const bool isPage = (url.scheme() == u"https" || url.scheme() == u"http") && !url.host().isEmpty();
    const bool isAddress = url.scheme() == u"mailto" && !url.path().isEmpty();
    return url.isValid() && (isPage || isAddress) ? url.toString(QUrl::FullyEncoded) : QString();
}

class Reader {
public:
    explicit Reader(QTextDocument& document) : cursor_(&document) {}

    /// An empty string, or what is wrong with the text.
    QString read(const QByteArray& rtf);

private:
    void take(const QRegularExpressionMatch& token);
    void obey(const QString& word, std::optional<int> parameter);
    void obeyInColourTable(const QString& word, int parameter);
    void obeyInText(const QString& word, std::optional<int> parameter);
    void addCharacter(QChar character);
    void setLink(const QString& target);
    void endParagraph();

    QString reason_;
    std::vector<Group> groups_;
    bool isOptional_ = false; ///< the next word's destination, which a reader that lacks it skips
    QList<QColor> colours_;
    QColor colour_;
    QTextCursor cursor_;
    QTextBlockFormat paragraph_; ///< of the last character
    bool paragraphEnded_ = false;
};

QString Reader::read(const QByteArray& rtf) {
    if (rtf.size() > kMaxInput)
        return QStringLiteral("It is too large.");
    if (!rtf.startsWith("{\\rtf"))
        return QStringLiteral("It is not RTF.");
    // A word with its number, a byte's digits or another character behind a backslash, or one that stands for
    // itself. A line's end stands for nothing.
    static const QRegularExpression token(
        QStringLiteral(R"(\\(?:([A-Za-z]+)(-?[0-9]+)? ?|'([0-9A-Fa-f]{2})|(.))|([^\\\r\n]))"),
        QRegularExpression::DotMatchesEverythingOption);
    auto tokens = token.globalMatch(QString::fromLatin1(rtf));
    cursor_.beginEditBlock();
    do
        take(tokens.next());
    while (reason_.isEmpty() && !groups_.empty() && tokens.hasNext());
    if (!paragraphEnded_)
        cursor_.setBlockFormat(paragraph_);
    cursor_.endEditBlock();
    if (reason_.isEmpty() && !groups_.empty())
        reason_ = QStringLiteral("It breaks off.");
    return reason_;
}

void Reader::take(const QRegularExpressionMatch& token) {
    const QString escaped = token.captured(4);
    const QString plain = token.captured(5);
    if (token.hasCaptured(1)) {
        bool isNumber = false;
        const int number = token.captured(2).toInt(&isNumber);
        obey(token.captured(1), isNumber ? std::optional(number) : std::nullopt);
    } else if (token.hasCaptured(3)) {
        // The upper half of the western character set, but for its quotes and dashes, is Latin-1.
        addCharacter(QChar(token.captured(3).toUShort(nullptr, 16)));
    } else if (plain == u"{") {
        groups_.push_back(groups_.empty() ? Group() : groups_.back());
        if (groups_.size() > kMaxDepth)
            reason_ = QStringLiteral("Its groups are nested too deep.");
    } else if (plain == u"}") {
        groups_.pop_back();
    } else if (escaped == u"*") {
        isOptional_ = true;
    } else if (escaped == u"'") {
        reason_ = QStringLiteral("It holds a malformed character.");
    } else if (escaped.isEmpty() || QStringView(u"\\{}").contains(escaped)) {
        addCharacter((plain + escaped).front());
    }
}

void Reader::obey(const QString& word, std::optional<int> parameter) {
    Group& group = groups_.back();
    const bool isOptional = std::exchange(isOptional_, false);
    if (group.destination == Destination::Skipped)
        return;
    if (word == u"field")
        group.fieldInstruction = std::make_shared<QString>();
    else if (word == u"fldinst")
        group.destination = Destination::FieldInstruction;
    else if (word == u"fldrslt" && group.fieldInstruction)
        setLink(linkTarget(*group.fieldInstruction));
    else if (word == u"colortbl")
        group.destination = Destination::Colours;
    else if (isOptional || word == u"fonttbl" || word == u"stylesheet" || word == u"info" || word == u"pict")
        group.destination = Destination::Skipped;
    else if (group.destination == Destination::Colours)
        obeyInColourTable(word, std::clamp(parameter.value_or(0), 0, 255));
    else if (group.destination == Destination::Text)
        obeyInText(word, parameter);
}

void Reader::obeyInColourTable(const QString& word, int parameter) {
    if (!colour_.isValid())
        colour_ = Qt::black;
    if (word == u"red")
        colour_.setRed(parameter);
    else if (word == u"green")
        colour_.setGreen(parameter);
    else if (word == u"blue")
        colour_.setBlue(parameter);
}

void Reader::obeyInText(const QString& word, std::optional<int> parameter) {
    Group& group = groups_.back();
    const auto within = [&](int largest) { return std::clamp(parameter.value_or(0), 0, largest); };
    if (word == u"par") {
        endParagraph();
    } else if (word == u"line") {
        addCharacter(QChar::LineSeparator);
    } else if (word == u"pard") {
        group.paragraph = {};
    } else if (word == u"qc") {
        group.paragraph.setAlignment(Qt::AlignHCenter);
    } else if (word == u"sb") {
        group.paragraph.setTopMargin(within(kMaxTwips) / kTwipsInPixel);
    } else if (word == u"sa") {
        group.paragraph.setBottomMargin(within(kMaxTwips) / kTwipsInPixel);
    } else if (word == u"b") {
        group.characters.setFontWeight(parameter == 0 ? QFont::Normal : QFont::Bold);
    } else if (word == u"i") {
        group.characters.setFontItalic(parameter != 0);
    } else if (word == u"fs" && within(kMaxHalfPoints) > 0) {
        group.characters.setFontPointSize(within(kMaxHalfPoints) / 2.0);
    } else if (word == u"cf") {
        group.characters.clearForeground();
        if (const QColor colour = colours_.value(parameter.value_or(0)); colour.isValid())
            group.characters.setForeground(colour);
    }
}

void Reader::setLink(const QString& target) {
    if (target.isEmpty())
        return;
    QTextCharFormat& format = groups_.back().characters;
    format.setAnchor(true);
    format.setAnchorHref(target);
    format.setFontUnderline(true);
    // A colour chosen for one background may be unreadable on another; the desktop's own is not.
    format.setForeground(QGuiApplication::palette().link());
}

void Reader::addCharacter(QChar character) {
    const Group& group = groups_.back();
    isOptional_ = false;
    if (group.destination == Destination::Colours && character == u';') {
        colours_.append(std::exchange(colour_, QColor()));
    }
    if (character.category() == QChar::Other_Control)
        return;
    if (group.destination == Destination::FieldInstruction && group.fieldInstruction)
        group.fieldInstruction->append(character);
    if (group.destination != Destination::Text)
        return;
    // A paragraph begins with its first character, so that the end of the last one opens no empty one.
    if (std::exchange(paragraphEnded_, false))
        cursor_.insertBlock(group.paragraph, group.characters);
    paragraph_ = group.paragraph;
    cursor_.insertText(character, group.characters);
}

void Reader::endParagraph() {
    const Group& group = groups_.back();
    if (std::exchange(paragraphEnded_, true))
        cursor_.insertBlock(group.paragraph, group.characters);
    cursor_.setBlockFormat(group.paragraph);
}

} // namespace

std::unique_ptr<QTextDocument> documentFromRTF(const QByteArray& rtf, QString* error) {
    auto document = std::make_unique<QTextDocument>();
    document->setUndoRedoEnabled(false);
    *error = Reader(*document).read(rtf);
    return error->isEmpty() ? std::move(document) : nullptr;
}
