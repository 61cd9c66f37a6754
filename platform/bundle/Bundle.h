// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>
#include <QTranslator>
#include <QVariantMap>

#include <memory>
#include <optional>

/// What is installed with the program: its resources, its Info dictionary and its localised strings, from the
/// folder `../share/lumivane` beside the executable's own (the same in the build tree and installed),
/// or the one that the environment variable `LUMIVANE_RESOURCES` names. Needs no application object.
class Bundle {
public:
    static Bundle& main();

    /// The folder of the resources; it need not exist.
    QString resourcePath() const;

    /// Where the application lives, read afresh at every call: its installed desktop entry, `<bundle
    /// identifier>.desktop` in the XDG data folders, when that starts this very program; else the AppImage
    /// that it runs from; else the executable.
    QString bundlePath() const;

    /// `CFBundleVersion` and the like from `Info.plist`, read at first use; empty, with a log line, when the
    /// file is missing or damaged.
    QString infoString(const QString& key) const;

    /// The reverse-DNS name that running copies and desktop entries are known by.
    QString bundleIdentifier() const;

    /// The user's language for `key`, an English text; `key` itself where there is no translation. English
    /// has its own, `lumivane_en`, for keys whose words would not be true or not be complete (a letter to
    /// underline) on this system. The form of a text about `n` things depends on the number; "%n" stays in
    /// it.
    QString localizedString(const char* key, int n = -1) const;

    /// The language of those texts: "de", "pt_BR".
    QString language() const;

    /// Makes every text follow `languages` ("de", "pt-BR"), best first, by default the user's: those looked
    /// up here, the layouts' and, where Qt's own catalogue is installed, the ones in Qt's controls. Also sets
    /// the direction of the layouts. Called once there is an application object.
    void installTranslations(const QStringList& languages = QLocale::system().uiLanguages());

private:
    Bundle() = default;
    QString translationsPath() const;
    const QTranslator* translations() const;

    mutable std::optional<QVariantMap> info_;
    mutable std::unique_ptr<QTranslator> translator_;
    std::unique_ptr<QTranslator> qtTranslator_;
};
