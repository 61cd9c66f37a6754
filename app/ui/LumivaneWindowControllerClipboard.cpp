// SPDX-License-Identifier: MIT
// What the panel shows as text on the clipboard, and the credits.
#include "app/ui/LumivaneStatusItem.h"
#include "app/ui/LumivaneWindow.h"
#include "app/ui/LumivaneWindowController.h"
#include "platform/bundle/Bundle.h"
#include "platform/files/RegularFile.h"
#include "platform/layouts/Mnemonics.h"
#include "platform/log/Log.h"
#include "platform/richtext/RTFReader.h"
#include "shared/utilities/classes/ExtraMutableAttributedStringUtilities.h"
#include "shared/utilities/classes/ExtraStringSystemUtilities.h"
#include "shared/utilities/classes/SimpleTextWindow.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTextDocument>

namespace {

constexpr qint64 kLargestCredits = 1 << 20;

/// What the credits say in words; names and titles stay as they are.
constexpr const char* kCreditsTexts[]{
    QT_TRANSLATE_NOOP("Lumivane", "Version [VERSION] ([BUILD])"),
    QT_TRANSLATE_NOOP("Lumivane",
                      "The Moon in your tray: its phase, its age, and when it rises and sets where you are."),
    QT_TRANSLATE_NOOP("Lumivane", "Phases of the Moon"),
    QT_TRANSLATE_NOOP("Lumivane", "Rising and setting"),
    QT_TRANSLATE_NOOP("Lumivane", "Oliver Montenbruck and Thomas Pfleger,"),
    QT_TRANSLATE_NOOP("Lumivane", "Map of the Moon"),
    QT_TRANSLATE_NOOP("Lumivane", "NASA and the USGS Astrogeology programme,"),
    QT_TRANSLATE_NOOP("Lumivane", "in the public domain"),
    QT_TRANSLATE_NOOP("Lumivane", "Lumivane on the web"),
    QT_TRANSLATE_NOOP("Lumivane", "MIT licence, © The Lumivane developers"),
};

/// The credits while they are shown. They may outlive the panel that they were asked from.
QPointer<SimpleTextWindow> shownCredits;

/// The credits resource; null when it is missing or unreadable.
std::unique_ptr<QTextDocument> credits() {
    QString error;
    const auto rtf = RegularFile::read(Bundle::main().resourcePath() + QStringLiteral("/Credits.rtf"),
                                       kLargestCredits, &error);
    std::unique_ptr<QTextDocument> text = rtf ? documentFromRTF(*rtf, &error) : nullptr;
    if (!text)
        logLine(QStringLiteral("The credits can't be shown: %1.").arg(error));
    return text;
}

/// What stands for the credits when there are none.
std::unique_ptr<QTextDocument> plainCredits() {
    auto text = std::make_unique<QTextDocument>();
    text->setPlainText(QStringLiteral("Lumivane [VERSION] ([BUILD])"));
    return text;
}

} // namespace

void LumivaneWindowController::copyMoonToClipboard(QObject*) {
    if (!window_->isVisible())
        showNow(nullptr); // asked for from the icon's menu, where nothing but the present is seen
    ExtraStringUtilities::copyToClipboard(model_.clipboardText());
    if (!isWindoid())
        statusItem_->makeAsHiddenMenu();
}

void LumivaneWindowController::showAbout(QObject*) {
    if (shownCredits && shownCredits->window() && shownCredits->window()->isVisible()) {
        shownCredits->bringToFront();
        return;
    }
    using ExtraMutableAttributedStringUtilities::replaceAllAttributedStrings;
    const Bundle& bundle = Bundle::main();
    std::unique_ptr<QTextDocument> text = credits();
    if (!text)
        text = plainCredits();
    for (const char* words : kCreditsTexts)
        replaceAllAttributedStrings(*text, QString::fromUtf8(words), bundle.localizedString(words));
    replaceAllAttributedStrings(*text, QStringLiteral("[VERSION]"),
                                bundle.infoString(QStringLiteral("CFBundleShortVersionString")));
    replaceAllAttributedStrings(*text, QStringLiteral("[BUILD]"),
                                bundle.infoString(QStringLiteral("CFBundleVersion")));
    // Asked for from the icon's menu, they need no panel.
    shownCredits = window_->isVisible() && !window_->isMinimized()
                       ? SimpleTextWindow::simpleTextWindowFromAttributedString(*text, window_.get())
                       : SimpleTextWindow::freeTextWindowFromAttributedString(*text);
    if (shownCredits)
        shownCredits->window()->setWindowTitle(withoutMnemonic(bundle.localizedString("&About Lumivane")));
}
