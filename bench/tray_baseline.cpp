// SPDX-License-Identifier: MIT
// The least that a Qt program in the tray can be, with the UI loader linked: what Lumivane is measured
// beside.
#include <QApplication>
#include <QDebug>
#include <QMenu>
#include <QSystemTrayIcon>
#include <QUiLoader>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QPixmap picture(22, 22);
    picture.fill(Qt::gray);
    QMenu menu;
    menu.addAction(QStringLiteral("Layouts"), [] { qInfo() << QUiLoader().availableLayouts(); });
    menu.addAction(QStringLiteral("Quit"), &application, &QApplication::quit);
    QSystemTrayIcon icon(QIcon{picture});
    icon.setContextMenu(&menu);
    icon.show();
    return QApplication::exec();
}
