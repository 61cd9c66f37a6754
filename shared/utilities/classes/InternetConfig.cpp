// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/InternetConfig.h"

#include "platform/browser/DefaultApplications.h"
#include "platform/bundle/Bundle.h"
#include "platform/log/Log.h"
#include "shared/utilities/classes/ExtraContainerUtilities.h"
#include "shared/utilities/classes/values/ExtraStringUtilities.h"
#include "shared/utilities/classes/values/ExtraURLUtilities.h"

#include <QApplication>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>

#include <algorithm>

using ExtraContainerUtilities::isEmpty;
using ExtraURLUtilities::urlWithURLString;

namespace {

// The log's lines are known by these numbers, wherever the statements move to.
constexpr int kPreferenceLine = 78;
constexpr int kLaunchLine = 236;

constexpr int kNoneNamed = -666;

const QString kWebScheme = QStringLiteral("http");

/// Plain text throughout: an address is data, even where it looks like markup.
void runAlert(const QString& message, const QString& details) {
    // A parent keeps the alert in front of a panel that stays on top; the panel may be gone before it is.
    const QPointer<QMessageBox> alert(new QMessageBox(QMessageBox::Warning, QString(), message,
                                                      QMessageBox::Ok, QApplication::activeWindow()));
    alert->setTextFormat(Qt::PlainText);
    alert->setInformativeText(details);
    const QList<QLabel*> labels = alert->findChildren<QLabel*>();
    for (QLabel* label : labels)
        label->setTextFormat(Qt::PlainText);
    alert->setWindowModality(Qt::ApplicationModal);
    alert->show();
    alert->raise();
    alert->activateWindow();
    alert->exec();
    delete alert;
}

/// The numbers that these outcomes have always had in the log.
int statusOf(DefaultApplications::Outcome outcome) {
    using enum DefaultApplications::Outcome;
    switch (outcome) {
    case Opened:
        return 0;
    case NotAnAddress:
        return -50;
    case FileNotFound:
        return -43;
    case NotExecutable:
        return -10811;
    case NoApplication:
        return -10814;
    case StartFailed:
        break;
    }
    return -10810;
}

bool isWebPage(const QString& address) {
    static const QStringList extensions{QStringLiteral("html"), QStringLiteral("htm"),
                                        QStringLiteral("shtml")};
    return extensions.contains(QFileInfo(address).suffix().toLower());
}

/// A "file:" address has its scheme already, also where the browser for another scheme will open it.
QString withScheme(const QString& address) {
    const QString scheme = urlWithURLString(address).scheme();
    const bool complete =
        !isEmpty(scheme) && address.startsWith(scheme + QLatin1Char(':'), Qt::CaseInsensitive);
    return complete || ExtraStringUtilities::contains(address, QStringLiteral("://"))
               ? address
               : kWebScheme + QStringLiteral("://") + address;
}

QString pathOf(const QString& browser) {
    return urlWithURLString(browser).toLocalFile();
}

void openWith(const QString& application, const QString& address, const QString& browser) {
    const int status =
        statusOf(DefaultApplications::open(urlWithURLString(withScheme(address)), application));
    if (status == 0)
        return;
    logLine(QStringLiteral("InternetConfig %1").arg(kLaunchLine));
    throw InternetConfigException(QStringLiteral("LSOpenFromURLSpec faiure.  Returned (%1) with URL <%2> "
                                                 "Browser <%3>.  -43 means 'File Not Found'.")
                                      .arg(QString::number(status), address, browser));
}

} // namespace

std::function<void(const QString&, const QString&)> InternetConfig::showAlert = runAlert;

InternetConfigException::InternetConfigException(const QString& reason)
    : Exception(QStringLiteral("InternetConfigException"), reason) {
}

void InternetConfig::launchURL(const QString& address) {
    try {
        InternetConfig().launchURL(address, QString());
    } catch (const std::exception& failure) {
        logLine(QString::fromUtf8(failure.what()));
    }
}

QString InternetConfig::defaultBrowserForScheme(const QString& scheme) {
    const auto browser = DefaultApplications::forScheme(scheme.toLower());
    if (!browser) {
        logLine(QStringLiteral("-[InternetConfig defaultBrowserForScheme:] %1 error=%2")
                    .arg(QString::number(kPreferenceLine), QString::number(kNoneNamed)));
        throw InternetConfigException(
            QStringLiteral("ICGetPref faiure.  Can't find default browser.  Returned %1").arg(kNoneNamed));
    }
    return isEmpty(*browser) ? QString() : QUrl::fromLocalFile(*browser).toString(QUrl::FullyEncoded);
}

void InternetConfig::launchURL(const QString& urlString, const QString& browser) {
    const QString address = urlString.trimmed();
    if (isEmpty(address))
        return;
    const QUrl url = urlWithURLString(address);
    QString scheme = isEmpty(url.scheme()) ? kWebScheme : url.scheme();
    QString chosen = browser;
    bool bypassesBrowser = false;
    if (isEmpty(chosen)) {
        bypassesBrowser = url.isLocalFile() && !isWebPage(address);
        if (url.isLocalFile() && !bypassesBrowser)
            scheme = kWebScheme;
        chosen = defaultBrowserForScheme(scheme);
        if (isEmpty(chosen)) {
            if (DefaultApplications::openTheSystemsWay(address) != DefaultApplications::Outcome::Opened)
                logLine(QStringLiteral("Can't find default browser from LaunchServices or InternetConfig."));
            return;
        }
    }
    if (!DefaultApplications::isExecutable(pathOf(chosen))) {
        browserNotFound(address, chosen, scheme);
        return;
    }
    openWith(bypassesBrowser ? QString() : pathOf(chosen), address, chosen);
}

void InternetConfig::browserNotFound(const QString& address, const QString& browser, const QString& scheme) {
    const Bundle& bundle = Bundle::main();
    showAlert(bundle.localizedString(QT_TRANSLATE_NOOP("Lumivane", "Browser not found.")),
              bundle.localizedString(QT_TRANSLATE_NOOP("Lumivane", "url: <%1>, browser: <%2>"))
                  .arg(address, browser));
    // The user may have put it right while the alert stood.
    if (DefaultApplications::isExecutable(pathOf(defaultBrowserForScheme(scheme))))
        launchURL(address, QString());
}
