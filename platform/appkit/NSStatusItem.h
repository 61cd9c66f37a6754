// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QObject>
#include <QPoint>
#include <QRect>

#include <memory>
#include <optional>

class QMenu;

/// Stands for an item of the menu bar's status area. Backed by a tray icon: StatusNotifierItem over D-Bus,
/// XEmbed where there is no watcher for those. Which of the two shows it may change while the program runs.
class NSStatusItem : public QObject {
    Q_OBJECT

public:
    /// `identifier` names the item to trays that remember items ("lumivane"), `title` to people.
    NSStatusItem(const QString& identifier, const QString& title, QObject* parent = nullptr);
    ~NSStatusItem() override;

    /// The icon in several sizes; the tray takes what fits it best.
    void setImages(const QList<QImage>& images);

    /// Shown while the pointer rests on the icon.
    void setToolTip(const QString& text);

    /// What a right click opens. The menu stays the caller's.
    void setMenu(QMenu* menu);

    /// Whether a tray shows the item at present.
    bool isShown() const;

    /// The icon's rectangle on the screen (Qt's coordinates, y downwards) as far as the tray or the last
    /// click told; nothing when neither did.
    std::optional<QRect> iconGeometry() const;

Q_SIGNALS:
    /// A left click, or the tray's keyboard way of it.
    void clicked();

    /// A tray began to show the item, or the last one stopped.
    void shownChanged(bool shown);

private:
    class Private;
    std::unique_ptr<Private> d;
};
