// SPDX-License-Identifier: MIT
// What the tests run as another copy of the program: `shell_probe [warned]` does what every start does and
// tells what reaches it. Without the word it shows the warning of its folder first.
#include "app/engine/PreferenceKeys.h"
#include "app/shell/ApplicationDelegate.h"
#include "platform/bundle/Bundle.h"
#include "platform/preferences/Preferences.h"

#include <QApplication>
#include <QTimer>

#include <cstdio>

namespace {

void say(const QString& line) {
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    ApplicationDelegate delegate;
    QObject::connect(&delegate, &ApplicationDelegate::raiseRequested, &application,
                     [] { say(QStringLiteral("raise ") + qEnvironmentVariable("XDG_ACTIVATION_TOKEN")); });
    const bool isWarned = QApplication::arguments().value(1) == u"warned";
    if (isWarned)
        Preferences::standard()->set(PreferenceKeys::warnedPath, Bundle::main().bundlePath());
    else
        QTimer::singleShot(0, [] { say(QStringLiteral("warning")); }); // in the warning's event loop
    delegate.installNewVersion();
    if (isWarned)
        say(QStringLiteral("ready"));
    else
        say(delegate.alreadySetToStartup(std::nullopt) ? QStringLiteral("set") : QStringLiteral("not set"));
    return QApplication::exec();
}
