// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/values/ExtraMutableStringUtilities.h"

int ExtraMutableStringUtilities::replaceAll(QString& text, const QString& search, const QString& with) {
    if (search.isEmpty())
        return 0;
    int count = 0;
    for (qsizetype at = 0; (at = text.indexOf(search, at, Qt::CaseInsensitive)) >= 0; at += with.size()) {
        text.replace(at, search.size(), with);
        ++count;
    }
    return count;
}

void ExtraMutableStringUtilities::appendLine(QString& text, const QString& line) {
    if (!text.isEmpty() && !text.endsWith(u'\n') && !text.endsWith(u'\r'))
        text += u'\n';
    text += line;
}
