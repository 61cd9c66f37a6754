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
constexpr int kMaxColours = 256;
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
    Reader(const QByteArray& rtf, QTextDocument& document) : rtf_(rtf), cursor_(&document) {}

    /// An empty string, or what is wrong with the text.
    QString read();

private:
    bool atEnd() const { return position_ >= rtf_.size(); }
    void readControl();
    void readHexByte();
    std::optional<int> readParameter();
    void obey(const QByteArray& word, std::optional<int> parameter);
    void obeyInColourTable(const QByteArray& word, int parameter);
    void obeyInText(const QByteArray& word, std::optional<int> parameter);
    void addCharacter(QChar character);
    void setLink(const QString& target);
    void endParagraph();

    const QByteArray& rtf_;
    qsizetype position_ = 0;
    QString reason_;
    std::vector<Group> groups_;
    bool isOptional_ = false; ///< the next word's destination, which a reader that lacks it skips
    std::vector<QColor> colours_;
    QColor colour_;
    QTextCursor cursor_;
    QTextBlockFormat paragraph_; ///< of the last character
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
            groups_.push_back(groups_.empty() ? Group() : Group(groups_.back()));
        else if (byte == '}')
            groups_.pop_back();
        else if (byte == '\\')
            readControl();
        else if (byte != '\r' && byte != '\n')
            addCharacter(QLatin1Char(byte));
        if (groups_.size() > kMaxDepth)
            reason_ = QStringLiteral("Its groups are nested too deep.");
    } while (reason_.isEmpty() && !groups_.empty() && !atEnd());
    if (!paragraphEnded_)
        cursor_.setBlockFormat(paragraph_);
    cursor_.endEditBlock();
    if (reason_.isEmpty() && !groups_.empty())
        reason_ = QStringLiteral("It breaks off.");
    return reason_;
}

void Reader::readControl() {
    const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    const qsizetype start = position_;
    while (!atEnd() && isLetter(rtf_[position_]))
        ++position_;
    if (position_ > start) {
        const QByteArray word = rtf_.mid(start, position_ - start);
        obey(word, readParameter());
    } else if (!atEnd()) {
        const char symbol = rtf_[position_++];
        if (symbol == '\'')
            readHexByte();
        else if (symbol == '*')
            isOptional_ = true;
        else if (symbol == '\\' || symbol == '{' || symbol == '}')
            addCharacter(QLatin1Char(symbol));
    }
}

std::optional<int> Reader::readParameter() {
    const qsizetype start = position_;
    if (!atEnd() && rtf_[position_] == '-')
        ++position_;
    while (!atEnd() && rtf_[position_] >= '0' && rtf_[position_] <= '9')
        ++position_;
    bool isNumber = false;
    const int number = rtf_.mid(start, position_ - start).toInt(&isNumber);
    if (!atEnd() && rtf_[position_] == ' ')
        ++position_;
    return isNumber ? std::optional(number) : std::nullopt;
}

/// The upper half of the western character set, but for its quotes and dashes, is Latin-1.
void Reader::readHexByte() {
    const QByteArray digits = rtf_.mid(position_, 2);
    const bool isHexadecimal =
        digits.size() == 2 && std::ranges::all_of(digits, [](char c) {
            return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
        });
    if (!isHexadecimal) {
        reason_ = QStringLiteral("It holds a malformed character.");
        return;
    }
    position_ += 2;
    addCharacter(QLatin1Char(QByteArray::fromHex(digits).front()));
}

void Reader::obey(const QByteArray& word, std::optional<int> parameter) {
    Group& group = groups_.back();
    const bool isOptional = std::exchange(isOptional_, false);
    if (group.destination == Destination::Skipped)
        return;
    if (word == "field")
        group.fieldInstruction = std::make_shared<QString>();
    else if (word == "fldinst")
        group.destination = Destination::FieldInstruction;
    else if (word == "fldrslt" && group.fieldInstruction)
        setLink(linkTarget(*group.fieldInstruction));
    else if (word == "colortbl")
        group.destination = Destination::Colours;
    else if (isOptional || word == "fonttbl" || word == "stylesheet" || word == "info" || word == "pict")
        group.destination = Destination::Skipped;
    else if (group.destination == Destination::Colours)
        obeyInColourTable(word, std::clamp(parameter.value_or(0), 0, 255));
    else if (group.destination == Destination::Text)
        obeyInText(word, parameter);
}

void Reader::obeyInColourTable(const QByteArray& word, int parameter) {
    if (!colour_.isValid())
        colour_ = Qt::black;
    if (word == "red")
        colour_.setRed(parameter);
    else if (word == "green")
        colour_.setGreen(parameter);
    else if (word == "blue")
        colour_.setBlue(parameter);
}

void Reader::obeyInText(const QByteArray& word, std::optional<int> parameter) {
    Group& group = groups_.back();
    const auto within = [&](int largest) { return std::clamp(parameter.value_or(0), 0, largest); };
    if (word == "par") {
        endParagraph();
    } else if (word == "line") {
        addCharacter(QChar::LineSeparator);
    } else if (word == "pard") {
        group.paragraph = {};
    } else if (word == "qc") {
        group.paragraph.setAlignment(Qt::AlignHCenter);
    } else if (word == "sb") {
        group.paragraph.setTopMargin(within(kMaxTwips) / kTwipsInPixel);
    } else if (word == "sa") {
        group.paragraph.setBottomMargin(within(kMaxTwips) / kTwipsInPixel);
    } else if (word == "b") {
        group.characters.setFontWeight(parameter == 0 ? QFont::Normal : QFont::Bold);
    } else if (word == "i") {
        group.characters.setFontItalic(parameter != 0);
    } else if (word == "fs" && within(kMaxHalfPoints) > 0) {
        group.characters.setFontPointSize(within(kMaxHalfPoints) / 2.0);
    } else if (word == "cf") {
        const auto index = static_cast<std::size_t>(within(kMaxColours));
        if (index < colours_.size() && colours_[index].isValid())
            group.characters.setForeground(colours_[index]);
        else
            group.characters.clearForeground();
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
        if (colours_.size() < kMaxColours)
            colours_.push_back(colour_);
        colour_ = QColor();
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
    const QString reason = Reader(rtf, *document).read();
    if (reason.isEmpty())
        return document;
    if (error)
        *error = reason;
    return nullptr;
}
