// SPDX-License-Identifier: MIT
#include "app/ui/LumivaneWindow.h"

#include "platform/windows/LayerShell.h"
#include "platform/windows/Outline.h"
#include "platform/windows/Screen.h"
#include "platform/windows/WindowPlatform.h"
#include "shared/utilities/classes/ExtraWindowUtilities.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QKeyEvent>
#include <QLayout>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QWindow>

#include <algorithm>

namespace {

Qt::WindowFlags flagsOf(std::uint32_t mask) {
    if (mask == LumivaneWindow::kBorderlessMask)
        return Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint;
    return Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint |
           Qt::WindowSystemMenuHint;
}

} // namespace

LumivaneWindow::LumivaneWindow(std::uint32_t styleMask, QWidget* parent)
    : QWidget(parent, flagsOf(styleMask)), styleMask_(styleMask) {
    // A panel that is put away must not end the program.
    setAttribute(Qt::WA_QuitOnClose, false);
    if (styleMask == kBorderlessMask)
        new Outline(this);
}

void LumivaneWindow::setContent(QScrollArea* area, QWidget* content) {
    area_ = area;
    content_ = content;
    const QList<QWidget*> views = content->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    int width = minimumWidth();
    for (const QWidget* view : views)
        width = std::max(width, view->minimumSizeHint().width());
    int y = 0;
    for (QWidget* view : views) {
        const int height = view->sizeHint().height();
        view->setGeometry(0, y, width, height);
        y += height;
    }
    content->resize(width, y);
    content->installEventFilter(this);
    fitToContent();
}

bool LumivaneWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == content_ && event->type() == QEvent::Resize)
        fitToContent();
    else if (event->type() == QEvent::Show && qobject_cast<QDialog*>(watched))
        keepClearOf(static_cast<QDialog*>(watched));
    return QWidget::eventFilter(watched, event);
}

void LumivaneWindow::showEvent(QShowEvent* event) {
    fitToContent();
    QWidget::showEvent(event);
    if (styleMask_ != kBorderlessMask)
        return;
    WindowPlatform::leaveTaskList(this);
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (auto* dialog = qobject_cast<QDialog*>(window); dialog && dialog->isVisible())
            keepClearOf(dialog);
    }
    qApp->installEventFilter(this); // for dialogs yet to come
}

void LumivaneWindow::hideEvent(QHideEvent* event) {
    qApp->removeEventFilter(this);
    QWidget::hideEvent(event);
}

/// A drop-down stays above all other windows, so that what it covers can't be brought up.
void LumivaneWindow::keepClearOf(QDialog* dialog) const {
    if (dialog->parentWidget() && dialog->parentWidget()->window() == this)
        return; // a window's own dialogs are above it everywhere
    const QRect available = Screen::visibleFrame(screen());
    const QRect frame = dialog->frameGeometry();
    const bool isNew = !dialog->windowHandle() || !dialog->windowHandle()->isVisible();
    if (isNew) {
        LayerShell::placeOver(dialog, this);
        dialog->move(
            besidePanel(geometry(), frame.size(), available.center().y() - frame.height() / 2, available));
    } else if (frame.intersects(geometry())) {
        dialog->move(besidePanel(geometry(), frame.size(), frame.y(), available));
    }
}

QPoint LumivaneWindow::besidePanel(const QRect& panel, const QSize& size, int y, const QRect& available) {
    const int left = panel.left() - available.left();
    const int right = available.right() - panel.right();
    if (left >= right)
        return {available.left() + std::max(0, (left - size.width()) / 2), y};
    return {available.right() + 1 - size.width() - std::max(0, (right - size.width()) / 2), y};
}

void LumivaneWindow::fitToContent() {
    if (!content_)
        return;
    const QMargins margins = layout()->contentsMargins();
    const int around = layout()->sizeHint().height() - area_->sizeHint().height();
    const int wanted = around + content_->height();
    const int titleBar = static_cast<int>(ExtraWindowUtilities::titleBarHeight(this));
    const int available = std::min(Screen::visibleFrame(screen()).height(), availableHeight_) - titleBar;
    const bool scrolls = wanted > available;
    area_->setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    const int bar = scrolls ? area_->verticalScrollBar()->sizeHint().width() : 0;
    area_->setMinimumHeight(0);
    const int before = height();
    setFixedSize(content_->width() + bar + margins.left() + margins.right(), std::min(wanted, available));
    if (height() != before)
        Q_EMIT heightChanged();
}

void LumivaneWindow::setAvailableHeight(int height) {
    availableHeight_ = height;
    fitToContent();
}

void LumivaneWindow::closeEvent(QCloseEvent* event) {
    // Whoever owns the window takes it off the screen, faded, and makes another one.
    event->ignore();
    Q_EMIT windowWillClose();
}

void LumivaneWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        Q_EMIT cancelOperation();
    else
        QWidget::keyPressEvent(event);
}
