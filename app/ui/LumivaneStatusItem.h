// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <memory>
#include <optional>

class LumivaneWindow;
class LumivaneWindowController;
class PanelCommands;
class QuarterTeller;
class TrayIcon;
class QMenu;
class Shell;
class SwayPlacement;

/// Owns the program's one tray item, whose icon is the Moon, and the panel that a click on it opens. The
/// panel is shown as a drop-down under the icon (hidden-menu mode) or as a small utility window (windoid
/// mode).
class LumivaneStatusItem : public QObject {
    Q_OBJECT

public:
    /// `shell` outlives the item.
    explicit LumivaneStatusItem(Shell& shell);
    ~LumivaneStatusItem() override;

    /// Creates the tray item and the clock; the panel is loaded when it is first needed. On a desktop without
    /// a tray the panel opens as a utility window when none has come with the session, until one appears.
    void awakeFromNib();

    /// Sets the icon to the Moon of the present.
    void showNow();

    /// Puts a picture into the icon, in all the sizes that trays ask for; the program's own for an empty one.
    void setImage(const QImage& image);

    /// Hides the panel and prepares a fresh one for hidden-menu mode.
    void makeAsHiddenMenu();

    /// Hides the panel, prepares a fresh one for windoid mode and shows it.
    void makeAsWindoid();

    /// Whether a tray shows the icon, so that a hidden panel can be found again.
    bool isInTray() const;

    /// The icon's rectangle on the screen (y downwards); nothing when neither tray nor click told.
    std::optional<QRect> globalFrame() const;

    /// Where a panel of `size` goes: centred under `icon`, or above it when the icon lies in the lower half
    /// of its screen, and shifted so that it lies within `available`. Without a known icon: in the corner of
    /// the tray, which `screen` (the whole of it) tells by where its panel lies.
    static QRect panelFrame(const std::optional<QRect>& icon, const QSize& size, const QRect& screen,
                            const QRect& available);

public Q_SLOTS:
    /// Shows the panel, or hides it where it is seen. An alert that waits for its answer comes to the front
    /// instead.
    void statusItemClicked(QObject* sender = nullptr);
    void windowWillClose();

    /// Shows the panel if it is hidden or minimised, and brings it to the front; but first an alert.
    void showPanel();

Q_SIGNALS:
    /// Whether there is a tray became known, or changed; and two seconds after the start in any case, for
    /// what comes after the icon.
    void trayKnown();

private:
    LumivaneWindowController& controller();
    bool isPanelVisible() const;
    void loadController(std::uint32_t styleMask);
    void moonClockTimer();
    void trayChanged(bool shown);
    void leaveTray(bool show);
    void dropController();
    void keepUnderIcon(LumivaneWindow* window);
    void placeUnderIcon();
    void bringUpPanel();

    PanelCommands* commands_;
    QuarterTeller* quarterTeller_;
    std::unique_ptr<TrayIcon> statusItem_;
    std::unique_ptr<QMenu> menu_;
    std::unique_ptr<LumivaneWindowController> lumivaneWindow_;
    /// Places the panel under Sway; the panel owns it.
    QPointer<SwayPlacement> swayPlacement_;
    QTimer clock_;
    bool trayIsKnown_ = false;
    /// The panel is a utility window only because there is no tray.
    bool standsInForTray_ = false;
    /// A panel comes up as soon as its place is known.
    bool looksAround_ = false;
};
