// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/SimpleTextWindow.h"

#include "platform/appkit/NSNib.h"

#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QTextBrowser>
#include <QTextDocument>

#include <algorithm>
#include <cmath>
#include <memory>

SimpleTextWindow* SimpleTextWindow::simpleTextWindowFromAttributedString(const QTextDocument& text,
                                                                         QWidget* window) {
    std::unique_ptr<SimpleTextWindow> dialog(new SimpleTextWindow);
    if (!dialog->loadWindow(QStringLiteral("SimpleTextWindow")))
        return nullptr;
    dialog->text_->setDocument(text.clone(dialog->text_));
    dialog->fitToText();
    SimpleTextWindow* const shown = dialog.release();
    shown->showOnWindow(window);
    return shown;
}

bool SimpleTextWindow::awakeFromNib(QString* error) {
    QPushButton* okButton = nullptr;
    if (!NSNib::connectOutlet(window(), "text_", text_, error) ||
        !NSNib::connectOutlet(window(), "okButton_", okButton, error))
        return false;
    okButton->setFocus();
    return true;
}

/// A short text is seen whole; a long one scrolls.
void SimpleTextWindow::fitToText() {
    constexpr double kMargin = 12;
    text_->document()->setDocumentMargin(kMargin);
    const std::unique_ptr<QTextDocument> trial(text_->document()->clone());
    trial->setTextWidth(text_->minimumWidth() - 2 * text_->frameWidth());
    const int highest = QGuiApplication::primaryScreen()->availableSize().height() * 2 / 3;
    const int height = static_cast<int>(std::ceil(trial->size().height())) + 2 * text_->frameWidth();
    text_->setMinimumHeight(std::min(height, highest));
}

void SimpleTextWindow::okPushed(QObject*) {
    closeWindow();
}

void SimpleTextWindow::dismissed() {
    closeWindow();
}
