// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QEventLoop>
#include <QObject>
#include <QPointer>

class QPushButton;

/// A dialog that is shown either as a sheet over a window, which it blocks, or by itself, blocking the whole
/// program or nothing. It owns itself from its showing to `closeWindow`: whoever creates one does not delete
/// it.
class DialogOrSheetController : public QObject {
    Q_OBJECT

public:
    ~DialogOrSheetController() override;

    /// With a window: shows the dialog over it and returns at once; the dialog stays there when that window
    /// moves or folds, and when it is deleted the dialog goes with it, unanswered. With null: shows it in the
    /// middle of the screen and returns when it was closed.
    void showOnWindow(QWidget* window);

    /// Shows the dialog as a window of its own that blocks nothing, and returns at once.
    void showByItself();

    /// Brings the dialog, and a minimised window that it stands over, to the front.
    void bringToFront();

    /// Hides the dialog and gives it up: it is deleted by the event loop.
    void closeWindow();

    /// Null before the layout was loaded.
    QDialog* window() const { return window_; }

protected:
    DialogOrSheetController() = default;

    /// Loads the layout of that name; false, with a log line, when it can't be loaded.
    bool loadWindow(const QString& nibName);

    /// Connects the outlets and fills the loaded layout in; false, with a reason in `error`, when one is
    /// missing.
    virtual bool awakeFromNib(QString* error) = 0;

    /// The layout's `okButton_`, placed with `cancelButton_` in `buttons_`; null, with a reason in `error`,
    /// when one is missing.
    QPushButton* okButton(QString* error);

    /// The Escape key or the window manager's close button, in place of a button of the dialog's own.
    virtual void dismissed() = 0;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void placeOver(const QWidget* window);

    QPointer<QDialog> window_;
    QPointer<QEventLoop> modalLoop_;
};
