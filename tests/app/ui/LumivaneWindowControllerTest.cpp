// SPDX-License-Identifier: MIT
#include "app/ui/LumivaneWindowController.h"

#include "app/shell/ApplicationDelegate.h"
#include "app/ui/LumivaneStatusItem.h"
#include "app/ui/LumivaneWindow.h"
#include "app/ui/PanelCommands.h"
#include "platform/layouts/DatePicker.h"
#include "platform/layouts/Slider.h"
#include "shared/utilities/classes/ExtraSliderUtilities.h"
#include "shared/utilities/classes/InternetConfig.h"
#include "tests/FakeDesktop.h"
#include "tests/app/MoonTest.h"

#include <QAbstractButton>
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>

namespace {

class Panel : public MoonTest {
protected:
    Panel() { load(); }

    void load(std::uint32_t style = LumivaneWindow::kBorderlessMask) {
        controller_ = LumivaneWindowController::lumivaneWindowController(commands_, style);
    }

    template <typename T = QLabel>
    T* get(const char* name) const {
        return controller_->window()->findChild<T*>(QLatin1String(name));
    }

    void click(const char* button) const { get<QAbstractButton>(button)->click(); }

    ApplicationDelegate delegate_;
    PanelCommands commands_{delegate_};
    std::unique_ptr<LumivaneWindowController> controller_;
};

/// The program's item without a tray around it, and the panel that it has now.
class PanelOfTheItem : public Panel {
protected:
    PanelOfTheItem() { item_.awakeFromNib(); }

    /// The panel that was hidden goes, the next one comes.
    static void takeTurns() {
        deletePending();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    }

    LumivaneWindow* window() const {
        takeTurns();
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* window = qobject_cast<LumivaneWindow*>(widget);
            if (window && window != controller_->window())
                return window;
        }
        return nullptr;
    }

    bool isShown() const { return window() && window()->isVisible(); }

    static QList<QDialog*> dialogs() {
        takeTurns();
        return shownWindows<QDialog>();
    }

    void choose(const char* command) { item_.findChild<QAction*>(QLatin1String(command))->trigger(); }

    LumivaneStatusItem item_{delegate_};
};

} // namespace

TEST_F(Panel, EveryControlMovesPickerSliderAndLines) {
    const Clock::Hold present(gmt(2009, 12, 20, 17));
    load();
    auto* picker = get<DatePicker>("datePicker_");
    auto* slider = get<Slider>("lunationSlider_");
    const auto expectShown = [&](std::uint32_t moment) {
        const PanelModel& model = controller_->model();
        EXPECT_EQ(model.moment(), moment);
        EXPECT_NEAR(ExtraSliderUtilities::reverseDoubleValue(slider),
                    std::clamp(PanelModel::fractionOf(moment), 0.025, 0.975), 1e-6);
        EXPECT_EQ(picker->dateValue(), model.pickerDate());
        EXPECT_EQ(slider->accessibleDescription(), model.spokenDate());
        EXPECT_EQ(get("illumination_")->text(), model.lines().illumination);
        EXPECT_EQ(get("timeLastQuarter_")->text(), model.lines().quarters[3]);
        EXPECT_EQ(get("moonRiseSet_")->text(), model.lines().moon);
    };
    const std::uint32_t now = seconds(Clock::now());
    const tLunation& blue = lunation(1076);
    using Row = std::tuple<const char*, std::uint32_t>;
    for (const auto& [button, moment] :
         {Row{"hourOn_", now + 3600}, Row{"hourBack_", now}, Row{"dayBack_", now - 86400}, Row{"dayOn_", now},
          Row{"lunationOn_", lunation(1077).fullMoon}, Row{"lunationBack_", blue.fullMoon},
          Row{"showNew_", blue.newMoon}, Row{"showQ1_", blue.firstQuarter}, Row{"showFull_", blue.fullMoon},
          Row{"showQ3_", blue.lastQuarter}, Row{"nowButton_", now}}) {
        SCOPED_TRACE(button);
        click(button);
        expectShown(moment);
    }
    picker->setDateTime(gmt(2026, 2, 7, 12)); // as the fields are typed, in New York
    expectShown(seconds(gmt(2026, 2, 7, 17)));
    press(get<QWidget>("timeZonePopup_"), Qt::Key_Home);
    expectShown(seconds(gmt(2026, 2, 7, 12)));
    for (const auto& [key, fraction] :
         {std::pair{Qt::Key_Home, 0.025}, {Qt::Key_End, 0.975}, {Qt::Key_Left, 0.968}}) {
        press(slider, key);
        expectShown(controller_->lunationSliderGMTSeconds());
        EXPECT_NEAR(PanelModel::fractionOf(controller_->model().moment()), fraction, 0.005);
    }
    // The picker lets nobody out of the table, whatever is typed.
    for (const auto& [typed, end] :
         {std::pair{gmt(1900, 1, 1), firstMoment()}, {gmt(2200, 1, 1), lastMoment()}}) {
        picker->setDateTime(typed);
        expectShown(end);
    }
}

TEST_F(Panel, ThePictureIsBlueAndSouthOfTheEquatorTurned) {
    const auto picture = [](int index) {
        return LumivaneWindowController::moonImageFor(lunation(index).firstQuarter);
    };
    const QImage grey = picture(1075);
    const QRgb lit = grey.pixel(grey.width() * 3 / 4, grey.height() / 2);
    EXPECT_TRUE(qIsGray(lit) && qRed(lit) > 60);
    const QRgb blue = picture(1076).pixel(grey.width() * 3 / 4, grey.height() / 2);
    EXPECT_GT(qBlue(blue), qRed(blue));
    setPlace(-33.9F, 151.2F);
    EXPECT_EQ(picture(1075), grey.mirrored(true, true).convertToFormat(picture(1075).format()));
}

TEST_F(Panel, TheSettingsSpeakTheLocaleAndAreKept) {
    const InLocale german("de_DE");
    defaults()->set(PreferenceKeys::customOffsetTitle, u"GMT +5.5"_s);
    load();
    auto* zones = get<QComboBox>("timeZonePopup_");
    EXPECT_EQ(zones->itemText(2), u"GMT +5,5") << "which an earlier run may have stored";
    controller_->setDatePickerGMTSeconds(seconds(gmt(2026, 7, 1)));
    controller_->updateStaticMoonInfo();
    EXPECT_EQ(get("illumination_")->text().indexOf(u','), 2) << get("illumination_")->text().toStdString();

    for (const auto& [button, title] : {std::pair{"cancelButton_", u"System"}, {"okButton_", u"GMT -3,5"}}) {
        press(zones, Qt::Key_End);
        auto* dialog = controller_->window()->findChild<QDialog*>();
        EXPECT_EQ(dialog->findChild<QLabel*>(u"smallMessage_"_s)->text(), u"For Example: -5; +1,5; 12; 0");
        dialog->findChild<QLineEdit*>()->setText(u"\u22123,5 hours"_s);
        dialog->findChild<QAbstractButton*>(QLatin1String(button))->click();
        deletePending();
        EXPECT_EQ(zones->currentText(), QStringView(title));
    }
    EXPECT_EQ(defaults()->value(PreferenceKeys::timeZoneType), kTimeZoneCustom);
    EXPECT_EQ(defaults()->value(PreferenceKeys::customOffset), -3.5F);
    EXPECT_EQ(defaults()->value(PreferenceKeys::customOffsetTitle), u"GMT -3.5");

    auto* latitude = get<QLineEdit>("latitude_");
    const QString sun = get("sunRiseSet_")->text();
    latitude->selectAll();
    press(latitude, Qt::Key_5, u"5"_s);
    press(latitude, Qt::Key_Return);
    EXPECT_EQ(defaults()->value(PreferenceKeys::latitude), 5.0F);
    EXPECT_NE(get("sunRiseSet_")->text(), sun);
    get<QAction>("placeFromSystemSettings_")->trigger();
    EXPECT_EQ(latitude->text().left(6), u"40,714");
    EXPECT_EQ(latitude->cursorPosition(), 0);

    const QImage before = get("moonImageView_")->pixmap().toImage();
    press(get<Slider>("brightness_"), Qt::Key_Home);
    EXPECT_EQ(defaults()->value(PreferenceKeys::brightness), 1.0F) << "what becomes grey: a dark picture";
    EXPECT_NE(get("moonImageView_")->pixmap().toImage(), before);
    defaults()->remove(PreferenceKeys::brightness);

    defaults()->setBool(false, u"LVMoonDisclosure"_s);
    load();
    EXPECT_FALSE(get<QAbstractButton>("moonTriangle_")->isChecked()) << "it stays folded";
    EXPECT_EQ(get<QComboBox>("timeZonePopup_")->currentText(), u"GMT -3,5");
    defaults()->setBool(true, u"LVMoonDisclosure"_s);
}

TEST_F(Panel, TheTabKeyReachesEveryControlFromTopToBottom) {
    EXPECT_FALSE(get("title_")->isHidden());
    LumivaneWindow* window = controller_->window();
    showActive(window);
    QSet<QWidget*> expected;
    for (QWidget* each : window->findChildren<QWidget*>()) {
        if (each->isVisible() && each->focusPolicy() & Qt::TabFocus && !each->focusProxy())
            expected.insert(each);
    }
    EXPECT_GE(expected.size(), 24);
    QList<QWidget*> reached;
    for (QWidget* focused = QApplication::focusWidget(); !reached.contains(focused);
         focused = QApplication::focusWidget()) {
        reached.append(focused);
        for (int i = 0; i < 10 && QApplication::focusWidget() == focused; ++i) // the picker has several stops
            press(focused, Qt::Key_Tab);
    }
    ASSERT_EQ(QSet<QWidget*>(reached.cbegin(), reached.cend()), expected);
    const auto place = [&](QWidget* each) {
        const QPoint corner = each->mapTo(window, QPoint());
        return std::pair(corner.y() / 20, corner.x());
    };
    std::ranges::rotate(reached, std::ranges::min_element(reached, {}, place));
    EXPECT_TRUE(std::ranges::is_sorted(reached, {}, place));
}

TEST_F(PanelOfTheItem, CopiesWhatItShowsAndThePresentWithoutIt) {
    const auto expectCopied = [this](const QDateTime& moment) {
        choose("copyAction_");
        const QString text = QApplication::clipboard()->text();
        const QString line = u"Lunation %1\n"_s.arg(gMoon.GetLunation(seconds(moment)));
        EXPECT_TRUE(text.contains(line)) << qPrintable(text);
    };
    {
        const Clock::Hold present(gmt(2026, 7, 1));
        item_.showPanel();
        window()->findChild<QAbstractButton*>(u"lunationOn_"_s)->click();
        expectCopied(gmt(2026, 8, 1));
        EXPECT_FALSE(isShown()) << "a copy puts the drop-down away";
        EXPECT_NE(window(), nullptr) << "the next one is ready, made on this day";
    }
    const Clock::Hold later(gmt(2027, 8, 1));
    expectCopied(Clock::now());
}

TEST_F(PanelOfTheItem, MayGoWhileAnAlertStandsInItsCommand) {
    FakeDesktop& desktop = FakeDesktop::shared();
    QFile::remove(desktop.program(u"browser"_s));
    item_.statusItemClicked();
    const auto showAlert = InternetConfig::showAlert;
    InternetConfig::showAlert = [&](const QString&, const QString&) {
        item_.statusItemClicked();
        EXPECT_FALSE(isShown());
        item_.statusItemClicked();
    };
    choose("homePageAction_");
    InternetConfig::showAlert = showAlert;
    desktop.writeProgram(u"browser"_s);
    EXPECT_TRUE(isShown()) << "the panel that is gone hides no other";
}

TEST_F(PanelOfTheItem, ShowsItsCreditsOnceAndBlocksNothingWhileItIsHidden) {
    for (const bool isHidden : {true, false}) {
        if (!isHidden)
            item_.showPanel();
        choose("aboutAction_");
        ASSERT_EQ(dialogs().size(), 1);
        QDialog* credits = dialogs().first();
        EXPECT_EQ(credits->parentWidget(), isHidden ? nullptr : window());
        EXPECT_EQ(credits->windowModality(), isHidden ? Qt::NonModal : Qt::WindowModal);
        choose("aboutAction_");
        EXPECT_EQ(dialogs(), QList{credits});
        credits->close();
    }
    // A click puts the panel away and the credits on it, but not those by themselves.
    choose("aboutAction_");
    item_.statusItemClicked();
    EXPECT_TRUE(dialogs().isEmpty());
    choose("aboutAction_");
    item_.statusItemClicked();
    EXPECT_TRUE(isShown());
    ASSERT_EQ(dialogs().size(), 1);
    EXPECT_FALSE(dialogs().first()->frameGeometry().intersects(window()->geometry()));
    dialogs().first()->close();
}

TEST_F(PanelOfTheItem, GivesWayToAnAlertThatWaits) {
    QMessageBox alert;
    alert.setWindowModality(Qt::ApplicationModal);
    alert.show();
    item_.statusItemClicked();
    item_.showPanel();
    EXPECT_FALSE(isShown()) << "it would look alive and be dead";
    alert.hide();
    item_.statusItemClicked();
    EXPECT_TRUE(isShown());
}

TEST_F(PanelOfTheItem, WithoutATrayIsAWindowWhoseHidingQuits) {
    item_.makeAsWindoid();
    const auto* hide = window()->findChild<QAbstractButton*>(u"hideButton_"_s);
    EXPECT_EQ(hide->toolTip(), u"Quit (Ctrl+W)");
    EXPECT_EQ(hide->accessibleName(), u"Quit");
    EXPECT_TRUE(window()->findChild<QLabel*>(u"title_"_s)->isHidden()) << "it is in the title bar";
    auto* back = window()->findChild<QAbstractButton*>(u"windoidButton_"_s);
    EXPECT_TRUE(back->isHidden());
    back->click();
    EXPECT_TRUE(isShown());

    auto* longitude = window()->findChild<QLineEdit*>(u"longitude_"_s);
    const QString stored = longitude->text();
    longitude->setText(u"7"_s);
    press(window(), Qt::Key_Escape);
    EXPECT_EQ(longitude->text(), stored);
}
