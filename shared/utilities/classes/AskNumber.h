// SPDX-License-Identifier: MIT
#pragma once

#include "shared/utilities/classes/DialogOrSheetController.h"

#include <functional>
#include <optional>

class QLabel;
class QLineEdit;

/// Asks for a number. What was typed is handed over as text; whether it is a number is the caller's to judge.
class AskNumber : public DialogOrSheetController {
    Q_OBJECT

public:
    /// Receives the answer and the dialog, which is still open and whose `ok` tells which button was pushed.
    /// A cancelled dialog gives the text as it stands.
    using Completion = std::function<void(const QString& answer, AskNumber* dialog)>;

    /// Opens the dialog over `window`, or with null by itself, in which case it has ended on return. A null
    /// text leaves what the layout holds. `message` marks the letter that leads to the answer by '&'. Null,
    /// with a log line, when the layout can't be loaded.
    static AskNumber* AskNumberWithMessage(const QString& message, const QString& smallMessage,
                                           const QString& userText, QWidget* window, Completion completion);

    /// The answer that OK hands over: the text without one leading "+"; nothing when no text is left.
    static std::optional<QString> acceptedAnswer(const QString& text);

    /// Whether the dialog ended with OK.
    bool ok() const { return resultButton_ == 1; }

    /// The preset answer.
    QString defaultlUserText() const { return defaultUserText_; }

    /// A value that the caller keeps with the dialog, 0 at first.
    int refCon() const { return refCon_; }
    void setRefCon(int value) { refCon_ = value; }

public Q_SLOTS:
    /// Hands the answer over and closes; beeps and stays open when there is none.
    void okPushed(QObject* sender);
    void cancelPushed(QObject* sender);

protected:
    bool awakeFromNib(QString* error) override;
    void dismissed() override;

private:
    AskNumber() = default;
    void complete(const QString& answer);

    QLabel* message_ = nullptr;
    QLineEdit* userText_ = nullptr;
    QLabel* smallMessage_ = nullptr;
    QString defaultMessage_;
    QString defaultSmallMessage_;
    QString defaultUserText_;
    Completion completion_;
    int resultButton_ = 0;
    int refCon_ = 0;
};
