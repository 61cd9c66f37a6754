// SPDX-License-Identifier: MIT
#include "platform/updates/Appcast.h"

#include "platform/updates/FeedFetcher.h"

#include <QRegularExpression>
#include <QStringDecoder>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

constexpr int kDeepestElement = 32;
constexpr int kMostItems = 1000;
constexpr qsizetype kLongestTag = 4096;
constexpr qsizetype kLongestNotes = 65536;
constexpr qsizetype kLongestLine = 200;
constexpr qsizetype kLongestVersion = 64;
constexpr qsizetype kLongestAddress = 2048;

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

/// A field's number as its digits without leading zeros, so that no number is too long to compare.
QStringView significantDigits(QStringView field) {
    const auto end = std::find_if_not(field.begin(), field.end(), isDigit);
    const auto start = std::find_if(field.begin(), end, [](QChar digit) { return digit != u'0'; });
    return QStringView(start, end);
}

std::strong_ordering compareNumbers(QStringView left, QStringView right) {
    if (left.size() != right.size())
        return left.size() <=> right.size();
    return left.compare(right) <=> 0;
}

bool isBuildNumber(const QString& text) {
    const QStringList fields = text.split(u'.');
    return text.size() <= kLongestVersion && std::ranges::all_of(fields, [](const QString& field) {
               return !field.isEmpty() && std::ranges::all_of(field, isDigit);
           });
}

/// One line without what could disturb the line that it is put into.
QString tidyLine(const QString& text, qsizetype longest) {
    QString line;
    for (const QChar character : text.simplified().left(longest)) {
        if (character.isPrint() || character.isSurrogate())
            line.append(character);
    }
    return line;
}

QUrl securePage(const QString& address) {
    const QString trimmed = address.trimmed();
    const QUrl url(trimmed.size() > kLongestAddress ? QString() : trimmed);
    // A user name in an address serves only to make its host look like another.
    return isSecure(url) && url.userInfo().isEmpty() ? url : QUrl();
}

/// Whether a tag is longer than any honest feed's. The reader's time grows with the square of the number of a
/// tag's attributes, so that it must not even see such a tag.
bool hasOverlongTag(const QString& xml) {
    // A comment, a section or an instruction, else a tag; what does not end takes all that follows.
    static const QRegularExpression markup(
        QStringLiteral(R"(<!--.*?(?:-->|\z)|<!\[CDATA\[.*?(?:\]\]>|\z)|<\?.*?(?:\?>|\z))"
                       R"(|(<(?:[^>"']++|"[^"]*+(?:"|\z)|'[^']*+(?:'|\z))*+(?:>|\z)))"),
        QRegularExpression::DotMatchesEverythingOption);
    auto found = markup.globalMatch(xml);
    while (found.hasNext()) {
        if (found.next().capturedLength(1) > kLongestTag)
            return true;
    }
    return !found.isValid(); // it costs more than a match may
}

/// Walks rss/channel/item. It does not recurse, so that nesting costs no stack.
class FeedReader {
public:
    explicit FeedReader(const QString& feed) : xml_(feed) {}

    std::optional<AppcastItem> newest(QString* error) {
        while (!xml_.atEnd())
            takeToken(xml_.readNext());
        if (!xml_.hasError() && !newest_)
            xml_.raiseError(QStringLiteral("it offers no version"));
        if (!xml_.hasError())
            return newest_;
        *error = QStringLiteral("line %1: %2").arg(xml_.lineNumber()).arg(xml_.errorString());
        return std::nullopt;
    }

private:
    /// What an item's children hold, as far as they count.
    struct Fields {
        QString title;
        QString notes;
        QString link;
        QString build;
        QString version;
    };

    void takeToken(QXmlStreamReader::TokenType token) {
        switch (token) {
        case QXmlStreamReader::DTD:
        case QXmlStreamReader::EntityReference:
            xml_.raiseError(QStringLiteral("document types and entities are not accepted"));
            break;
        case QXmlStreamReader::StartElement:
            startElement();
            break;
        case QXmlStreamReader::Characters:
            if (text_)
                text_->append(xml_.text().left(kLongestNotes - text_->size()));
            break;
        case QXmlStreamReader::EndElement:
            endElement();
            break;
        default:
            break;
        }
    }

    void startElement() {
        if (++depth_ > kDeepestElement)
            return xml_.raiseError(QStringLiteral("it is nested too deeply"));
        if (depth_ == 1 && xml_.name() != u"rss")
            return xml_.raiseError(QStringLiteral("it is no RSS feed"));
        // RSS itself has no prefix; other vocabularies have titles and links too.
        if (!xml_.prefix().isEmpty())
            return;
        if (depth_ == 2)
            inChannel_ = xml_.name() == u"channel";
        else if (depth_ == 3 && inChannel_ && xml_.name() == u"item")
            item_.emplace();
        else if (depth_ == 4 && item_)
            startField();
    }

    void startField() {
        if (xml_.name() == u"title")
            text_ = &item_->title;
        else if (xml_.name() == u"description")
            text_ = &item_->notes;
        else if (xml_.name() == u"link")
            text_ = &item_->link;
        else if (xml_.name() == u"enclosure")
            readEnclosure();
        if (text_ && !text_->isEmpty())
            text_ = nullptr;
    }

    void readEnclosure() {
        for (const QXmlStreamAttribute& attribute : xml_.attributes()) {
            if (attribute.name() == u"version")
                item_->build = attribute.value().trimmed().toString();
            else if (attribute.name() == u"shortVersionString")
                item_->version = attribute.value().toString();
        }
    }

    void endElement() {
        if (depth_ == 4)
            text_ = nullptr;
        if (depth_ == 3 && item_)
            endItem();
        --depth_;
    }

    void endItem() {
        const Fields fields = *std::exchange(item_, std::nullopt);
        if (!isBuildNumber(fields.build))
            return;
        if (++count_ > kMostItems)
            return xml_.raiseError(QStringLiteral("it has too many items"));
        if (newest_ && compareBuildNumbers(fields.build, newest_->build) <= 0)
            return;
        const QString version = tidyLine(fields.version, kLongestVersion);
        newest_ = {.title = tidyLine(fields.title, kLongestLine),
                   .notes = fields.notes.trimmed(),
                   .build = fields.build,
                   .version = version.isEmpty() ? fields.build : version,
                   .page = securePage(fields.link)};
    }

    QXmlStreamReader xml_;
    std::optional<AppcastItem> newest_;
    int count_ = 0;
    std::optional<Fields> item_;
    QString* text_ = nullptr;
    int depth_ = 0;
    bool inChannel_ = false;
};

} // namespace

std::strong_ordering compareBuildNumbers(QStringView left, QStringView right) {
    const QList<QStringView> leftFields = left.split(u'.');
    const QList<QStringView> rightFields = right.split(u'.');
    for (qsizetype at = 0; at < std::max(leftFields.size(), rightFields.size()); ++at) {
        const auto order =
            compareNumbers(significantDigits(leftFields.value(at)), significantDigits(rightFields.value(at)));
        if (order != 0)
            return order;
    }
    return std::strong_ordering::equal;
}

std::optional<AppcastItem> newestItem(const QByteArray& feed, QString* error) {
    // Decoded here, so that no declared encoding lets the check and the reader see two different texts.
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(feed);
    if (decoder.hasError()) {
        *error = QStringLiteral("it is not UTF-8");
        return std::nullopt;
    }
    if (hasOverlongTag(text)) {
        *error = QStringLiteral("it has an overlong tag");
        return std::nullopt;
    }
    return FeedReader(text).newest(error);
}
