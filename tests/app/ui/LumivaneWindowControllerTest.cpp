// SPDX-License-Identifier: MIT
#include "app/ui/LumivaneWindowController.h"

#include "app/engine/CMoon.h"
#include "app/engine/CMoonHelper.h"
#include "app/shell/ApplicationDelegate.h"
#include "app/ui/LumivaneStatusItem.h"
#include "app/ui/LumivaneWindow.h"
#include "app/ui/PanelCommands.h"
#include "platform/layouts/DatePicker.h"
#include "platform/layouts/Slider.h"
#include "platform/preferences/Preferences.h"
#include "shared/utilities/classes/ExtraSliderUtilities.h"
#include "shared/utilities/classes/InternetConfig.h"
#include "shared/utilities/classes/values/ExtraDateUtilities.h"
#include "tests/FakeDesktop.h"
#include "tests/TestMain.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include <gtest/gtest.h>

namespace {

std::uint32_t seconds(const QDateTime& date) {
    return static_cast<std::uint32_t>(date.toSecsSinceEpoch() - ExtraDateUtilities::kReferenceInstant);
}

std::uint32_t firstMoment() {
    return gMoon.FindLunationAtIndex(0)->newMoon;
}

std::uint32_t lastMoment() {
    return gMoon.FindLunationAtIndex(kLunationCount - 1)->nextNewMoon - 1;
}

struct Zone {
    int type;
    float hours;
};

class LumivaneWindowControllerTest : public testing::Test {
protected:
    LumivaneWindowControllerTest() { load(); }
    ~LumivaneWindowControllerTest() override {
        for (const char* key : {"LVTimeZoneType", "LVTimeZoneCustomGMTOffset", "LVTimeZoneGMTOffsetTitle",
                                "LVLatitude", "LVLongitude"})
            defaults()->removeObjectForKey(QLatin1String(key));
    }

    static Preferences* defaults() { return Preferences::standard(); }

    void load() {
        controller_ =
            LumivaneWindowController::lumivaneWindowController(commands_, LumivaneWindow::kBorderlessMask);
        picker_ = controller_->window()->findChild<DatePicker*>();
        slider_ = controller_->window()->findChild<Slider*>(QStringLiteral("lunationSlider_"));
    }

    void setZone(const Zone& zone) {
        defaults()->setFloat(zone.hours, QStringLiteral("LVTimeZoneCustomGMTOffset"));
        defaults()->setInteger(zone.type, QStringLiteral("LVTimeZoneType"));
        controller_->timeZoneChanged(nullptr);
    }

    /// The moment after an action of a control with `tag`.
    std::uint32_t after(void (LumivaneWindowController::*action)(QObject*), int tag = 0) {
        QObject sender;
        sender.setProperty("tag", tag);
        (controller_.get()->*action)(&sender);
        return controller_->datePickerGMTSeconds();
    }
    std::uint32_t afterHours(int hours) {
        return after(&LumivaneWindowController::addTagToDatePicker, hours);
    }
    std::uint32_t afterLunations(int count) {
        return after(&LumivaneWindowController::addTagToLunation, count);
    }
    std::uint32_t afterPhase(int tag) { return after(&LumivaneWindowController::phaseWithTag, tag); }

    QLabel* field(const char* name) const {
        return controller_->window()->findChild<QLabel*>(QLatin1String(name));
    }

    const InZone zone_{"America/New_York"};
    ApplicationDelegate delegate_;
    PanelCommands commands_{delegate_};
    std::unique_ptr<LumivaneWindowController> controller_;
    DatePicker* picker_ = nullptr;
    Slider* slider_ = nullptr;
};

} // namespace

TEST_F(LumivaneWindowControllerTest, PickerSliderAndLinesGoTogether) {
    const Clock::Hold present(gmt(2026, 7, 1));
    const auto expectShown = [this](std::uint32_t moment) {
        EXPECT_EQ(controller_->datePickerGMTSeconds(), moment);
        EXPECT_NEAR(controller_->lunationSliderGMTSeconds(), moment, 1);
        EXPECT_EQ(picker_->dateValue(), controller_->model().pickerDate());
        const PanelModel::Lines lines = controller_->model().lines();
        EXPECT_EQ(field("illumination_")->text(), lines.illumination);
        EXPECT_EQ(field("timeLastQuarter_")->text(), lines.quarters[3]);
        EXPECT_EQ(field("moonRiseSet_")->text(), lines.moon);
    };
    setZone({2, 0});
    picker_->setDateTime(gmt(2026, 2, 7, 12)); // as the fields are typed, in New York
    expectShown(seconds(gmt(2026, 2, 7, 17)));
    setZone({3, -3.75F});
    expectShown(seconds(gmt(2026, 2, 7, 17)) - 900);
    slider_->setValue(slider_->maximum() / 2);
    expectShown(controller_->lunationSliderGMTSeconds());
    afterHours(24);
    expectShown(seconds(picker_->dateValue()) - 900);
    afterLunations(1);
    expectShown(gMoon.FindLunationAtIndex(gMoon.GetLunation(seconds(gmt(2026, 3, 5))))->fullMoon);
    afterPhase(3);
    expectShown(gMoon.FindLunationAtIndex(gMoon.GetLunation(seconds(gmt(2026, 3, 5))))->lastQuarter);
}

TEST_F(LumivaneWindowControllerTest, NoControlLeavesTheTable) {
    const Clock::Hold present(gmt(2026, 7, 1));
    for (const Zone& zone : {Zone{3, 12.75F}, Zone{3, -1e6F}, Zone{2, 0}}) {
        setZone(zone);
        for (const std::uint32_t end : {firstMoment(), lastMoment()}) {
            const tLunation* lunation = gMoon.FindLunationForGMTSeconds(end);
            controller_->moveTo(end);
            for (const double fraction : {0.0, 1.0}) {
                ExtraSliderUtilities::setReverseDoubleValue(slider_, fraction);
                const std::uint32_t moment = after(&LumivaneWindowController::lunationSliderChanged);
                EXPECT_EQ(gMoon.FindLunationForGMTSeconds(moment), lunation);
                EXPECT_EQ(moment, controller_->lunationSliderGMTSeconds());
            }
        }
    }
    // The picker lets nobody out, whatever is typed.
    for (const auto& [typed, end] :
         {std::pair{gmt(1900, 1, 1), firstMoment()}, std::pair{gmt(2200, 1, 1), lastMoment()}}) {
        picker_->setDateTime(typed);
        EXPECT_EQ(controller_->datePickerGMTSeconds(), end);
        EXPECT_EQ(seconds(picker_->dateValue()), end);
    }
}

TEST_F(LumivaneWindowControllerTest, OnlyTheDropDownHasItsTitleInside) {
    for (const std::uint32_t style : {LumivaneWindow::kBorderlessMask, LumivaneWindow::kWindoidMask}) {
        const auto panel = LumivaneWindowController::lumivaneWindowController(commands_, style);
        EXPECT_EQ(panel->window()->findChild<QLabel*>(QStringLiteral("title_"))->isHidden(),
                  style == LumivaneWindow::kWindoidMask);
    }
}

TEST_F(LumivaneWindowControllerTest, AChangedLineIsDarkRedForOneUpdate) {
    const Clock::Hold present(gmt(2026, 7, 1));
    load();
    const auto isRed = [this](const char* name) {
        const QLabel* label = field(name);
        return label->palette().color(label->foregroundRole()) == QColor::fromRgbF(0.5F, 0.0F, 0.0F);
    };
    controller_->showNow(nullptr);
    for (const QLabel* label : controller_->window()->findChildren<QLabel*>())
        EXPECT_FALSE(isRed(label->objectName().toLatin1())) << label->objectName().toStdString();
    afterHours(1);
    EXPECT_TRUE(isRed("illumination_") && isRed("daysSinceNewMoon_"));
    EXPECT_FALSE(isRed("lunation_") || isRed("timeFull_"));
    afterHours(24 * 30);
    EXPECT_TRUE(isRed("lunation_") && isRed("timeFull_") && isRed("moonRiseSet_"));
    controller_->updateStaticMoonInfo();
    EXPECT_FALSE(isRed("illumination_") || isRed("lunation_") || isRed("timeFull_") || isRed("moonRiseSet_"));
}

TEST_F(LumivaneWindowControllerTest, NumbersAreShownAndReadInTheLocale) {
    QLocale::setDefault(QLocale(QLocale::German));
    defaults()->setObject(QStringLiteral("GMT +5.5"), QStringLiteral("LVTimeZoneGMTOffsetTitle"));
    load();
    const auto* zones = controller_->window()->findChild<QComboBox*>(QStringLiteral("timeZonePopup_"));
    EXPECT_EQ(zones->itemText(2), u"GMT +5,5") << "which an earlier run may have stored";
    controller_->setDatePickerGMTSeconds(seconds(gmt(2026, 7, 1)));
    controller_->updateStaticMoonInfo();
    EXPECT_EQ(field("illumination_")->text().indexOf(u','), 2)
        << field("illumination_")->text().toStdString();

    controller_->timeZoneOther(nullptr);
    const auto* dialog = controller_->window()->findChild<QDialog*>();
    EXPECT_EQ(dialog->findChild<QLabel*>(QStringLiteral("smallMessage_"))->text(),
              u"For Example: -5; +1,5; 12; 0");
    dialog->findChild<QLineEdit*>()->setText(QStringLiteral("\u22123,5 hours"));
    dialog->findChild<QPushButton*>(QStringLiteral("okButton_"))->click();
    EXPECT_EQ(defaults()->floatForKey(QStringLiteral("LVTimeZoneCustomGMTOffset")), -3.5F);
    EXPECT_EQ(defaults()->stringForKey(QStringLiteral("LVTimeZoneGMTOffsetTitle")), u"GMT -3.5");
    EXPECT_EQ(zones->currentText(), u"GMT -3,5");

    const auto* latitude = controller_->window()->findChild<QLineEdit*>(QStringLiteral("latitude_"));
    controller_->latitudeAndLongitudeFromSystemSettings(nullptr);
    const QString shown = latitude->text();
    EXPECT_EQ(shown.left(6), u"40,714");
    EXPECT_EQ(latitude->cursorPosition(), 0);
    load();
    EXPECT_EQ(controller_->window()->findChild<QLineEdit*>(QStringLiteral("latitude_"))->text(), shown);
    QLocale::setDefault(QLocale::system());
}

namespace {

/// The program's item without a tray around it, and the panel that it has now.
class PanelOfTheItem : public LumivaneWindowControllerTest {
protected:
    PanelOfTheItem() { item_.awakeFromNib(); }

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

    void choose(const char* command) const {
        auto* action = item_.findChild<QAction*>(QLatin1String(command));
        ASSERT_NE(action, nullptr);
        action->trigger();
    }

    static QList<QDialog*> dialogs() {
        takeTurns();
        QList<QDialog*> shown;
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* dialog = qobject_cast<QDialog*>(widget);
            if (dialog && dialog->isVisible())
                shown.append(dialog);
        }
        return shown;
    }

    /// The panel that was hidden goes, the next one comes.
    static void takeTurns() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    }

    LumivaneStatusItem item_{delegate_};
};

} // namespace

TEST_F(PanelOfTheItem, CopiesWhatItShowsAndThePresentWithoutIt) {
    const auto expectCopied = [this](const QDateTime& moment) {
        choose("copyAction_");
        const QString lunation = QStringLiteral("Lunation %1\n").arg(gMoon.GetLunation(seconds(moment)));
        EXPECT_TRUE(QApplication::clipboard()->text().contains(lunation))
            << QApplication::clipboard()->text().toStdString();
    };
    {
        const Clock::Hold present(gmt(2026, 7, 1));
        expectCopied(Clock::now());
        EXPECT_EQ(window(), nullptr) << "a copy needs no panel";
        item_.showPanel();
        window()->findChild<QAbstractButton*>(QStringLiteral("lunationOn_"))->click();
        expectCopied(gmt(2026, 8, 1));
        EXPECT_FALSE(isShown()) << "a copy puts the drop-down away";
        EXPECT_NE(window(), nullptr) << "the next one is ready, made on this day";
    }
    const Clock::Hold later(gmt(2027, 8, 1));
    expectCopied(Clock::now());
}

TEST_F(PanelOfTheItem, MayGoWhileAnAlertStandsInItsCommand) {
    FakeDesktop& desktop = FakeDesktop::shared();
    QFile::remove(desktop.program(QStringLiteral("browser")));
    item_.statusItemClicked();
    const auto showAlert = InternetConfig::showAlert;
    InternetConfig::showAlert = [&](const QString&, const QString&) {
        item_.statusItemClicked();
        EXPECT_FALSE(isShown());
        item_.statusItemClicked();
    };
    choose("homePageAction_");
    InternetConfig::showAlert = showAlert;
    desktop.writeProgram(QStringLiteral("browser"));
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
    EXPECT_TRUE(window()->isVisible());
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
    alert.show();
    item_.statusItemClicked();
    EXPECT_TRUE(isShown());
}

TEST_F(PanelOfTheItem, WithoutATrayHidingIsQuitting) {
    item_.showPanel();
    const auto* button = window()->findChild<QAbstractButton*>(QStringLiteral("hideButton_"));
    EXPECT_EQ(button->toolTip(), u"Quit (Ctrl+W)");
    EXPECT_EQ(button->accessibleName(), u"Quit");
}

TEST_F(PanelOfTheItem, StaysAWindowWhereNoTrayWouldTakeItIn) {
    item_.makeAsWindoid();
    auto* button = window()->findChild<QAbstractButton*>(QStringLiteral("windoidButton_"));
    EXPECT_TRUE(button->isHidden());
    button->click();
    EXPECT_TRUE(window()->isVisible());
}

TEST_F(PanelOfTheItem, EscapeBringsTheStoredPlaceBack) {
    item_.makeAsWindoid(); // which stays
    auto* latitude = window()->findChild<QLineEdit*>(QStringLiteral("latitude_"));
    auto* longitude = window()->findChild<QLineEdit*>(QStringLiteral("longitude_"));
    const std::pair stored{latitude->text(), longitude->text()};
    latitude->setText(QStringLiteral("51"));
    longitude->setText(QStringLiteral("7"));
    QMetaObject::invokeMethod(window(), &LumivaneWindow::cancelOperation);
    EXPECT_EQ(std::pair(latitude->text(), longitude->text()), stored);
}
