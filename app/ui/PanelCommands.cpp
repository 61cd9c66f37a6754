// SPDX-License-Identifier: MIT
#include "app/ui/PanelCommands.h"

#include "app/engine/PreferenceKeys.h"
#include "app/model/PanelModel.h"
#include "app/ui/LumivaneWindow.h"
#include "app/ui/LumivaneWindowController.h"
#include "app/ui/Shell.h"
#include "platform/bundle/Bundle.h"
#include "platform/files/RegularFile.h"
#include "platform/layouts/Mnemonics.h"
#include "platform/log/Log.h"
#include "platform/preferences/Preferences.h"
#include "platform/richtext/RTFReader.h"
#include "platform/windows/LayerShell.h"
#include "shared/utilities/classes/ExtraMutableAttributedStringUtilities.h"
#include "shared/utilities/classes/ExtraStringSystemUtilities.h"
#include "shared/utilities/classes/InternetConfig.h"
#include "shared/utilities/classes/SimpleTextWindow.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QKeySequence>
#include <QPointer>
#include <QTextDocument>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>

namespace {

constexpr qint64 kLargestCredits = 1 << 20;
constexpr const char* kRunAtLogin = "runAtLoginAction_";
constexpr const char* kTellQuarters = "tellQuartersAction_";
constexpr const char* kAbout = QT_TRANSLATE_NOOP("Lumivane", "&About Lumivane");

/// How often, and for how many rounds, a copy waits for the focus.
constexpr std::chrono::milliseconds kFocusRound{20};
constexpr int kFocusRounds = 50;
/// Compositors and clipboard managers have read a copy by then.
constexpr std::chrono::milliseconds kReading{300};

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

/// A window that is hardly seen, for the focus alone.
std::unique_ptr<QWidget> speck() {
    auto window = std::make_unique<QWidget>(nullptr, Qt::Tool | Qt::FramelessWindowHint);
    window->setAttribute(Qt::WA_QuitOnClose, false);
    window->setWindowTitle(QStringLiteral(" ")); // not the panel's, by which that one is found
    window->setFixedSize(1, 1);
    if (LayerShell::isUsed())
        LayerShell::takeInput(window.get());
    else
        window->show();
    return window;
}

/// Copies `text`, and calls `done` when other programs could read it. Wayland's compositors take a copy from
/// nobody but the window with the focus, which after a menu is `window` or, for want of one, a speck.
void copyWithFocus(QObject* owner, const QString& text, QWidget* window, const std::function<void()>& done) {
    if (!qEnvironmentVariableIsSet("WAYLAND_DISPLAY")) {
        ExtraStringUtilities::copyToClipboard(text);
        return done();
    }
    const std::shared_ptr<QWidget> ours(window && !LayerShell::isUsed() ? nullptr : speck());
    const QPointer<QWidget> focused(ours ? ours.get() : window);
    focused->activateWindow();
    auto* const wait = new QTimer(owner);
    wait->callOnTimeout([=, rounds = kFocusRounds]() mutable {
        if (--rounds > 0 && (QApplication::activePopupWidget() || (focused && !focused->isActiveWindow())))
            return;
        wait->deleteLater();
        ExtraStringUtilities::copyToClipboard(text);
        QTimer::singleShot(kReading, owner, [ours, text, done] {
            const QClipboard* const clipboard = QGuiApplication::clipboard();
            if (!clipboard->ownsClipboard() && clipboard->text() != text)
                logLine(QStringLiteral("The clipboard does not keep what was copied."));
            done();
        });
    });
    wait->start(kFocusRound);
}

} // namespace

PanelCommands::PanelCommands(Shell& shell, QObject* parent) : QObject(parent), shell_(shell) {
    const struct {
        const char* name;
        const char* text; ///< none for a separator
        QKeySequence key;
        void (PanelCommands::*choose)(QObject* sender);
    } commands[]{
        {"copyAction_", QT_TRANSLATE_NOOP("Lumivane", "&Copy Information to Clipboard"), Qt::CTRL | Qt::Key_C,
         &PanelCommands::copyMoonToClipboard},
        {},
        {kRunAtLogin, QT_TRANSLATE_NOOP("Lumivane", "&Open at Login"), {}, &PanelCommands::runAtLogin},
        {kTellQuarters,
         QT_TRANSLATE_NOOP("Lumivane", "&Tell Me the Quarters"),
         {},
         &PanelCommands::tellQuarters},
        {"checkForUpdateAction_",
         QT_TRANSLATE_NOOP("Lumivane", "Check for &Update..."),
         {},
         &PanelCommands::checkForUpdate},
        {},
        {"homePageAction_",
         QT_TRANSLATE_NOOP("Lumivane", "Lumivane &Home Page"),
         {},
         &PanelCommands::lumivaneHomePage},
        {"aboutAction_", kAbout, {}, &PanelCommands::showAbout},
        {},
        {"quitAction_", QT_TRANSLATE_NOOP("Lumivane", "&Quit Lumivane"), Qt::CTRL | Qt::Key_Q,
         &PanelCommands::terminate},
    };
    for (const auto& command : commands) {
        auto* action = new QAction(this);
        actions_.append(action);
        action->setSeparator(!command.text);
        if (!command.text)
            continue;
        action->setObjectName(QLatin1String(command.name));
        action->setText(Bundle::main().localizedString(command.text));
        action->setShortcut(command.key);
        action->setShortcutVisibleInContextMenu(true);
        action->setCheckable(command.name == kRunAtLogin || command.name == kTellQuarters);
        connect(action, &QAction::triggered, this,
                [this, action, choose = command.choose] { (this->*choose)(action); });
    }
}

void PanelCommands::setPanel(LumivaneWindowController* panel) {
    panel_ = panel;
}

LumivaneWindowController* PanelCommands::visiblePanel() const {
    return panel_ && panel_->window()->isVisible() ? panel_.get() : nullptr;
}

bool PanelCommands::validateMenuItem(QAction* item) {
    if (item->objectName() == QLatin1String(kRunAtLogin))
        item->setChecked(shell_.alreadySetToStartup(std::nullopt));
    else if (item->objectName() == QLatin1String(kTellQuarters))
        item->setChecked(Preferences::standard()->value(PreferenceKeys::tellsQuarters));
    return true;
}

void PanelCommands::openPage(const char* path) {
    InternetConfig::launchURL(
        QStringLiteral("https://%1%2")
            .arg(Bundle::main().infoString(QStringLiteral("LVWebHost")), QLatin1String(path)));
}

void PanelCommands::copyMoonToClipboard(QObject*) {
    LumivaneWindowController* const panel = visiblePanel();
    const QString text = (panel ? panel->model() : PanelModel()).clipboardText();
    copyWithFocus(this, text, panel ? panel->window() : nullptr, [panel = QPointer(panel)] {
        if (panel)
            panel->putDropDownAway();
    });
}

void PanelCommands::runAtLogin(QObject*) {
    shell_.toggleSetToStartup(std::nullopt);
}

void PanelCommands::tellQuarters(QObject*) {
    Preferences* const preferences = Preferences::standard();
    preferences->set(PreferenceKeys::tellsQuarters, !preferences->value(PreferenceKeys::tellsQuarters));
}

void PanelCommands::checkForUpdate(QObject* sender) {
    shell_.forwardCheckForUpdate(sender);
}

void PanelCommands::lumivaneHomePage(QObject*) {
    // An alert about the browser may stand for long; a click on the icon puts this panel away meanwhile.
    const QPointer<LumivaneWindowController> panel(visiblePanel());
    openPage("/products/lumivane/mac/index.htm");
    if (panel && panel == panel_)
        panel->putDropDownAway();
}

void PanelCommands::terminate(QObject*) {
    QApplication::quit();
}

void PanelCommands::showAbout(QObject*) {
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
    LumivaneWindow* const window = visiblePanel() ? visiblePanel()->window() : nullptr;
    shownCredits = window && !window->isMinimized()
                       ? SimpleTextWindow::simpleTextWindowFromAttributedString(*text, window)
                       : SimpleTextWindow::freeTextWindowFromAttributedString(*text);
    if (shownCredits)
        shownCredits->window()->setWindowTitle(withoutMnemonic(bundle.localizedString(kAbout)));
}
