// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraMutableAttributedStringUtilities.h"

#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

int ExtraMutableAttributedStringUtilities::replaceAllAttributedStrings(QTextDocument& text,
                                                                       const QString& target,
                                                                       const QString& with) {
    if (target.isEmpty())
        return 0;
    const QString marker = QString(target).replace(u'\n', QChar::ParagraphSeparator);
    const bool holdsMarker = QString(with).replace(u'\n', QChar::ParagraphSeparator).contains(marker);
    QTextCursor cursor(&text);
    // Replacements and the text around them could make new markers without end.
    const int most = text.characterCount();
    int count = 0;
    qsizetype from = 0;
    while (count < most) {
        const qsizetype start = text.toRawText().indexOf(marker, from);
        if (start < 0)
            break;
        cursor.setPosition(static_cast<int>(start));
        cursor.setPosition(static_cast<int>(start) + 1, QTextCursor::KeepAnchor);
        const QTextCharFormat format = cursor.charFormat();
        cursor.setPosition(static_cast<int>(start + marker.size()), QTextCursor::KeepAnchor);
        cursor.insertText(with, format);
        ++count;
        from = holdsMarker ? cursor.position() : std::max<qsizetype>(0, start - marker.size() + 1);
    }
    return count;
}
