// SPDX-License-Identifier: MIT
#include "platform/bundle/Bundle.h"

#include "platform/bundle/PropertyList.h"
#include "platform/desktop_entry/DesktopEntry.h"
#include "platform/log/Log.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QStandardPaths>

namespace {

constexpr char kContext[] = "Lumivane";

// Qt asks for this text as for any other: "RTL" turns every layout round, "LTR" leaves it.
[[maybe_unused]] constexpr const char* kLayoutDirection =
    QT_TRANSLATE_NOOP("Lumivane", "QT_LAYOUT_DIRECTION");

/// The English text alone is the key, wherever it is used.
class TextTranslator : public QTranslator {
public:
    QString translate(const char*, const char* sourceText, const char*, int n) const override {
        return QTranslator::translate(kContext, sourceText, nullptr, n);
    }
};

/// The texts of the first language that there are any for; English where that comes first or none is known.
std::unique_ptr<QTranslator> translatorFor(const QStringList& languages, const QString& folder) {
    auto translator = std::make_unique<TextTranslator>();
    for (const QString& language : languages) {
        if (language == u"C" || language == u"en" || language.startsWith(u"en-"))
            break;
        if (translator->load(QLocale(language), QStringLiteral("lumivane"), QStringLiteral("_"), folder))
            return translator;
    }
    // The sources' texts are English, but not all of them are what is to be read here.
    (void)translator->load(QStringLiteral("lumivane_en"), folder);
    return translator;
}

/// Not QCoreApplication's path: the engine is used without an application object too.
QString executablePath() {
    QString path = QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
    // An update puts a new file in the place of the running one.
    const QLatin1String replaced(" (deleted)");
    if (path.endsWith(replaced) && !QFileInfo::exists(path))
        path.chop(replaced.size());
    return path;
}

/// The AppImage that this program runs from, mounted at `APPDIR`. A program that was started by an AppImage
/// inherits the variables without being part of it.
QString appImagePath(const QString& executable) {
    const QString path = qEnvironmentVariable("APPIMAGE");
    const QString mountedAt = qEnvironmentVariable("APPDIR");
    const bool isInside = !mountedAt.isEmpty() && executable.startsWith(QDir::cleanPath(mountedAt) + u'/');
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

Bundle& Bundle::main() {
    static Bundle bundle;
    return bundle;
}

QString Bundle::resourcePath() const {
    if (const QString named = qEnvironmentVariable("LUMIVANE_RESOURCES"); !named.isEmpty())
        return named;
    return QDir::cleanPath(QFileInfo(executablePath()).absolutePath() + QStringLiteral("/../share/lumivane"));
}

QString Bundle::bundlePath() const {
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

QString Bundle::infoString(const QString& key) const {
    if (!info_) {
        QString error;
        const QString path = resourcePath() + QStringLiteral("/Info.plist");
        info_ = PropertyList::read(path, &error).toMap();
        if (info_->isEmpty())
            logLine(QStringLiteral("No information about the program in %1: %2.").arg(path, error));
    }
    return info_->value(key).toString();
}

QString Bundle::bundleIdentifier() const {
    const QString identifier = infoString(QStringLiteral("CFBundleIdentifier"));
    return identifier.isEmpty() ? QStringLiteral("com.corvanta.Lumivane") : identifier;
}

QString Bundle::translationsPath() const {
    return resourcePath() + QStringLiteral("/translations");
}

const QTranslator* Bundle::translations() const {
    if (!translator_)
        translator_ = translatorFor(QLocale::system().uiLanguages(), translationsPath());
    return translator_.get();
}

QString Bundle::localizedString(const char* key, int n) const {
    const QString text = translations()->translate(kContext, key, nullptr, n);
    return text.isEmpty() ? QString::fromUtf8(key) : text;
}

QString Bundle::language() const {
    const QString language = translations()->language();
    return language.isEmpty() ? QStringLiteral("en") : language;
}

void Bundle::installTranslations(const QStringList& languages) {
    qtTranslator_ = std::make_unique<QTranslator>();
    translator_ = translatorFor(languages, translationsPath());
    if (translator_->isEmpty())
        return;
    // In the same language, so that a text field's menu doesn't differ from the panel around it. What is
    // installed last is asked first.
    if (qtTranslator_->load(QLocale(translator_->language()), QStringLiteral("qtbase"), QStringLiteral("_"),
                            QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(qtTranslator_.get());
    QCoreApplication::installTranslator(translator_.get());
}
