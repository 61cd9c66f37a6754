// SPDX-License-Identifier: MIT
#include "app/ui/LumivaneWindowController.h"

#include "app/ui/ControlIcon.h"
#include "app/ui/LumivaneStatusItem.h"
#include "app/ui/LumivaneWindow.h"
#include "app/ui/PanelCommands.h"
#include "platform/bundle/Bundle.h"
#include "platform/layouts/DatePicker.h"
#include "platform/layouts/Layout.h"
#include "platform/layouts/SectionBox.h"
#include "platform/layouts/Slider.h"
#include "platform/locale/Clock.h"
#include "platform/log/Log.h"
#include "platform/preferences/Preferences.h"
#include "shared/utilities/classes/DisclosureTriangleWithResize.h"
#include "shared/utilities/classes/ExtraApplicationUtilities.h"
#include "shared/utilities/classes/ExtraSliderUtilities.h"
#include "shared/utilities/classes/ExtraWindowUtilities.h"
#include "shared/utilities/classes/MouseDownButton.h"
#include "shared/utilities/classes/setStringValueHilight.h"
#include "shared/utilities/classes/values/Exception.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>

#include <cstdlib>

namespace {

// The lunation's ends lie outside the slider: its own value is the negated fraction of the lunation.
constexpr float kLargestFraction = 0.975F;
constexpr float kSmallestFraction = 0.025F;

template <typename T>
void registerClass(const char* name) {
    Layout::registerClass(QLatin1String(name), [](QWidget* parent) -> QWidget* { return new T(parent); });
}

void registerClasses() {
    registerClass<SectionBox>("SectionBox");
    registerClass<Slider>("Slider");
    registerClass<DatePicker>("DatePicker");
    registerClass<MouseDownButton>("MouseDownButton");
    registerClass<DisclosureTriangleWithResize>("DisclosureTriangleWithResize");
}

[[noreturn]] void quitBecauseMoved(const QString& reason) {
    logLine(reason);
    const Bundle& bundle = Bundle::main();
    ExtraApplicationUtilities::bringToFront();
    QMessageBox alert(QMessageBox::Warning, QStringLiteral("Lumivane"),
                      bundle.localizedString(QT_TRANSLATE_NOOP(
                          "Lumivane", "It appears that Lumivane.app was moved while it was running!")));
    alert.setInformativeText(bundle.localizedString(QT_TRANSLATE_NOOP(
        "Lumivane", "Mac OS X does not support moving or renaming applications while they are "
                    "running.  Lumivane needs to quit now before bad things happen.")));
    alert.addButton(bundle.localizedString(QT_TRANSLATE_NOOP("Lumivane", "Quit")), QMessageBox::AcceptRole);
    alert.exec();
    logLine(QStringLiteral("Quitting because the application moved while it was running."));
    std::exit(1);
}

} // namespace

std::unique_ptr<LumivaneWindowController>
LumivaneWindowController::lumivaneWindowController(PanelCommands& commands, std::uint32_t styleMask) {
    try {
        std::unique_ptr<LumivaneWindowController> controller(new LumivaneWindowController(commands));
        controller->loadWindow(styleMask);
        controller->window_->hide();
        return controller;
    } catch (const InternalInconsistencyException& exception) {
        quitBecauseMoved(exception.reason());
    }
}

LumivaneWindowController::LumivaneWindowController(PanelCommands& commands) : commands_(commands) {
}

LumivaneWindowController::~LumivaneWindowController() = default;

void LumivaneWindowController::loadWindow(std::uint32_t styleMask) {
    static const bool registered = [] {
        registerClasses();
        return true;
    }();
    Q_UNUSED(registered)
    Layout::registerClass(QStringLiteral("LumivaneWindow"), [styleMask](QWidget* parent) -> QWidget* {
        return new LumivaneWindow(styleMask, parent);
    });
    QString error;
    std::unique_ptr<QWidget> root = Layout::load(QStringLiteral("LumivaneWindow"), this, &error);
    if (!root) {
        logLine(error);
        throw InternalInconsistencyException(QStringLiteral("Can't load window LumivaneWindow"));
    }
    window_.reset(qobject_cast<LumivaneWindow*>(root.get()));
    if (!window_)
        throw InternalInconsistencyException(QStringLiteral("Window was nil!"));
    (void)root.release();
    connectOutlets();
    awakeFromNib();
}

void LumivaneWindowController::connectOutlets() {
    QString error;
    const auto outlet = [&](const char* name, auto*& field) {
        Layout::connectOutlet(window_.get(), name, field, &error);
    };
    outlet("datePicker_", datePicker_);
    outlet("moonImageView_", moonImageView_);
    outlet("phaseName_", phaseName_);
    outlet("illumination_", illumination_);
    outlet("daysSinceNewMoon_", daysSinceNewMoon_);
    outlet("nextFullMoonName_", nextFullMoonName_);
    outlet("sunRiseSet_", sunRiseSet_);
    outlet("nauticalTwilight_", nauticalTwilight_);
    outlet("moonRiseSet_", moonRiseSet_);
    outlet("lunationSlider_", lunationSlider_);
    outlet("showNew_", showNew_);
    outlet("showQ1_", showQ1_);
    outlet("showFull_", showFull_);
    outlet("showQ3_", showQ3_);
    outlet("timeNew_", timeNew_);
    outlet("timeFirstQuarter_", timeFirstQuarter_);
    outlet("timeFull_", timeFull_);
    outlet("timeLastQuarter_", timeLastQuarter_);
    outlet("lunation_", lunation_);
    outlet("timeZonePopup_", timeZonePopup_);
    outlet("dtsSetting_", dtsSetting_);
    outlet("latitudeAndLongitudePopup_", latitudeAndLongitudePopup_);
    outlet("longitude_", longitude_);
    outlet("latitude_", latitude_);
    outlet("brightness_", brightness_);
    outlet("gearButton_", gearButton_);
    outlet("windoidButton_", windoidButton_);
    outlet("hideButton_", hideButton_);
    outlet("placeFromSystemSettings_", placeFromSystemSettings_);
    outlet("title_", title_);
    outlet("scrollArea_", scrollArea_);
    outlet("contentView_", contentView_);
    if (!error.isEmpty()) {
        logLine(error);
        throw InternalInconsistencyException(QStringLiteral("Can't load window LumivaneWindow"));
    }
}

void LumivaneWindowController::awakeFromNib() {
    const Clock::Hold oneMoment;
    originalSystemTimeZoneMenuTitle_ = placeFromSystemSettings_->text();
    gearButton_->setIcon(ControlIcon::icon(ControlIcon::Symbol::Gear));
    windoidButton_->setIcon(ControlIcon::icon(ControlIcon::Symbol::UtilityWindow));
    hideButton_->setIcon(ControlIcon::icon(ControlIcon::Symbol::Hide));
    title_->setVisible(!isWindoid()); // a windoid has it in its title bar
    makeMenus();
    giveKeys();
    prepareTimeZonePopup();
    connect(Preferences::standard(), &Preferences::valueChanged, this,
            &LumivaneWindowController::defaultsChanged);

    showPickerDate();
    ExtraWindowUtilities::setAlphaValue(window_.get(), 0.0F);
    dtsSetting_->setText(PanelModel::daylightSavingNote());
    ExtraSliderUtilities::setReverseMaxValue(lunationSlider_, static_cast<double>(kLargestFraction));
    ExtraSliderUtilities::setReverseMinValue(lunationSlider_, static_cast<double>(kSmallestFraction));
    setLunationSliderGMTSeconds(datePickerGMTSeconds());
    updateQuarterButtons();
    gKeepBlack = true;
    updateStaticMoonInfo();
    gKeepBlack = false;
    updateStaticMoonInfo();
    prepareTriangles();
}

void LumivaneWindowController::makeMenus() {
    gearMenu_ = new QMenu(window_.get());
    gearMenu_->addActions(commands_.actions());
    window_->addActions(commands_.actions()); // for their keys
    auto* placeMenu = new QMenu(latitudeAndLongitudePopup_);
    placeMenu->addActions(latitudeAndLongitudePopup_->actions());
    latitudeAndLongitudePopup_->setMenu(placeMenu);
    for (QMenu* menu : {gearMenu_, placeMenu}) {
        connect(menu, &QMenu::aboutToShow, this, [this, menu] {
            const QList<QAction*> items = menu->actions();
            for (QAction* item : items)
                validateMenuItem(item);
        });
    }
    connect(gearButton_, &QToolButton::clicked, this, [this] {
        const int x = gearButton_->isRightToLeft() ? gearButton_->width() - gearMenu_->sizeHint().width() : 0;
        gearMenu_->popup(gearButton_->mapToGlobal(QPoint(x, gearButton_->height())));
    });
}

void LumivaneWindowController::giveKeys() {
    const bool mirrored = window_->isRightToLeft();
    const std::pair<const char*, QKeySequence> keys[]{
        {"gearButton_", Qt::Key_F10},
        {"hideButton_", Qt::CTRL | Qt::Key_W},
        {"showNew_", Qt::ALT | Qt::Key_1},
        {"showQ1_", Qt::ALT | Qt::Key_2},
        {"showFull_", Qt::ALT | Qt::Key_3},
        {"showQ3_", Qt::ALT | Qt::Key_4},
        {"nowButton_", Qt::CTRL | Qt::Key_T},
        {"hourBack_", Qt::ALT | (mirrored ? Qt::Key_Right : Qt::Key_Left)},
        {"hourOn_", Qt::ALT | (mirrored ? Qt::Key_Left : Qt::Key_Right)},
        {"dayBack_", Qt::ALT | Qt::Key_PageUp},
        {"dayOn_", Qt::ALT | Qt::Key_PageDown},
        {"lunationBack_", Qt::ALT | Qt::SHIFT | Qt::Key_PageUp},
        {"lunationOn_", Qt::ALT | Qt::SHIFT | Qt::Key_PageDown},
    };
    for (const auto& [name, key] : keys) {
        auto* button = window_->findChild<QAbstractButton*>(QLatin1String(name));
        if (!button)
            continue;
        connect(new QShortcut(key, window_.get()), &QShortcut::activated, button, &QAbstractButton::click);
        const QString shown = key.toString(QKeySequence::NativeText);
        button->setToolTip(QStringLiteral("%1 (%2)").arg(button->toolTip(), shown));
        button->setAccessibleDescription(shown); // not the tool tip, which begins with the name
    }
    for (QWidget* field : std::initializer_list<QWidget*>{latitude_, longitude_, datePicker_})
        field->installEventFilter(this);
}

bool LumivaneWindowController::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride ||
        !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy))
        return QObject::eventFilter(watched, event);
    const auto* field = qobject_cast<QLineEdit*>(watched);
    if (!field)
        field = watched->findChild<QLineEdit*>(); // the date picker's
    if (field && field->hasSelectedText())
        return QObject::eventFilter(watched, event);
    event->ignore(); // the field would take the key and copy nothing
    return true;
}

void LumivaneWindowController::prepareTriangles() {
    window_->setContent(scrollArea_, contentView_);
    const auto triangles = contentView_->findChildren<DisclosureTriangleWithResize*>();
    for (DisclosureTriangleWithResize* triangle : triangles)
        triangle->awakeFromNib();
}

bool LumivaneWindowController::isWindoid() const {
    return window_->styleMask() != LumivaneWindow::kBorderlessMask;
}

void LumivaneWindowController::setStatusItem(LumivaneStatusItem* statusItem) {
    statusItem_ = statusItem;
    if (isWindoid()) {
        const QString back =
            Bundle::main().localizedString(QT_TRANSLATE_NOOP("Lumivane", "Back to the tray icon"));
        windoidButton_->setToolTip(back);
        windoidButton_->setAccessibleName(back);
    }
    updateForTray();
    connect(statusItem, &LumivaneStatusItem::trayKnown, this, &LumivaneWindowController::updateForTray);
    connect(window_.get(), &LumivaneWindow::windowWillClose, statusItem,
            &LumivaneStatusItem::windowWillClose);
    connect(window_.get(), &LumivaneWindow::cancelOperation, this, [this] {
        showStoredPlace();
        if (!isWindoid())
            hideButton(window_.get());
    });
}

void LumivaneWindowController::updateForTray() {
    // Without a tray there is no way back, neither from a window to a drop-down nor from hiding.
    const bool inTray = statusItem_->isInTray();
    windoidButton_->setVisible(!isWindoid() || inTray);
    const QString hide = Bundle::main().localizedString(inTray ? QT_TRANSLATE_NOOP("Lumivane", "Hide")
                                                               : QT_TRANSLATE_NOOP("Lumivane", "Quit"));
    hideButton_->setToolTip(QStringLiteral("%1 (%2)").arg(hide, hideButton_->accessibleDescription()));
    hideButton_->setAccessibleName(hide);
}

std::uint32_t LumivaneWindowController::applyDatePickerOffset(std::uint32_t seconds, int withMultiplier) {
    return PanelModel::applyPickerOffset(seconds, withMultiplier);
}

void LumivaneWindowController::setDatePickerGMTSeconds(std::int64_t gmtSeconds) {
    model_.moveTo(gmtSeconds);
    showPickerDate();
}

void LumivaneWindowController::showPickerDate() {
    const auto [first, last] = PanelModel::pickerRange();
    datePicker_->setDateRange(first, last);
    datePicker_->setDateValue(model_.pickerDate());
}

void LumivaneWindowController::setLunationSliderGMTSeconds(std::uint32_t gmtSeconds) {
    ExtraSliderUtilities::setReverseDoubleValue(lunationSlider_, PanelModel::fractionOf(gmtSeconds));
}

std::uint32_t LumivaneWindowController::lunationSliderGMTSeconds() const {
    return model_.momentAtFraction(ExtraSliderUtilities::reverseDoubleValue(lunationSlider_));
}

void LumivaneWindowController::showModel() {
    showPickerDate();
    setLunationSliderGMTSeconds(model_.moment());
    updateStaticMoonInfo();
}

void LumivaneWindowController::moveTo(std::int64_t gmtSeconds) {
    const Clock::Hold oneMoment;
    model_.moveTo(gmtSeconds);
    showModel();
}

void LumivaneWindowController::showNow(QObject*) {
    const Clock::Hold oneMoment;
    model_.moveToPresent();
    showModel();
}

void LumivaneWindowController::clockChanged(QObject*) {
    const Clock::Hold oneMoment;
    model_.setPickerDate(datePicker_->dateValue());
    setLunationSliderGMTSeconds(model_.moment());
    updateStaticMoonInfo();
}

void LumivaneWindowController::lunationSliderChanged(QObject*) {
    const Clock::Hold oneMoment;
    setDatePickerGMTSeconds(lunationSliderGMTSeconds());
    updateStaticMoonInfo();
}

void LumivaneWindowController::addTagToDatePicker(QObject* sender) {
    const Clock::Hold oneMoment;
    model_.moveByHours(Layout::tag(sender));
    showModel();
}

void LumivaneWindowController::addTagToLunation(QObject* sender) {
    const Clock::Hold oneMoment;
    model_.moveByLunations(Layout::tag(sender));
    showModel();
}

void LumivaneWindowController::phaseWithTag(QObject* sender) {
    const Clock::Hold oneMoment;
    model_.moveToPhase(Layout::tag(sender));
    showModel();
}
