// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <cstdint>

class QDialog;
class QScrollArea;

/// The panel's window: borderless above other windows in hidden-menu mode, a small titled utility window in
/// windoid mode. Its height follows its content's, as far as the screen allows; beyond that the content
/// scrolls.
class LumivaneWindow : public QWidget {
    Q_OBJECT

public:
    static constexpr std::uint32_t kBorderlessMask = 0;
    static constexpr std::uint32_t kWindoidMask = 1 + 2 + 16; ///< titled, closable, utility

    /// A window in one of the two styles.
    explicit LumivaneWindow(std::uint32_t styleMask, QWidget* parent = nullptr);

    std::uint32_t styleMask() const { return styleMask_; }

    /// Stacks the views of `content` from top to bottom, each at the height of its size hint, and lets the
    /// window follow the content's size from then on. `area` shows the content.
    void setContent(QScrollArea* area, QWidget* content);

    /// Keeps the window to a screen's height that Qt doesn't know of.
    void setAvailableHeight(int height);

    /// Where a dialog of `size` goes that a panel at `panel` must not cover: into the middle of the wider
    /// part of `available` beside it, as high as `y` has it. One that is wider than that part keeps to its
    /// far edge.
    static QPoint besidePanel(const QRect& panel, const QSize& size, int y, const QRect& available);

Q_SIGNALS:
    /// The window follows its content's height.
    void heightChanged();

    /// The user closed the window by its close box.
    void windowWillClose();

    /// Escape was pressed.
    void cancelOperation();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void fitToContent();
    void keepClearOf(QDialog* dialog) const;

    std::uint32_t styleMask_;
    QScrollArea* area_ = nullptr;
    QWidget* content_ = nullptr;
    int availableHeight_ = QWIDGETSIZE_MAX;
};
