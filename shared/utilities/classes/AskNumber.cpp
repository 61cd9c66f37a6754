// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/AskNumber.h"

#include "platform/layouts/Layout.h"
#include "platform/layouts/Mnemonics.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>

#include <memory>
#include <utility>

AskNumber* AskNumber::AskNumberWithMessage(const QString& message, const QString& smallMessage,
                                           const QString& userText, QWidget* window, Completion completion) {
    std::unique_ptr<AskNumber> dialog(new AskNumber);
    dialog->defaultMessage_ = message;
    dialog->defaultSmallMessage_ = smallMessage;
    dialog->defaultUserText_ = userText;
    dialog->completion_ = std::move(completion);
    if (!dialog->loadWindow(QStringLiteral("AskNumber")))
        return nullptr;
    AskNumber* const shown = dialog.release();
    shown->showOnWindow(window);
    return shown;
}

bool AskNumber::awakeFromNib(QString* error) {
    if (!Layout::connectOutlet(window(), "message_", message_, error) ||
        !Layout::connectOutlet(window(), "userText_", userText_, error) ||
        !Layout::connectOutlet(window(), "smallMessage_", smallMessage_, error) || !okButton(error))
        return false;
    if (!defaultMessage_.isNull())
        message_->setText(defaultMessage_);
    if (!defaultUserText_.isNull())
        userText_->setText(defaultUserText_);
    if (!defaultSmallMessage_.isNull())
        smallMessage_->setText(defaultSmallMessage_);
    userText_->setAccessibleName(withoutMnemonic(message_->text()));
    userText_->setAccessibleDescription(smallMessage_->text());
    userText_->setFocus();
    userText_->selectAll();
    return true;
}

std::optional<QString> AskNumber::acceptedAnswer(const QString& text) {
    const QString answer = text.startsWith(u'+') ? text.mid(1) : text;
    return answer.isEmpty() ? std::nullopt : std::optional(answer);
}

void AskNumber::okPushed(QObject*) {
    const std::optional<QString> answer = acceptedAnswer(userText_->text());
    if (!answer) {
        QApplication::beep();
        return;
    }
    resultButton_ = 1;
    complete(*answer);
}

void AskNumber::cancelPushed(QObject*) {
    resultButton_ = 0;
    complete(userText_->text());
}

void AskNumber::dismissed() {
    cancelPushed(nullptr);
}

void AskNumber::complete(const QString& answer) {
    if (completion_)
        completion_(answer, this);
    closeWindow();
}
