// SPDX-License-Identifier: MIT
#include "platform/log/Log.h"

#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(lumivaneLog, "lumivane", QtInfoMsg)

/// Whether a character would not show where it stands: a control, or one that turns the order of those around
/// it.
bool isInvisible(QChar character) {
    const QChar::Category category = character.category();
    return category == QChar::Other_Control || category == QChar::Other_Format ||
           category == QChar::Separator_Line || category == QChar::Separator_Paragraph;
}

QString escaped(const QString& message) {
    QString line;
    line.reserve(message.size());
    for (const QChar character : message) {
        if (character == u'\n')
            line += QLatin1String("\\n");
        else if (isInvisible(character))
            line += QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
        else
            line += character;
    }
    return line;
}

} // namespace

void logLine(const QString& message) {
    qCInfo(lumivaneLog).noquote() << escaped(message);
}
