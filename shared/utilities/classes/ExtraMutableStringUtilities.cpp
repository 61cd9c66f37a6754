// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraMutableStringUtilities.h"

int ExtraMutableStringUtilities::replaceAll(QString& text, const QString& search, const QString& with) {
    if (search.isEmpty())
        return 0;
    const auto found = text.count(search, Qt::CaseInsensitive);
    text.replace(search, with, Qt::CaseInsensitive);
    return static_cast<int>(found);
}

void ExtraMutableStringUtilities::appendLine(QString& text, const QString& line) {
    if (!text.isEmpty() && !text.endsWith(u'\n') && !text.endsWith(u'\r'))
        text += u'\n';
    text += line;
}
