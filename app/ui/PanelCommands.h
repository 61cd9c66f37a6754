// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

class LumivaneWindowController;
class QAction;
class Shell;

/// The commands of the gear menu, which the icon's menu has too. They need no panel: where none is seen they
/// are about the present.
class PanelCommands : public QObject {
    Q_OBJECT

public:
    /// `shell` outlives the commands.
    explicit PanelCommands(Shell& shell, QObject* parent = nullptr);

    /// The commands in their menus' order, separators among them. They stay this object's.
    const QList<QAction*>& actions() const { return actions_; }

    /// The panel that they are about, when it is seen; null where there is none.
    void setPanel(LumivaneWindowController* panel);

    /// Brings a command's check mark up to date. Every command may be used.
    bool validateMenuItem(QAction* item);

    /// Opens a page of the product's web site; `path` begins with a slash.
    static void openPage(const char* path);

    /// Puts what the panel shows, or the present, on the clipboard; closes a drop-down.
    void copyMoonToClipboard(QObject* sender);

    /// Adds the program to the login items, or takes it from them.
    void runAtLogin(QObject* sender);

    /// Switches the notifications of the quarters on or off.
    void tellQuarters(QObject* sender);

    void checkForUpdate(QObject* sender);

    /// Opens the product's home page; closes a drop-down.
    void lumivaneHomePage(QObject* sender);

    /// Shows the credits: as the panel's sheet, or as a window of their own.
    void showAbout(QObject* sender);

    void terminate(QObject* sender);

private:
    LumivaneWindowController* visiblePanel() const;

    Shell& shell_;
    QPointer<LumivaneWindowController> panel_;
    QList<QAction*> actions_;
};
