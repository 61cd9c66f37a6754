// SPDX-License-Identifier: MIT
#include "platform/appkit/NSStatusItem.h"

#include <QCursor>
#include <QIcon>
#include <QMenu>
#include <QPixmap>
#include <QSystemTrayIcon>

class NSStatusItem::Private {
public:
    QSystemTrayIcon icon;
    std::optional<QPoint> lastClick;
};

NSStatusItem::NSStatusItem(const QString&, const QString& title, QObject* parent)
    : QObject(parent), d(std::make_unique<Private>()) {
    d->icon.setToolTip(title);
    connect(&d->icon, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason != QSystemTrayIcon::Trigger)
            return;
        d->lastClick = QCursor::pos();
        Q_EMIT clicked();
    });
}

NSStatusItem::~NSStatusItem() = default;

void NSStatusItem::setImages(const QList<QImage>& images) {
    QIcon icon;
    for (const QImage& image : images)
        icon.addPixmap(QPixmap::fromImage(image));
    d->icon.setIcon(icon);
    d->icon.show();
}

void NSStatusItem::setToolTip(const QString& text) {
    d->icon.setToolTip(text);
}

void NSStatusItem::setMenu(QMenu* menu) {
    d->icon.setContextMenu(menu);
}

bool NSStatusItem::isShown() const {
    return QSystemTrayIcon::isSystemTrayAvailable();
}

std::optional<QRect> NSStatusItem::iconGeometry() const {
    if (const QRect known = d->icon.geometry(); known.isValid())
        return known;
    if (d->lastClick)
        return QRect(*d->lastClick, QSize(1, 1));
    return std::nullopt;
}
