// SPDX-License-Identifier: MIT
#include "app/shell/ApplicationDelegate.h"
#include "app/ui/LumivaneStatusItem.h"
#include "platform/appkit/NSAppearance.h"
#include "platform/appkit/WindowServer.h"
#include "platform/foundation/NSBundle.h"
#include "shared/utilities/classes/ExtraApplicationUtilities.h"

#include <QApplication>

int main(int argc, char** argv) {
    ExtraApplicationUtilities::keepHeapSmall();
    WindowServer::choosePlatform();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Lumivane"));
    QApplication::setDesktopFileName(NSBundle::mainBundle().bundleIdentifier());
    QApplication::setQuitOnLastWindowClosed(false);
    NSBundle::mainBundle().installTranslations();

    ApplicationDelegate delegate;
    LumivaneStatusItem statusItem;
    QObject::connect(&delegate, &ApplicationDelegate::raiseRequested, &statusItem,
                     &LumivaneStatusItem::showPanel);
    // The icon comes first, then what takes its time.
    QObject::connect(&statusItem, &LumivaneStatusItem::trayKnown, &delegate,
                     &ApplicationDelegate::awakeFromNib, Qt::SingleShotConnection);
    QObject::connect(
        &statusItem, &LumivaneStatusItem::trayKnown, &application,
        [&application] { NSAppearance::followDesktop(&application); }, Qt::SingleShotConnection);
    statusItem.awakeFromNib();
    return QApplication::exec();
}
