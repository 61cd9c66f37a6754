// SPDX-License-Identifier: MIT
#include "platform/foundation/NSBundle.h"

#include "platform/foundation/DesktopEntry.h"
#include "platform/foundation/NSLog.h"
#include "platform/foundation/NSPropertyList.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>

namespace {

constexpr char kContext[] = "Lumivane";

/// The English text alone is the key, wherever it is used.
class TextTranslator : public QTranslator {
public:
    QString translate(const char*, const char* sourceText, const char*, int n) const override {
        return QTranslator::translate(kContext, sourceText, nullptr, n);
    }
};

/// Not QCoreApplication's path: the engine is used without an application object too.
QString executablePath() {
    QString path = QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
    // An update puts a new file in the place of the running one.
    const QLatin1String replaced(" (deleted)");
    if (path.endsWith(replaced) && !QFileInfo::exists(path))
        path.chop(replaced.size());
    return path;
}

/// The AppImage that this program runs from. A program that was started by an AppImage inherits the variable
/// without being part of it.
QString appImagePath(const QString& executable) {
    const QString path = qEnvironmentVariable("APPIMAGE");
    const QString mountedAt = qEnvironmentVariable("APPDIR");
    const bool isInside = mountedAt.isEmpty() || executable.startsWith(QDir::cleanPath(mountedAt) + u'/');
    return isInside && path.startsWith(u'/') && QFileInfo(path).isFile() ? path : QString();
}

bool isSameFile(const QString& path, const QString& other) {
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return !canonical.isEmpty() && canonical == QFileInfo(other).canonicalFilePath();
}

bool starts(const QString& desktopEntry, const QString& program) {
    QString error;
    const auto entry = DesktopEntry::fromFile(desktopEntry, &error);
    return entry && !entry->flag("Hidden", false) &&
           (isSameFile(entry->program(), program) ||
            isSameFile(absoluteProgram(entry->text("TryExec")), program));
}

} // namespace

NSBundle& NSBundle::mainBundle() {
    static NSBundle bundle;
    return bundle;
}

QString NSBundle::resourcePath() const {
    if (const QString named = qEnvironmentVariable("LUMIVANE_RESOURCES"); !named.isEmpty())
        return named;
    return QFileInfo(QFileInfo(executablePath()).absolutePath() + QStringLiteral("/../share/lumivane"))
        .absoluteFilePath();
}

QString NSBundle::bundlePath() const {
    const QString executable = executablePath();
    const QString appImage = appImagePath(executable);
    const QString program = appImage.isEmpty() ? executable : appImage;
    const QStringList entries = QStandardPaths::locateAll(QStandardPaths::ApplicationsLocation,
                                                          bundleIdentifier() + QStringLiteral(".desktop"));
    for (const QString& entry : entries) {
        if (starts(entry, program))
            return entry;
    }
    return program;
}

QString NSBundle::pathForResource(const QString& name, const QString& type) const {
    const QString file = type.isEmpty() ? name : name + QLatin1Char('.') + type;
    const QString path = resourcePath() + QLatin1Char('/') + file;
    return QFileInfo(path).isFile() ? path : QString();
}

const QVariantMap& NSBundle::infoDictionary() const {
    if (!info_) {
        QString error;
        const QString path = resourcePath() + QStringLiteral("/Info.plist");
        info_ = std::make_unique<QVariantMap>(NSPropertyList::read(path, &error).toMap());
        if (info_->isEmpty())
            NSLog(QStringLiteral("No information about the program in %1: %2.").arg(path, error));
    }
    return *info_;
}

QString NSBundle::infoString(const QString& key) const {
    return infoDictionary().value(key).toString();
}

QString NSBundle::bundleIdentifier() const {
    const QString identifier = infoString(QStringLiteral("CFBundleIdentifier"));
    return identifier.isEmpty() ? QStringLiteral("com.corvanta.Lumivane") : identifier;
}

const QTranslator* NSBundle::translations() const {
    if (!translator_) {
        translator_ = std::make_unique<TextTranslator>();
        const QStringList languages = QLocale::system().uiLanguages();
        const QString first = languages.value(0, QStringLiteral("C"));
        if (first != u"C" && first != u"en" && !first.startsWith(u"en-"))
            (void)translator_->load(QLocale::system(), QStringLiteral("lumivane"), QStringLiteral("_"),
                                    resourcePath() + QStringLiteral("/translations"));
    }
    return translator_.get();
}

QString NSBundle::localizedString(const char* key) const {
    const QString text = translations()->translate(kContext, key);
    return text.isEmpty() ? QString::fromUtf8(key) : text;
}

void NSBundle::installTranslations() {
    (void)translations();
    if (!translator_->isEmpty())
        QCoreApplication::installTranslator(translator_.get());
}
