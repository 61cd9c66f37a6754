// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/SimpleTextWindow.h"

#include "platform/layouts/Layout.h"
#include "shared/utilities/classes/ExtraContainerUtilities.h"
#include "shared/utilities/classes/InternetConfig.h"

#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QTextBrowser>
#include <QTextDocument>

#include <algorithm>
#include <cmath>

std::unique_ptr<SimpleTextWindow> SimpleTextWindow::loaded(const QTextDocument& text) {
    std::unique_ptr<SimpleTextWindow> dialog(new SimpleTextWindow);
    if (!dialog->loadWindow(QStringLiteral("SimpleTextWindow")))
        return nullptr;
    ExtraContainerUtilities::setAttributedString(dialog->text_, text);
    dialog->fitToText();
    return dialog;
}

SimpleTextWindow* SimpleTextWindow::simpleTextWindowFromAttributedString(const QTextDocument& text,
                                                                         QWidget* window) {
    SimpleTextWindow* const dialog = loaded(text).release();
    if (dialog)
        dialog->showOnWindow(window);
    return dialog;
}

SimpleTextWindow* SimpleTextWindow::freeTextWindowFromAttributedString(const QTextDocument& text) {
    SimpleTextWindow* const dialog = loaded(text).release();
    if (dialog)
        dialog->showByItself();
    return dialog;
}

bool SimpleTextWindow::awakeFromNib(QString* error) {
    QPushButton* okButton = nullptr;
    if (!Layout::connectOutlet(window(), "text_", text_, error) ||
        !Layout::connectOutlet(window(), "okButton_", okButton, error))
        return false;
    connect(text_, &QTextBrowser::anchorClicked,
            [](const QUrl& link) { InternetConfig::launchURL(link.toString(QUrl::FullyEncoded)); });
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
