// SPDX-License-Identifier: MIT
#include "platform/tray/TrayIcon.h"

#include "platform/log/Log.h"
#include "platform/tray/StatusNotifierItem.h"
#include "platform/tray/XEmbedTray.h"

#include <QDBusConnection>
#include <QIcon>
#include <QMenu>
#include <QPixmap>
#include <QPointer>
#include <QSystemTrayIcon>
#include <QTimer>

#include <chrono>
#include <utility>

namespace {

/// A panel with both kinds of tray has brought up the second by then.
constexpr std::chrono::milliseconds kStartPatience{1000};
/// A panel that crashed or was restarted is back by then.
constexpr std::chrono::milliseconds kRestartPatience{3000};

} // namespace

class TrayIcon::Private {
public:
    Private(TrayIcon* item, const QString& identifier, const QString& title, const QDBusConnection& bus);

    void hostChanged();
    void xembedTrayChanged();
    void waitForHost();
    void settleWithoutHost();
    void dock();
    void setShown(bool now);
    QIcon icon() const;

    TrayIcon* const q;
    StatusNotifierItem notifier;
    /// Watched from the first time on that no host is there.
    std::unique_ptr<XEmbedTray> xembedTray;
    /// Lives only where there is an XEmbed tray and no host, so that Qt finds no host for an item of its own.
    std::unique_ptr<QSystemTrayIcon> xembedIcon;
    /// Runs while a host may yet come.
    QTimer patience;
    QList<QImage> images;
    QString toolTip;
    QPointer<QMenu> menu;
    bool started = false;
    std::optional<bool> shown;
};

TrayIcon::Private::Private(TrayIcon* item, const QString& identifier, const QString& title,
                           const QDBusConnection& bus)
    : q(item), notifier(identifier, title, bus), toolTip(title) {
    patience.setSingleShot(true);
    connect(&patience, &QTimer::timeout, q, [this] { settleWithoutHost(); });
    connect(&notifier, &StatusNotifierItem::stateChanged, q, [this] { hostChanged(); });
    // Queued, so that the host has its answer before the click is worked on.
    connect(&notifier, &StatusNotifierItem::clicked, q, &TrayIcon::clicked, Qt::QueuedConnection);
}

void TrayIcon::Private::hostChanged() {
    switch (notifier.state()) {
    case StatusNotifierItem::State::Unknown:
        break;
    case StatusNotifierItem::State::NoHost:
        if (!xembedTray) {
            xembedTray = std::make_unique<XEmbedTray>();
            connect(xembedTray.get(), &XEmbedTray::changed, q, [this] { xembedTrayChanged(); });
        }
        // At the start, an XEmbed tray that is up already has no host to wait for.
        if (!shown && xembedTray->isThere())
            settleWithoutHost();
        else
            waitForHost();
        break;
    case StatusNotifierItem::State::Registering:
        patience.stop();
        xembedIcon.reset();
        break;
    case StatusNotifierItem::State::Shown:
        setShown(true);
        break;
    }
}

void TrayIcon::Private::xembedTrayChanged() {
    if (notifier.state() != StatusNotifierItem::State::NoHost)
        return;
    xembedIcon.reset();
    waitForHost();
}

void TrayIcon::Private::waitForHost() {
    patience.start(shown.value_or(false) ? kRestartPatience : kStartPatience);
}

void TrayIcon::Private::settleWithoutHost() {
    if (xembedTray->isThere() && !xembedIcon)
        dock();
    setShown(xembedIcon && xembedIcon->geometry().isValid());
}

void TrayIcon::Private::dock() {
    xembedIcon = std::make_unique<QSystemTrayIcon>();
    connect(xembedIcon.get(), &QSystemTrayIcon::activated, q,
            [this](QSystemTrayIcon::ActivationReason reason) {
                // A double click's second half is a click as well. Queued, because what a click opens may run
                // an event loop of its own, in which this icon may have to go.
                if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick)
                    QMetaObject::invokeMethod(q, &TrayIcon::clicked, Qt::QueuedConnection);
            });
    xembedIcon->setIcon(icon());
    xembedIcon->setToolTip(toolTip);
    xembedIcon->setContextMenu(menu);
    xembedIcon->show();
    if (!xembedIcon->geometry().isValid())
        logLine(QStringLiteral("The XEmbed tray does not take the icon."));
}

void TrayIcon::Private::setShown(bool now) {
    if (shown == now)
        return;
    shown = now;
    Q_EMIT q->shownChanged(now);
}

QIcon TrayIcon::Private::icon() const {
    QIcon icon;
    for (const QImage& image : images)
        icon.addPixmap(QPixmap::fromImage(image));
    return icon;
}

TrayIcon::TrayIcon(const QString& identifier, const QString& title, QObject* parent)
    : TrayIcon(identifier, title, QDBusConnection::sessionBus(), parent) {
}

TrayIcon::TrayIcon(const QString& identifier, const QString& title, const QDBusConnection& bus,
                   QObject* parent)
    : QObject(parent), d(std::make_unique<Private>(this, identifier, title, bus)) {
}

TrayIcon::~TrayIcon() = default;

void TrayIcon::setImages(const QList<QImage>& images) {
    QList<QImage> drawable = images;
    drawable.removeIf([](const QImage& image) { return image.isNull(); });
    if (drawable.isEmpty()) {
        logLine(QStringLiteral("No picture for the tray icon; it stays as it is."));
    } else if (drawable != d->images) {
        d->images = drawable;
        d->notifier.setImages(drawable);
        if (d->xembedIcon)
            d->xembedIcon->setIcon(d->icon());
    }
    // With or without a picture: others wait to hear of the tray.
    if (!std::exchange(d->started, true))
        d->notifier.start();
}

void TrayIcon::setToolTip(const QString& text) {
    if (text == d->toolTip)
        return;
    d->toolTip = text;
    d->notifier.setToolTip(text);
    if (d->xembedIcon)
        d->xembedIcon->setToolTip(text);
}

void TrayIcon::setMenu(QMenu* menu) {
    d->menu = menu;
    d->notifier.setMenu(menu);
    if (d->xembedIcon)
        d->xembedIcon->setContextMenu(menu);
}

bool TrayIcon::isShown() const {
    return d->shown.value_or(false);
}

std::optional<QRect> TrayIcon::iconGeometry() const {
    if (d->xembedIcon)
        return d->xembedIcon->geometry();
    if (const auto click = d->notifier.lastClick())
        return QRect(*click, QSize(1, 1));
    return std::nullopt;
}
