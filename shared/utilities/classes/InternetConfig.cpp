// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/InternetConfig.h"

#include "platform/appkit/NSWorkspace.h"
#include "platform/carbon/LaunchServices.h"
#include "platform/foundation/NSBundle.h"
#include "platform/foundation/NSLog.h"
#include "shared/utilities/classes/ExtraContainerUtilities.h"
#include "shared/utilities/classes/ExtraStringUtilities.h"
#include "shared/utilities/classes/ExtraURLUtilities.h"

#include <QApplication>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>

#include <algorithm>

using ExtraContainerUtilities::isEmpty;
using ExtraStringUtilities::pascalStringWithEncoding;
using ExtraStringUtilities::stringWithPascalString;
using ExtraURLUtilities::urlWithURLString;

namespace {

// The log's lines are known by these numbers, wherever the statements move to.
constexpr int kPreferenceLine = 78;
constexpr int kLaunchLine = 236;

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

/// "Helper•" and the scheme, which is left out when it doesn't fit.
Str255 preferenceKey(const QString& scheme) {
    Str255 key = pascalStringWithEncoding(QStringLiteral("Helper\u2022"), kCFStringEncodingMacRoman);
    const Str255 name = pascalStringWithEncoding(scheme, kCFStringEncodingMacRoman);
    if (key[0] + name[0] + 1U < key.size()) {
        std::copy_n(name.begin() + 1, name[0], key.begin() + key[0] + 1);
        key[0] = static_cast<std::uint8_t>(key[0] + name[0]);
    }
    return key;
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

void openWith(const QUrl& application, const QString& address, const QString& browser) {
    const OSStatus status = LSOpenFromURLSpec({application, {urlWithURLString(withScheme(address))}});
    if (status == noErr)
        return;
    NSLog(QStringLiteral("InternetConfig %1").arg(kLaunchLine));
    throw InternetConfigException(QStringLiteral("LSOpenFromURLSpec faiure.  Returned (%1) with URL <%2> "
                                                 "Browser <%3>.  -43 means 'File Not Found'.")
                                      .arg(QString::number(status), address, browser));
}

bool isExecutable(const QString& browser) {
    return NSWorkspace::isExecutableApplication(urlWithURLString(browser).toLocalFile());
}

/// Programs here have no signature unless their Info dictionary says one.
OSType ownSignature() {
    const QByteArray code = NSBundle::mainBundle().infoString(QStringLiteral("CFBundleSignature")).toLatin1();
    char text[5] = "\?\?\?\?";
    if (code.size() == 4)
        std::ranges::copy(code, text);
    return fourCharCode(text);
}

} // namespace

std::function<void(const QString&, const QString&)> InternetConfig::showAlert = runAlert;

InternetConfigException::InternetConfigException(const QString& reason)
    : NSException(QStringLiteral("InternetConfigException"), reason) {
}

void InternetConfig::launchURL(const QString& address) {
    launchURL(address, QString(), ownSignature());
}

void InternetConfig::launchURL(const QString& address, const QString& browser, OSType withSignature) {
    const auto config = internetConfigWithApplicationSignature(withSignature);
    if (!config)
        return;
    try {
        config->launchURL(address, browser);
    } catch (const std::exception& failure) {
        NSLog(QString::fromUtf8(failure.what()));
    }
}

std::unique_ptr<InternetConfig> InternetConfig::internetConfigWithApplicationSignature(OSType signature) {
    ICInstance instance = nullptr;
    if (ICStart(&instance, signature) != noErr)
        return nullptr;
    return std::unique_ptr<InternetConfig>(new InternetConfig(instance));
}

InternetConfig::~InternetConfig() {
    ICStop(instance_);
}

QString InternetConfig::defaultBrowserForScheme(const QString& scheme) {
    ICAppSpec application{};
    const OSStatus status = ICGetPref(instance_, preferenceKey(scheme), &application);
    if (status != noErr) {
        NSLog(QStringLiteral("-[InternetConfig defaultBrowserForScheme:] %1 error=%2")
                  .arg(QString::number(kPreferenceLine), QString::number(status)));
        throw InternetConfigException(
            QStringLiteral("ICGetPref faiure.  Can't find default browser.  Returned %1").arg(status));
    }
    const QString name = stringWithPascalString(application.name);
    const QString path = isEmpty(name) ? QString() : NSWorkspace::fullPathForApplication(name);
    return isEmpty(path) ? QString() : QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded);
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
            launchWithoutBrowser(address);
            return;
        }
    }
    if (!isExecutable(chosen)) {
        browserNotFound(address, chosen, scheme);
        return;
    }
    openWith(bypassesBrowser ? QUrl() : urlWithURLString(chosen), address, chosen);
}

void InternetConfig::launchWithoutBrowser(const QString& address) {
    const QByteArray text = address.toUtf8();
    const Str255 hint = pascalStringWithEncoding(kWebScheme, kCFStringEncodingMacRoman);
    if (ICLaunchURL(instance_, hint, text, 0, static_cast<std::int32_t>(text.size())) != noErr)
        NSLog(QStringLiteral("Can't find default browser from LaunchServices or InternetConfig."));
}

void InternetConfig::browserNotFound(const QString& address, const QString& browser, const QString& scheme) {
    const NSBundle& bundle = NSBundle::mainBundle();
    showAlert(bundle.localizedString(QT_TRANSLATE_NOOP("Lumivane", "Browser not found.")),
              bundle.localizedString(QT_TRANSLATE_NOOP("Lumivane", "url: <%1>, browser: <%2>"))
                  .arg(address, browser));
    // The user may have put it right while the alert stood.
    if (isExecutable(defaultBrowserForScheme(scheme)))
        launchURL(address, QString());
}
