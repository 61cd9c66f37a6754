// SPDX-License-Identifier: MIT
#pragma once

#include "shared/utilities/classes/DialogOrSheetController.h"

#include <memory>

class QTextBrowser;
class QTextDocument;

/// Shows a formatted text with an OK button. Links in the text open in the user's browser.
class SimpleTextWindow : public DialogOrSheetController {
    Q_OBJECT

public:
    /// Opens the dialog over `window`, or with null by itself, in which case it has ended on return. The text
    /// is copied. Null, with a log line, when the layout can't be loaded.
    static SimpleTextWindow* simpleTextWindowFromAttributedString(const QTextDocument& text, QWidget* window);

    /// The same in a window of its own that blocks nothing; it has not ended on return.
    static SimpleTextWindow* freeTextWindowFromAttributedString(const QTextDocument& text);

public Q_SLOTS:
    void okPushed(QObject* sender);

protected:
    bool awakeFromNib(QString* error) override;
    void dismissed() override;

private:
    SimpleTextWindow() = default;
    static std::unique_ptr<SimpleTextWindow> loaded(const QTextDocument& text);
    void fitToText();

    QTextBrowser* text_ = nullptr;
};
