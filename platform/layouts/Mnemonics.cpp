// SPDX-License-Identifier: MIT
#include "platform/layouts/Mnemonics.h"

#include <QRegularExpression>

QString withoutMnemonic(const QString& text) {
    // Where the script has no letters to press, a Latin one follows the text in parentheses.
    static const QRegularExpression marks(QStringLiteral(R"(\s?\(&[^&\s]\)|&(.?))"));
    return QString(text).replace(marks, QStringLiteral("\\1"));
}
