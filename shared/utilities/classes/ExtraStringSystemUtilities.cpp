// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraStringSystemUtilities.h"

#include "shared/utilities/classes/ExtraApplicationUtilities.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <unistd.h>

QString ExtraStringUtilities::stringWithOSVersion() {
    return QString::number(ExtraApplicationUtilities::systemVersion(), 16);
}

std::optional<RunningCopies::Copy> ExtraStringUtilities::findProcess(const QString& bundleIdentifier) {
    for (const RunningCopies::Copy& copy : RunningCopies::others()) {
        if (copy.identifier.compare(bundleIdentifier, Qt::CaseInsensitive) == 0)
            return copy;
    }
    return std::nullopt;
}

void ExtraStringUtilities::copyToClipboard(const QString& text) {
    constexpr char kPasswordType[] = "PasswordPboardType";
    auto* types = new QMimeData;
    types->setText(text);
    types->setData(clipboardTag(), ".");
    types->setData(QLatin1String(kPasswordType), kPasswordType);
    QGuiApplication::clipboard()->setMimeData(types);
}

QString ExtraStringUtilities::clipboardTag() {
    return QStringLiteral("ClipboardTag%1").arg(getpid());
}
