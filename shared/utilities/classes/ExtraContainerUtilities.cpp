// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraContainerUtilities.h"

#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextEdit>

void ExtraContainerUtilities::setAttributedString(QTextEdit* view, const QTextDocument& text) {
    const QSignalBlocker unheard(view);
    view->clear();
    QTextCursor cursor(view->document());
    cursor.insertFragment(QTextDocumentFragment(&text));
    // A fragment leaves the paragraph that it is put into as it was.
    cursor.movePosition(QTextCursor::Start);
    cursor.setBlockFormat(text.firstBlock().blockFormat());
    view->moveCursor(QTextCursor::Start);
}
