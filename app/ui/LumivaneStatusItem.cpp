// SPDX-License-Identifier: MIT
#include "app/ui/LumivaneStatusItem.h"

#include "app/model/PanelModel.h"
#include "app/ui/LumivaneWindow.h"
#include "app/ui/LumivaneWindowController.h"
#include "app/ui/PanelCommands.h"
#include "app/ui/QuarterTeller.h"
#include "platform/bundle/Bundle.h"
#include "platform/locale/Clock.h"
#include "platform/log/Log.h"
#include "platform/tray/TrayIcon.h"
#include "platform/windows/LayerShell.h"
#include "platform/windows/Screen.h"
#include "platform/windows/SwayPlacement.h"
#include "platform/windows/WindowPlatform.h"
#include "shared/utilities/classes/ExtraApplicationUtilities.h"
#include "shared/utilities/classes/ExtraWindowUtilities.h"
#include "shared/utilities/classes/NSImageUtilities.h"

#include <QApplication>
#include <QFileInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QMenu>
#include <QPainter>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <chrono>
#include <set>
#include <utility>

namespace {
constexpr std::chrono::seconds kClockInterval{300};
constexpr std::chrono::seconds kSettling{1};
/// The rest of the start waits no longer for the tray.
constexpr std::chrono::seconds kTrayPatience{2};
constexpr int kLargestIcon = 64;

/// The program's installed icon; empty where that is missing. A look through the desktop's icon theme would
/// take longer than making the panel.
QImage installedIcon(int side) {
    const QString path =
        QStringLiteral("%1/../icons/hicolor/%2x%2/apps/%3.png")
            .arg(Bundle::main().resourcePath(), QString::number(side), Bundle::main().bundleIdentifier());
    QString error;
    const QImage image = NSImageUtilities::imageInFile(path, &error);
    if (image.isNull() && QFileInfo::exists(path))
        logLine(QStringLiteral("The icon %1 can't be read. %2").arg(path, error));
    return image;
}

/// In the sizes that window lists draw; every window keeps all that it is given.
QIcon windowIcon() {
    QIcon icon;
    for (const int side : {16, 32, 48, 64, 128}) {
        if (const QImage image = installedIcon(side); !image.isNull())
            icon.addPixmap(QPixmap::fromImage(image));
    }
    return icon;
}

/// What the tray shows when the phase's picture can't be had: nobody can click what they don't see.
QImage pictureWithoutPhase() {
    constexpr int kSide = 2 * kLargestIcon;
    QImage image = installedIcon(kSide);
    if (image.isNull()) {
        image = QImage(kSide, kSide, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::gray);
        painter.drawEllipse(image.rect().adjusted(2, 2, -2, -2));
    }
    return image;
}

/// Brings an alert that waits for its answer to the front; false when there is none. Under one, a panel would
/// look alive and be dead.
bool raiseAlert() {
    QWidget* const alert = QApplication::activeModalWidget();
    if (!alert || alert->windowModality() != Qt::ApplicationModal)
        return false;
    alert->raise();
    alert->activateWindow();
    return true;
}

/// Wayland tells of a minimised window only that nothing of it is to be drawn.
bool isMinimised(const QWidget* window) {
    return window->isMinimized() || (LayerShell::isUsed() && !window->windowHandle()->isExposed());
}
} // namespace

LumivaneStatusItem::LumivaneStatusItem(Shell& shell)
    : commands_(new PanelCommands(shell, this)), quarterTeller_(new QuarterTeller(this)) {
    connect(quarterTeller_, &QuarterTeller::activated, this, &LumivaneStatusItem::showPanel);
}

LumivaneStatusItem::~LumivaneStatusItem() = default;

void LumivaneStatusItem::awakeFromNib() {
    statusItem_ = std::make_unique<TrayIcon>(QStringLiteral("lumivane"), QStringLiteral("Lumivane"));
    menu_ = std::make_unique<QMenu>();
    menu_->addAction(Bundle::main().localizedString(QT_TRANSLATE_NOOP("Lumivane", "&Show Lumivane")), this,
                     &LumivaneStatusItem::showPanel);
    menu_->addSeparator();
    menu_->addActions(commands_->actions());
    connect(menu_.get(), &QMenu::aboutToShow, this, [this] {
        for (QAction* command : commands_->actions())
            commands_->validateMenuItem(command);
    });
    statusItem_->setMenu(menu_.get());
    connect(statusItem_.get(), &TrayIcon::clicked, this, [this] { statusItemClicked(statusItem_.get()); });
    connect(statusItem_.get(), &TrayIcon::shownChanged, this, &LumivaneStatusItem::trayChanged);
    showNow();
    clock_.setTimerType(Qt::VeryCoarseTimer);
    connect(&clock_, &QTimer::timeout, this, &LumivaneStatusItem::moonClockTimer);
    clock_.start(kClockInterval);
    QTimer::singleShot(kTrayPatience, this, [this] {
        Q_EMIT trayKnown();
        ExtraApplicationUtilities::returnFreedMemory();
    });
}

void LumivaneStatusItem::showNow() {
    const Clock::Hold oneMoment;
    const PanelModel present;
    setImage(LumivaneWindowController::moonImageFor(present.moment()));
    statusItem_->setToolTip(present.toolTip());
}

void LumivaneStatusItem::moonClockTimer() {
    quarterTeller_->tell();
    if (!isPanelVisible()) {
        showNow();
        ExtraApplicationUtilities::returnFreedMemory();
    }
}

void LumivaneStatusItem::setImage(const QImage& image) {
    const int side = TrayIcon::kHeight - 4;
    QList<QImage> images;
    // Averages of averages are the same averages: the large picture is gone through once, not for each size.
    const QImage small = NSImageUtilities::imageOfSize(image.isNull() ? pictureWithoutPhase() : image,
                                                       2 * QSize(kLargestIcon, kLargestIcon));
    for (const int size : std::set{side, 22, 24, 32, 2 * side, 44, 48, kLargestIcon})
        images.append(NSImageUtilities::imageOfSize(small, QSize(size, size)));
    statusItem_->setImages(images);
}

void LumivaneStatusItem::makeAsHiddenMenu() {
    dropController();
    // A click that had to make it first would be seen to wait. When the old panel is gone, so that this one
    // finds its memory free.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (!raiseAlert())
                controller();
        },
        Qt::QueuedConnection);
    QTimer::singleShot(kSettling, this, &ExtraApplicationUtilities::returnFreedMemory);
}

void LumivaneStatusItem::makeAsWindoid() {
    dropController();
    loadController(LumivaneWindow::kWindoidMask);
    statusItemClicked(nullptr);
}

void LumivaneStatusItem::dropController() {
    showNow(); // a new panel takes the icon to be the present's
    standsInForTray_ = false;
    if (!lumivaneWindow_)
        return;
    ExtraWindowUtilities::fadeHideSynchronous(lumivaneWindow_->window());
    commands_->setPanel(nullptr);
    // It may be one of its own controls that asks for the change.
    lumivaneWindow_.release()->deleteLater();
}

void LumivaneStatusItem::loadController(std::uint32_t styleMask) {
    if (QApplication::windowIcon().isNull())
        QApplication::setWindowIcon(windowIcon());
    lumivaneWindow_ = LumivaneWindowController::lumivaneWindowController(*commands_, styleMask);
    commands_->setPanel(lumivaneWindow_.get());
    lumivaneWindow_->setStatusItem(this);
    if (!lumivaneWindow_->isWindoid())
        keepUnderIcon(lumivaneWindow_->window());
}

LumivaneWindowController& LumivaneStatusItem::controller() {
    if (!lumivaneWindow_) {
        standsInForTray_ = trayIsKnown_ && !isInTray();
        loadController(standsInForTray_ ? LumivaneWindow::kWindoidMask : LumivaneWindow::kBorderlessMask);
    }
    return *lumivaneWindow_;
}

bool LumivaneStatusItem::isPanelVisible() const {
    return lumivaneWindow_ && lumivaneWindow_->window()->isVisible();
}

void LumivaneStatusItem::statusItemClicked(QObject*) {
    // A minimised window is not seen, so there is nothing to hide.
    if (!isPanelVisible() || isMinimised(lumivaneWindow_->window()))
        showPanel();
    else if (!raiseAlert())
        makeAsHiddenMenu();
    WindowPlatform::finishStartup();
}

void LumivaneStatusItem::showPanel() {
    if (raiseAlert() || looksAround_)
        return;
    looksAround_ = LayerShell::isUsed() && !controller().isWindoid() && !isPanelVisible();
    if (!looksAround_)
        return bringUpPanel();
    const auto icon = globalFrame();
    const auto told = icon ? std::optional(icon->center()) : std::nullopt;
    LayerShell::lookAround(
        this, told,
        [this](std::optional<QPoint> click) {
            looksAround_ = false;
            if (click)
                statusItem_->setLastClick(*click);
            if (!raiseAlert())
                bringUpPanel();
        },
        [this] { statusItemClicked(nullptr); });
}

void LumivaneStatusItem::bringUpPanel() {
    LumivaneWindow* window = controller().window();
    if (!window->isVisible()) {
        lumivaneWindow_->showNow(nullptr);
        if (!lumivaneWindow_->isWindoid())
            placeUnderIcon();
        window->show();
    } else if (isMinimised(window)) {
        if (!window->isMinimized())
            window->hide(); // so that it comes up anew
        window->showNormal();
    }
    ExtraApplicationUtilities::bringToFront();
    if (!QApplication::activeModalWidget()) { // else its dialog has the keys
        window->raise();
        window->activateWindow();
    }
    ExtraWindowUtilities::fadeShowSynchronous(window);
    WindowPlatform::finishStartup();
}

void LumivaneStatusItem::windowWillClose() {
    if (isInTray())
        makeAsHiddenMenu();
    else
        QApplication::quit(); // without a tray nothing would bring the window back
}

void LumivaneStatusItem::trayChanged(bool shown) {
    const bool isFirst = !std::exchange(trayIsKnown_, true);
    if (shown && standsInForTray_)
        makeAsHiddenMenu();
    else if (!shown && !(lumivaneWindow_ && lumivaneWindow_->isWindoid()))
        leaveTray(isFirst);
    if (isFirst)
        quarterTeller_->tell();
    Q_EMIT trayKnown();
}

/// Makes an open drop-down a utility window; where the program has just started, that is what it shows.
void LumivaneStatusItem::leaveTray(bool show) {
    const auto moment =
        isPanelVisible() ? std::optional(lumivaneWindow_->datePickerGMTSeconds()) : std::nullopt;
    dropController();
    if (show || moment)
        showPanel();
    if (moment)
        controller().moveTo(*moment);
}

bool LumivaneStatusItem::isInTray() const {
    return statusItem_->isShown();
}

std::optional<QRect> LumivaneStatusItem::globalFrame() const {
    return statusItem_->iconGeometry();
}

QRect LumivaneStatusItem::panelFrame(const std::optional<QRect>& icon, const QSize& size, const QRect& screen,
                                     const QRect& available) {
    QRect frame(QPoint(), size);
    if (icon) {
        const bool above = icon->center().y() > screen.center().y();
        frame.moveLeft(icon->center().x() - size.width() / 2);
        if (above)
            frame.moveBottom(icon->top() - 1);
        else
            frame.moveTop(icon->bottom() + 1);
    } else {
        const bool atTop = available.top() > screen.top();
        frame.moveTopRight(atTop ? available.topRight() : QPoint(available.right(), available.bottom()));
    }
    frame.moveRight(std::min(frame.right(), available.right()));
    frame.moveLeft(std::max(frame.left(), available.left()));
    frame.moveBottom(std::min(frame.bottom(), available.bottom()));
    frame.moveTop(std::max(frame.top(), available.top()));
    return frame;
}

void LumivaneStatusItem::keepUnderIcon(LumivaneWindow* window) {
    if (SwayPlacement::isThere() && !LayerShell::isUsed()) {
        swayPlacement_ = new SwayPlacement(window, [window](const SwayPlacement::Surroundings& at) {
            window->setAvailableHeight(static_cast<int>(at.available.height() / at.scale));
            // A pointer that is on no bar did not click the icon.
            const auto icon = at.available.contains(at.pointer)
                                  ? std::nullopt
                                  : std::optional(QRect(at.pointer, QSize(1, 1)));
            return panelFrame(icon, window->size() * at.scale, at.screen, at.available).topLeft();
        });
    }
    connect(window, &LumivaneWindow::heightChanged, this, [this, window] {
        if (window->isVisible())
            placeUnderIcon();
    });
}

void LumivaneStatusItem::placeUnderIcon() {
    const std::optional<QRect> icon = globalFrame();
    QScreen* screen = icon ? QGuiApplication::screenAt(icon->center()) : nullptr;
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    LumivaneWindow* window = lumivaneWindow_->window();
    QRect available = Screen::visibleFrame(screen);
    // A bar may take less of the screen than it covers; the icon is what puts the panel away.
    if (icon && icon->bottom() > available.bottom())
        available.setBottom(std::min(available.bottom(), icon->top() - 1));
    if (icon && icon->top() < available.top())
        available.setTop(std::max(available.top(), icon->bottom() + 1));
    if (!swayPlacement_) // which knows it better
        window->setAvailableHeight(available.height());
    const QRect frame = panelFrame(icon, window->size(), screen->geometry(), available);
    window->setGeometry(frame);
    if (LayerShell::isUsed())
        LayerShell::place(window, frame, icon.value_or(frame), screen);
    else if (swayPlacement_)
        swayPlacement_->place();
}
