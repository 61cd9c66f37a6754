// SPDX-License-Identifier: MIT
#include "app/engine/CMoonHelper.h"
#include "app/shell/ApplicationDelegate.h"
#include "app/ui/LumivaneWindow.h"
#include "app/ui/LumivaneWindowController.h"
#include "app/ui/PanelCommands.h"
#include "platform/bundle/Bundle.h"
#include "platform/richtext/RTFReader.h"
#include "platform/updates/UpdateAlert.h"
#include "tests/TestMain.h"

#include <QDialog>
#include <QDir>
#include <QGuiApplication>
#include <QLabel>
#include <QLibraryInfo>
#include <QMenu>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QTextDocument>
#include <QXmlStreamReader>

namespace {

const QString kRoot = QStringLiteral(TESTS_SOURCE_DIR "/..");

/// The translations in a .ts file by their source texts; unfinished ones are empty.
QMap<QString, QString> messagesIn(const QString& path) {
    QXmlStreamReader xml(readFile(path));
    QMap<QString, QString> messages;
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
            const bool isMissing = hasForms || xml.attributes().hasAttribute(u"type"_s);
            messages.insert(source, isMissing ? QString() : xml.readElementText());
        } else if (xml.name() == u"numerusform") {
            messages[source] += xml.readElementText();
        }
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(path + xml.errorString());
    return messages;
}

/// The keys that the sources and the layouts hold now.
QStringList sourceTexts() {
    const QTemporaryDir folder;
    const QString fresh = folder.filePath(u"fresh.ts"_s);
    QProcess update;
    update.start(kRoot + u"/tools/update_translations.sh"_s, {fresh});
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
    const QDir folder(kRoot + u"/resources/translations"_s);
    const QStringList files = folder.entryList({u"lumivane_*.ts"_s});
    EXPECT_EQ(files.size(), 10);
    // What this system has not; the sources' texts were written for one that has.
    const QRegularExpression untrue(u"Mac OS|Applications folder|[“„«「]Applications|\\.app\\b"_s);
    for (const QString& file : files) {
        const QMap<QString, QString> messages = messagesIn(folder.filePath(file));
        for (const QString& text : texts) {
            const QString shown = messages.value(text, text);
            EXPECT_FALSE(shown.contains(untrue)) << qPrintable(file + u": "_s + shown);
        }
        if (file == u"lumivane_en.ts")
            continue; // the sources speak English but for these
        EXPECT_EQ(messages.keys().join(u'\n'), texts.join(u'\n')) << qPrintable(file);
        for (const auto& [source, translation] : messages.toStdMap()) {
            EXPECT_FALSE(translation.trimmed().isEmpty()) << qPrintable(file + source);
            EXPECT_EQ(fixedParts(translation), fixedParts(source)) << qPrintable(file + translation);
        }
        // The compiled catalogue tells by its language which one of Qt's goes with it.
        const QString language = file.mid(9).chopped(3);
        use(language.toLatin1().constData());
        EXPECT_NE(CMoonHelper::stringForMoonName(MoonName::WaxingCrescent), u"a waxing crescent")
            << qPrintable(file);
        const QString catalogues = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
        EXPECT_TRUE(!QFile::exists(catalogues + u"/qtbase_%1.qm"_s.arg(language)) ||
                    QCoreApplication::translate("QWidgetTextControl", "&Paste") != u"&Paste")
            << qPrintable(file);
    }
}

TEST_F(TranslationsTest, EveryControlHasALetterOfItsOwnInEveryLanguage) {
    ApplicationDelegate delegate;
    const auto expectLetters = [](const QStringList& texts, std::size_t count) {
        EXPECT_EQ(texts.size(), count) << qPrintable(texts.join(u' '));
        QSet<QString> taken;
        for (const QString& text : texts) {
            const QString letter = QKeySequence::mnemonic(text).toString();
            EXPECT_FALSE(letter.isEmpty() || taken.contains(letter)) << qPrintable(text);
            taken.insert(letter);
            // Underlining a letter would part it from one that it is joined to.
            const qsizetype mark = text.indexOf(u'&');
            EXPECT_FALSE(mark > 0 && text[mark - 1].joiningType() == QChar::Joining_Dual) << qPrintable(text);
        }
    };
    const auto commands = [](const QMenu* menu) {
        QStringList texts;
        for (const QAction* action : menu->actions())
            texts.append(action->text());
        texts.removeAll(QString()); // separators
        return texts;
    };
    const auto controls = [](const QWidget* window) {
        QStringList texts;
        for (const auto* button : window->findChildren<QAbstractButton*>())
            texts.append(button->text());
        for (const auto* label : window->findChildren<QLabel*>())
            texts.append(label->buddy() ? label->text() : QString());
        // The steps, "+1 d", have keys instead, which their tool tips tell.
        texts.removeIf([](const QString& text) { return text.isEmpty() || text.contains(u'1'); });
        return texts;
    };
    for (const char* language : {"en", "de", "es", "fr", "it", "ja", "pt-BR", "ru", "zh-CN", "ar"}) {
        SCOPED_TRACE(language);
        use(language);
        PanelCommands panelCommands(delegate);
        const auto panel = LumivaneWindowController::lumivaneWindowController(
            panelCommands, LumivaneWindow::kBorderlessMask);
        expectLetters(controls(panel->window()), 12);
        const QStringList show{Bundle::main().localizedString("&Show Lumivane")};
        expectLetters(commands(panel->gearMenu()) + show, 8);
        const auto* place = panel->window()->findChild<QPushButton*>(u"latitudeAndLongitudePopup_"_s);
        ASSERT_TRUE(place && place->menu());
        expectLetters(commands(place->menu()), 3);

        panel->timeZoneOther(nullptr);
        panel->latitudeAndLongitudeFromCity(nullptr);
        for (const char* dialog : {"AskNumber", "ChooseCity"})
            expectLetters(controls(panel->window()->findChild<QDialog*>(QLatin1String(dialog))), 3);
        AppcastItem item;
        item.notes = u"Notes"_s;
        item.page = QUrl(u"https://lumivane.example/"_s);
        const std::unique_ptr<UpdateAlert> alert(UpdateAlert::updateAvailable(item, u"1"_s));
        expectLetters(controls(alert.get()), 4);
    }
}

TEST_F(TranslationsTest, TheUsersLanguagesReachTheTexts) {
    Bundle& bundle = Bundle::main();
    bundle.installTranslations({u"nl"_s, u"de-AT"_s, u"fr"_s});
    EXPECT_EQ(CMoonHelper::stringForMoonName(MoonName::WaxingCrescent), u"Zunehmende Mondsichel"_s);
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), u"&Abbrechen"_s);
    use("ar");
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    bundle.installTranslations({u"fi"_s, u"en-GB"_s, u"ar"_s});
    EXPECT_EQ(CMoonHelper::stringForMoonName(MoonName::WaxingCrescent), u"a waxing crescent"_s);
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

TEST_F(TranslationsTest, TheCreditsWordsAreAmongTheTexts) {
    const QStringList untranslated{u"Lumivane"_s, u"Jean Meeus, Astronomical Algorithms"_s,
                                   u"Astronomy on the Personal Computer"_s};
    const Bundle& bundle = Bundle::main();
    QString error;
    const auto credits = documentFromRTF(readFile(bundle.resourcePath() + u"/Credits.rtf"_s), &error);
    ASSERT_TRUE(credits) << qPrintable(error);
    const QStringList texts = sourceTexts() + untranslated;
    for (const QString& line : credits->toPlainText().split(u'\n', Qt::SkipEmptyParts))
        EXPECT_TRUE(texts.contains(line)) << qPrintable(line);
    const QString site = u"href=\"https://"_s + bundle.infoString(u"LVWebHost"_s);
    EXPECT_TRUE(credits->toHtml().contains(site + u'/'));
}
