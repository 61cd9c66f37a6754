// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/DialogOrSheetController.h"

#include "platform/layouts/Layout.h"
#include "platform/log/Log.h"
#include "platform/windows/LayerShell.h"

#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

DialogOrSheetController::~DialogOrSheetController() {
    if (window_)
        window_->disconnect(this);
    delete window_;
}

bool DialogOrSheetController::loadWindow(const QString& nibName) {
    QString error;
    std::unique_ptr<QWidget> root = Layout::load(nibName, this, &error);
    window_ = qobject_cast<QDialog*>(root.get());
    if (window_) {
        (void)root.release();
        if (awakeFromNib(&error)) {
            window_->installEventFilter(this);
            connect(window_, &QObject::destroyed, this, &QObject::deleteLater);
            return true;
        }
    } else if (root) {
        error = QStringLiteral("The layout is not one of a dialog.");
    }
    logLine(QStringLiteral("The dialog %1 can't be opened. %2").arg(nibName, error));
    return false;
}

QPushButton* DialogOrSheetController::okButton(QString* error) {
    QDialogButtonBox* buttons = nullptr;
    QPushButton* ok = nullptr;
    QPushButton* cancel = nullptr;
    if (!Layout::connectOutlet(window(), "buttons_", buttons, error) ||
        !Layout::connectOutlet(window(), "okButton_", ok, error) ||
        !Layout::connectOutlet(window(), "cancelButton_", cancel, error))
        return nullptr;
    // The box puts the two in the order that the desktop is used to.
    buttons->addButton(ok, QDialogButtonBox::AcceptRole);
    buttons->addButton(cancel, QDialogButtonBox::RejectRole);
    return ok;
}

void DialogOrSheetController::showOnWindow(QWidget* window) {
    if (window) {
        window_->setParent(window->window(), Qt::Sheet);
        window_->setWindowModality(Qt::WindowModal);
        window_->adjustSize();
        placeOver(window->window());
        window->window()->installEventFilter(this);
        bringToFront();
        return;
    }
    window_->setWindowModality(Qt::ApplicationModal);
    QEventLoop loop;
    modalLoop_ = &loop; // cppcheck-suppress danglingLifetime ; a QPointer, which forgets it in time
    bringToFront();
    loop.exec(QEventLoop::DialogExec);
    // The loop also ends, with the dialog unanswered, when the program quits.
    if (window_)
        window_->hide();
    deleteLater();
}

void DialogOrSheetController::showByItself() {
    window_->setWindowModality(Qt::NonModal);
    bringToFront();
}

void DialogOrSheetController::bringToFront() {
    if (!window_)
        return;
    for (QWidget* window : {window_->parentWidget(), static_cast<QWidget*>(window_)}) {
        if (window && window->isMinimized())
            window->showNormal();
    }
    window_->show();
    window_->raise();
    window_->activateWindow();
}

void DialogOrSheetController::closeWindow() {
    if (window_)
        window_->hide();
    if (modalLoop_)
        // Deleting waits for `showOnWindow` to return from the loop.
        modalLoop_->quit();
    else
        deleteLater();
}

void DialogOrSheetController::placeOver(const QWidget* window) {
    const QRect below = window->geometry();
    const QRect screen = window->screen()->availableGeometry();
    const int x = below.center().x() - window_->width() / 2;
    window_->move(
        std::clamp(x, screen.left(), std::max(screen.left(), screen.right() - window_->width())),
        std::clamp(below.top(), screen.top(), std::max(screen.top(), screen.bottom() - window_->height())));
    LayerShell::placeOver(window_, window);
}

bool DialogOrSheetController::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    const bool moves = type == QEvent::Move || type == QEvent::Resize;
    const bool dismisses =
        type == QEvent::Close ||
        (type == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel));
    // Other events may be those of a dialog that is half gone, and no more to be compared with.
    if (moves && window_ && watched != window_)
        placeOver(static_cast<QWidget*>(watched));
    if (!dismisses || watched != window_)
        return QObject::eventFilter(watched, event);
    // QDialog would hide before anybody is told; an answer is given while the dialog still stands.
    dismissed();
    event->setAccepted(true);
    return true;
}
