// SPDX-License-Identifier: MIT
#include "app/engine/CMoonHelper.h"
#include "app/shell/ApplicationDelegate.h"
#include "app/ui/LumivaneWindow.h"
#include "app/ui/LumivaneWindowController.h"
#include "app/ui/PanelCommands.h"
#include "platform/bundle/Bundle.h"
#include "platform/richtext/RTFReader.h"
#include "platform/updates/UpdateAlert.h"

#include <QDialog>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QLibraryInfo>
#include <QMenu>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace {

const QString kRoot = QStringLiteral(TESTS_SOURCE_DIR "/..");

struct Message {
    QString translation;
    bool unfinished;
};

/// The messages of a .ts file by their source texts.
QMap<QString, Message> messagesIn(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    QXmlStreamReader xml(&file);
    QMap<QString, Message> messages;
    QString source;
    bool hasForms = false;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"message") {
            hasForms = xml.attributes().hasAttribute(QLatin1String("numerus"));
        } else if (xml.name() == u"source") {
            source = xml.readElementText();
        } else if (xml.name() == u"translation") {
            const bool unfinished = xml.attributes().hasAttribute(QLatin1String("type"));
            messages.insert(source, {hasForms ? QString() : xml.readElementText(), unfinished});
        } else if (xml.name() == u"numerusform") {
            messages[source].translation += xml.readElementText();
        }
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(path + xml.errorString());
    return messages;
}

/// The keys that the sources and the layouts hold now.
QStringList sourceTexts() {
    const QTemporaryDir folder;
    const QString fresh = folder.filePath(QStringLiteral("fresh.ts"));
    QProcess update;
    update.start(kRoot + QStringLiteral("/tools/update_translations.sh"), {fresh});
    EXPECT_TRUE(update.waitForFinished() && update.exitCode() == 0);
    return messagesIn(fresh).keys();
}

/// What the program fills in or what must stay at the ends, in an order that doesn't depend on the language.
QStringList fixedParts(const QString& text) {
    static const QRegularExpression part(QStringLiteral(R"(\^[123dhm]|%@|%d|%\d|\[[A-Z]+\]|^\s|\s$)"));
    QStringList parts;
    for (auto found = part.globalMatch(text); found.hasNext();)
        parts.append(found.next().captured());
    parts.sort();
    return parts;
}

class TranslationsTest : public testing::Test {
protected:
    ~TranslationsTest() override { use("en"); }
    static void use(const char* language) { Bundle::main().installTranslations({QLatin1String(language)}); }
};

} // namespace

TEST_F(TranslationsTest, EveryLanguageHasEveryTextWhole) {
    const QStringList texts = sourceTexts();
    ASSERT_GT(texts.size(), 100);
    const QDir folder(kRoot + QStringLiteral("/resources/translations"));
    const QStringList files = folder.entryList({QStringLiteral("lumivane_*.ts")});
    EXPECT_EQ(files.size(), 10);
    // What this system has not; the sources' texts were written for one that has.
    const QRegularExpression untrue(
        QStringLiteral("Mac OS|Applications folder|[“„«「]Applications|\\.app\\b"));
    for (const QString& file : files) {
        const QMap<QString, Message> messages = messagesIn(folder.filePath(file));
        for (const QString& text : texts) {
            const QString shown = messages.contains(text) ? messages[text].translation : text;
            EXPECT_FALSE(shown.contains(untrue)) << qPrintable(file + QStringLiteral(": ") + shown);
        }
        if (file == u"lumivane_en.ts") {
            for (const QString& source : messages.keys())
                EXPECT_TRUE(texts.contains(source)) << qPrintable(source);
            continue; // the sources speak English but for these
        }
        EXPECT_EQ(messages.keys().join(u'\n'), texts.join(u'\n')) << qPrintable(file);
        for (const auto& [source, message] : messages.toStdMap()) {
            EXPECT_FALSE(message.unfinished || message.translation.trimmed().isEmpty())
                << qPrintable(file + QStringLiteral(": ") + source);
            EXPECT_EQ(fixedParts(message.translation), fixedParts(source))
                << qPrintable(file + QStringLiteral(": ") + message.translation);
        }
        // The compiled catalogue tells by its language which one of Qt's goes with it.
        const QString language = file.mid(9).chopped(3);
        use(language.toLatin1().constData());
        EXPECT_NE(CMoonHelper::stringForMoonName(MoonName::WaxingCrescent),
                  QStringLiteral("a waxing crescent"))
            << qPrintable(file);
        const QString qtCatalogue = QLibraryInfo::path(QLibraryInfo::TranslationsPath) +
                                    QStringLiteral("/qtbase_%1.qm").arg(language);
        if (QFile::exists(qtCatalogue)) {
            EXPECT_NE(QCoreApplication::translate("QWidgetTextControl", "&Paste"), QStringLiteral("&Paste"))
                << qPrintable(file);
        }
    }
}

TEST_F(TranslationsTest, EveryControlHasALetterOfItsOwnInEveryLanguage) {
    ApplicationDelegate delegate;
    const auto expectLetters = [](const QStringList& texts, std::size_t count, const char* where) {
        SCOPED_TRACE(where);
        EXPECT_EQ(texts.size(), count);
        QMap<QString, QString> taken;
        for (const QString& text : texts) {
            const QString letter = QKeySequence::mnemonic(text).toString();
            EXPECT_FALSE(letter.isEmpty()) << qPrintable(text);
            EXPECT_FALSE(taken.contains(letter)) << qPrintable(text + QStringLiteral(", ") + taken[letter]);
            taken.insert(letter, text);
            // Underlining a letter would part it from one that it is joined to.
            const qsizetype mark = text.indexOf(u'&');
            EXPECT_FALSE(mark > 0 && text[mark - 1].joiningType() == QChar::Joining_Dual) << qPrintable(text);
        }
    };
    const auto commands = [](const QMenu* menu) {
        QStringList texts;
        for (const QAction* action : menu->actions()) {
            if (!action->isSeparator())
                texts.append(action->text());
        }
        return texts;
    };
    const auto controls = [](const QWidget* window) {
        QStringList texts;
        for (const auto* button : window->findChildren<QAbstractButton*>()) {
            // The steps, "+1 d", have keys instead, which their tool tips tell.
            if (!button->text().isEmpty() && !button->text().contains(u'1'))
                texts.append(button->text());
        }
        for (const auto* label : window->findChildren<QLabel*>()) {
            if (label->buddy())
                texts.append(label->text());
        }
        return texts;
    };
    for (const char* language : {"en", "de", "es", "fr", "it", "ja", "pt-BR", "ru", "zh-CN", "ar"}) {
        SCOPED_TRACE(language);
        use(language);
        PanelCommands panelCommands(delegate);
        const auto panel = LumivaneWindowController::lumivaneWindowController(
            panelCommands, LumivaneWindow::kBorderlessMask);
        expectLetters(controls(panel->window()), 12, "panel");
        const QStringList show{Bundle::main().localizedString("&Show Lumivane")};
        expectLetters(commands(panel->gearMenu()) + show, 8, "menu");
        const auto* place =
            panel->window()->findChild<QPushButton*>(QStringLiteral("latitudeAndLongitudePopup_"));
        ASSERT_TRUE(place && place->menu());
        expectLetters(commands(place->menu()), 2, "place");

        panel->timeZoneOther(nullptr);
        expectLetters(controls(panel->window()->findChild<QDialog*>()), 3, "offset");
        AppcastItem item;
        item.notes = QStringLiteral("Notes");
        item.page = QUrl(QStringLiteral("https://lumivane.example/"));
        const std::unique_ptr<UpdateAlert> alert(UpdateAlert::updateAvailable(item, QStringLiteral("1")));
        expectLetters(controls(alert.get()), 4, "update");
    }
}

TEST_F(TranslationsTest, TheUsersLanguagesReachTheTexts) {
    Bundle& bundle = Bundle::main();
    bundle.installTranslations({QStringLiteral("nl"), QStringLiteral("de-AT"), QStringLiteral("fr")});
    EXPECT_EQ(CMoonHelper::stringForMoonName(MoonName::WaxingCrescent),
              QStringLiteral("Zunehmende Mondsichel"));
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("&Abbrechen"));
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    use("ar");
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    bundle.installTranslations({QStringLiteral("fi"), QStringLiteral("en-GB"), QStringLiteral("ar")});
    EXPECT_EQ(CMoonHelper::stringForMoonName(MoonName::WaxingCrescent), QStringLiteral("a waxing crescent"));
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

TEST_F(TranslationsTest, TheCreditsWordsAreAmongTheTexts) {
    const QStringList untranslated{QStringLiteral("Lumivane"),
                                   QStringLiteral("Jean Meeus, Astronomical Algorithms"),
                                   QStringLiteral("Astronomy on the Personal Computer")};
    const Bundle& bundle = Bundle::main();
    QFile file(bundle.resourcePath() + QStringLiteral("/Credits.rtf"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QString error;
    const auto credits = documentFromRTF(file.readAll(), &error);
    ASSERT_TRUE(credits) << qPrintable(error);
    const QStringList texts = sourceTexts() + untranslated;
    for (const QString& line : credits->toPlainText().split(u'\n', Qt::SkipEmptyParts))
        EXPECT_TRUE(texts.contains(line)) << qPrintable(line);
    const QString site = QStringLiteral("href=\"https://") + bundle.infoString(QStringLiteral("LVWebHost"));
    EXPECT_TRUE(credits->toHtml().contains(site + u'/'));
}
