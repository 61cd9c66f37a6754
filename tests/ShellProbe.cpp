// SPDX-License-Identifier: MIT
// What the tests run as another copy of the program.
//   shell_probe copy [dialog]     announces itself, ends older copies, and tells what reaches it, first in a
//   dialog shell_probe ask CODE TICKS    sends 'aevt' CODE to a copy and prints the send's and the reply's
//   status
#include "platform/carbon/AppleEvents.h"
#include "platform/carbon/Processes.h"
#include "platform/foundation/NSBundle.h"
#include "shared/utilities/classes/ExtraAppleEventManagerUtilities.h"
#include "shared/utilities/classes/ExtraStringUtilities.h"

#include <QApplication>
#include <QMessageBox>

#include <cstdio>

namespace {

void say(const QString& line) {
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
}

void sayWhenTold(AEEventID eventID, const QString& word) {
    AEInstallEventHandler(kCoreEventClass, eventID, [word](const AppleEvent& event, AppleEvent*) {
        AEDesc list;
        AEDesc text;
        if (AEGetParamDesc(event, keyDirectObject, typeAEList, &list) == noErr)
            AEGetNthDesc(list, 1, typeUTF8Text, &text);
        say(word + u' ' + QString::fromUtf8(text.data) + u' ' + qEnvironmentVariable("XDG_ACTIVATION_TOKEN"));
        return noErr;
    });
}

int runCopy(bool inDialog) {
    sayWhenTold(kAEReopenApplication, QStringLiteral("raise"));
    sayWhenTold(kAEOpenDocuments, QStringLiteral("open"));
    announceProcess(NSBundle::mainBundle().bundleIdentifier());
    ExtraAppleEventManagerUtilities::quickSend(kAEQuitApplication, NSBundle::mainBundle().bundleIdentifier());
    say(QStringLiteral("ready"));
    if (inDialog) {
        QMessageBox().exec();
        say(AEIsQuitting() ? QStringLiteral("quitting") : QStringLiteral("dialog closed"));
    }
    return QApplication::exec();
}

int ask(const QByteArray& code, long ticks) {
    ProcessSerialNumber process;
    if (code.size() != 4 ||
        !ExtraStringUtilities::findProcess(NSBundle::mainBundle().bundleIdentifier(), &process))
        return 2;
    AEDesc target;
    AppleEvent event;
    AppleEvent reply;
    AECreateDesc(typeProcessSerialNumber, &process, sizeof process, &target);
    const char text[] = {code[0], code[1], code[2], code[3], '\0'};
    AECreateAppleEvent(kCoreEventClass, fourCharCode(text), target, kAutoGenerateReturnID, kAnyTransactionID,
                       &event);
    const OSStatus sent = AESendMessage(event, &reply, kAEWaitReply, ticks);
    std::int32_t answered = 0;
    AEGetParamPtr(reply, keyErrorNumber, typeSInt32, &answered, sizeof answered, nullptr);
    say(QStringLiteral("%1 %2").arg(sent).arg(answered));
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.value(1) == u"copy")
        return runCopy(arguments.value(2) == u"dialog");
    if (arguments.value(1) == u"ask")
        return ask(arguments.value(2).toLatin1(), arguments.value(3).toLong());
    return 2;
}
