// SPDX-License-Identifier: MIT
#include "app/shell/ApplicationDelegate.h"
#include "app/ui/LumivaneStatusItem.h"
#include "platform/bundle/Bundle.h"
#include "platform/windows/Appearance.h"
#include "platform/windows/WindowPlatform.h"
#include "shared/utilities/classes/ExtraApplicationUtilities.h"

#include <QApplication>

int main(int argc, char** argv) {
    ExtraApplicationUtilities::keepHeapSmall();
    WindowPlatform::choosePlatform();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Lumivane"));
    QApplication::setDesktopFileName(Bundle::main().bundleIdentifier());
    QApplication::setQuitOnLastWindowClosed(false);
    Bundle::main().installTranslations();

    ApplicationDelegate delegate;
    LumivaneStatusItem statusItem(delegate);
    QObject::connect(&delegate, &ApplicationDelegate::raiseRequested, &statusItem,
                     &LumivaneStatusItem::showPanel);
    // The icon comes first, then what takes its time.
    QObject::connect(&statusItem, &LumivaneStatusItem::trayKnown, &delegate,
                     &ApplicationDelegate::awakeFromNib, Qt::SingleShotConnection);
    QObject::connect(
        &statusItem, &LumivaneStatusItem::trayKnown, &application,
        [&application] {
            WindowPlatform::finishStartup();
            Appearance::followDesktop(&application);
        },
        Qt::SingleShotConnection);
    statusItem.awakeFromNib();
    return QApplication::exec();
}
