// SPDX-License-Identifier: MIT
#include "platform/tray/TrayIcon.h"

#include "platform/log/Log.h"
#include "platform/tray/StatusNotifierItem.h"
#include "platform/tray/XEmbedTray.h"

#include <QDBusConnection>
#include <QIcon>
#include <QMenu>
#include <QPixmap>
#include <QSystemTrayIcon>

#include <chrono>

using std::chrono::milliseconds;

namespace {

/// A session's tray is up by then.
constexpr milliseconds kLoginPatience{10000};
/// A watcher that has not said by then whether it has a host is stopped or hangs.
constexpr milliseconds kAnswerPatience{2000};
/// A panel with both kinds of tray has brought up the second by then.
constexpr milliseconds kPanelPatience{1000};
/// A panel that crashed or was restarted is back by then.
constexpr milliseconds kRestartPatience{3000};

} // namespace

TrayIcon::TrayIcon(const QString& identifier, const QString& title, QObject* parent)
    : TrayIcon(identifier, title,
               QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("tray")), parent) {
}

TrayIcon::TrayIcon(const QString& identifier, const QString& title, const QDBusConnection& bus,
                   QObject* parent)
    : QObject(parent), notifier_(std::make_unique<StatusNotifierItem>(identifier, title, bus)),
      toolTip_(title) {
    patience_.setSingleShot(true);
    connect(&patience_, &QTimer::timeout, this, &TrayIcon::settleWithoutHost);
    connect(notifier_.get(), &StatusNotifierItem::stateChanged, this, &TrayIcon::hostChanged);
    // Queued, so that the host has its answer before the click is worked on.
    connect(notifier_.get(), &StatusNotifierItem::clicked, this, &TrayIcon::clicked, Qt::QueuedConnection);
}

TrayIcon::~TrayIcon() = default;

void TrayIcon::hostChanged() {
    using State = StatusNotifierItem::State;
    if (notifier_->state() == State::Shown) {
        patience_.stop();
        xembedIcon_.reset();
        setShown(true);
    } else if (!isShown() && notifier_->state() == State::NoHost && hasXEmbedTray()) {
        settleWithoutHost(); // a tray that is up already has no host to wait for
    } else if (shown_ != false) {
        patience_.start(shown_ ? kRestartPatience : kLoginPatience);
    }
}

void TrayIcon::xembedTrayChanged() {
    if (notifier_->state() == StatusNotifierItem::State::Shown)
        return;
    xembedIcon_.reset();
    patience_.start(isShown() ? kRestartPatience : kPanelPatience);
}

bool TrayIcon::hasXEmbedTray() {
    if (!xembedTray_) {
        xembedTray_ = std::make_unique<XEmbedTray>();
        connect(xembedTray_.get(), &XEmbedTray::changed, this, &TrayIcon::xembedTrayChanged);
    }
    return xembedTray_->isThere();
}

void TrayIcon::settleWithoutHost() {
    // Of a watcher that does not answer Qt would ask the same, and wait.
    if (notifier_->state() == StatusNotifierItem::State::NoHost && hasXEmbedTray() && !xembedIcon_)
        dock();
    setShown(xembedIcon_ && xembedIcon_->geometry().isValid());
}

void TrayIcon::dock() {
    xembedIcon_ = std::make_unique<QSystemTrayIcon>();
    connect(xembedIcon_.get(), &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                // A double click's second half is a click as well. Queued, because what a click opens may run
                // an event loop of its own, in which this icon may have to go.
                if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick)
                    QMetaObject::invokeMethod(this, &TrayIcon::clicked, Qt::QueuedConnection);
            });
    xembedIcon_->setIcon(icon());
    xembedIcon_->setToolTip(toolTip_);
    xembedIcon_->setContextMenu(menu_);
    xembedIcon_->show();
    if (!xembedIcon_->geometry().isValid())
        logLine(QStringLiteral("The XEmbed tray does not take the icon."));
}

void TrayIcon::setShown(bool now) {
    if (shown_ == now)
        return;
    shown_ = now;
    Q_EMIT shownChanged(now);
}

QIcon TrayIcon::icon() const {
    QIcon icon;
    for (const QImage& image : images_)
        icon.addPixmap(QPixmap::fromImage(image));
    return icon;
}

void TrayIcon::setImages(const QList<QImage>& images) {
    QList<QImage> drawable = images;
    drawable.removeIf([](const QImage& image) { return image.isNull(); });
    if (drawable.isEmpty()) {
        logLine(QStringLiteral("No picture for the tray icon; it stays as it is."));
    } else if (drawable != images_) {
        images_ = drawable;
        notifier_->setImages(drawable);
        if (xembedIcon_)
            xembedIcon_->setIcon(icon());
    }
    // With or without a picture: others wait to hear of the tray.
    if (!shown_ && !patience_.isActive()) {
        patience_.start(kAnswerPatience);
        notifier_->start();
    }
}

void TrayIcon::setToolTip(const QString& text) {
    if (text == toolTip_)
        return;
    toolTip_ = text;
    notifier_->setToolTip(text);
    if (xembedIcon_)
        xembedIcon_->setToolTip(text);
}

void TrayIcon::setMenu(QMenu* menu) {
    menu_ = menu;
    notifier_->setMenu(menu);
    if (xembedIcon_)
        xembedIcon_->setContextMenu(menu);
}

std::optional<QRect> TrayIcon::iconGeometry() const {
    if (xembedIcon_)
        return xembedIcon_->geometry();
    const auto click = notifier_->lastClick();
    if (!click)
        return std::nullopt;
    QRect around(0, 0, kHeight, kHeight);
    around.moveCenter(*click);
    return around;
}

void TrayIcon::setLastClick(QPoint place) {
    notifier_->setLastClick(place);
}
