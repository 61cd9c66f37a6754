// SPDX-License-Identifier: MIT
#include "app/ui/LumivaneWindowController.h"

#include "app/engine/CMoon.h"
#include "app/engine/CMoonHelper.h"
#include "app/ui/ControlIcon.h"
#include "app/ui/LumivaneStatusItem.h"
#include "app/ui/LumivaneWindow.h"
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
#include "shared/utilities/classes/values/ExtraDateUtilities.h"

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

#include <algorithm>
#include <cstdlib>

namespace {

// The lunation's ends lie outside the slider: its own value is the negated fraction of the lunation.
constexpr float kLargestFraction = 0.975F;
constexpr float kSmallestFraction = 0.025F;

constexpr std::int64_t kSecondsPerHour = 3600;

std::uint32_t firstMoment() {
    return gMoon.FindLunationAtIndex(0)->newMoon;
}

std::uint32_t lastMoment() {
    return gMoon.FindLunationAtIndex(kLunationCount - 1)->nextNewMoon - 1;
}

std::uint32_t insideTable(std::int64_t gmtSeconds) {
    return static_cast<std::uint32_t>(
        std::clamp<std::int64_t>(gmtSeconds, std::int64_t{firstMoment()}, std::int64_t{lastMoment()}));
}

/// The picker's instant for a moment in GMT seconds.
QDateTime pickerDate(std::uint32_t gmtSeconds) {
    const auto wallClock = gmtSeconds + static_cast<std::uint32_t>(CMoonHelper::GetGMTOffset());
    return ExtraDateUtilities::dateWithCarbonSecondsGMT(
        LumivaneWindowController::applyDatePickerOffset(wallClock, -1));
}

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
LumivaneWindowController::lumivaneWindowController(Shell& shell, std::uint32_t styleMask) {
    try {
        std::unique_ptr<LumivaneWindowController> controller(new LumivaneWindowController(shell));
        controller->loadWindow(styleMask);
        controller->window_->hide();
        return controller;
    } catch (const InternalInconsistencyException& exception) {
        quitBecauseMoved(exception.reason());
    }
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

    setDatePickerGMTSeconds(presentGMTSeconds());
    ExtraWindowUtilities::setAlphaValue(window_.get(), 0.0F);
    dtsSetting_->setText(Bundle::main().localizedString(
        CMoonHelper::DaylightSavingsIsOn()
            ? QT_TRANSLATE_NOOP("Lumivane", "(DST is on for this session.)")
            : QT_TRANSLATE_NOOP("Lumivane", "(DST is off for this session.)")));
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
    gearMenu_->addActions(window_->actions());
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
    for (QAction* command : window_->actions())
        command->setShortcutContext(Qt::WindowShortcut);
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

std::uint32_t LumivaneWindowController::presentGMTSeconds(bool* outOfRange) {
    const std::int64_t present = Clock::now().toSecsSinceEpoch() - ExtraDateUtilities::kReferenceInstant;
    const std::uint32_t held = insideTable(present);
    if (outOfRange)
        *outOfRange = held != present;
    return held;
}

std::uint32_t LumivaneWindowController::applyDatePickerOffset(std::uint32_t seconds, int withMultiplier) {
    // How far the chosen zone lies behind the system's; in the system's own zone there is nothing to shift.
    const int offset = CMoonHelper::prefZoneType() == kTimeZoneSystem
                           ? 0
                           : CMoonHelper::GetGMTOffset() - CMoonHelper::prefZoneOffset();
    return seconds + static_cast<std::uint32_t>(offset) * static_cast<std::uint32_t>(withMultiplier);
}

void LumivaneWindowController::setDatePickerGMTSeconds(std::int64_t gmtSeconds) {
    updateDateRange();
    datePicker_->setDateValue(pickerDate(insideTable(gmtSeconds)));
}

std::uint32_t LumivaneWindowController::datePickerGMTSeconds() const {
    const std::uint32_t wallClock = ExtraDateUtilities::carbonSecondsGMT(datePicker_->dateValue());
    return insideTable(applyDatePickerOffset(wallClock, +1) -
                       static_cast<std::uint32_t>(CMoonHelper::GetGMTOffset()));
}

void LumivaneWindowController::updateDateRange() {
    const QDateTime first = pickerDate(firstMoment());
    const QDateTime last = pickerDate(lastMoment());
    if (first < last)
        datePicker_->setDateRange(first, last);
    else // an offset of weeks, which wraps the count within the table
        datePicker_->setDateRange(ExtraDateUtilities::dateWithCarbonSeconds1(0).addDays(-1),
                                  ExtraDateUtilities::dateWithCarbonSeconds1(~0U).addDays(1));
}

void LumivaneWindowController::setLunationSliderGMTSeconds(std::uint32_t gmtSeconds) {
    const std::uint32_t held = insideTable(gmtSeconds);
    const tLunation* lunation = gMoon.FindLunationForGMTSeconds(held);
    const double fraction = static_cast<double>(held - lunation->newMoon) / lunation->length;
    ExtraSliderUtilities::setReverseDoubleValue(lunationSlider_, fraction);
}

std::uint32_t LumivaneWindowController::lunationSliderGMTSeconds() const {
    const tLunation* lunation = gMoon.FindLunationForGMTSeconds(datePickerGMTSeconds());
    return static_cast<std::uint32_t>(
        lunation->length * ExtraSliderUtilities::reverseDoubleValue(lunationSlider_) + lunation->newMoon);
}

void LumivaneWindowController::moveTo(std::int64_t gmtSeconds) {
    const std::uint32_t moment = insideTable(gmtSeconds);
    presentIsOutOfRange_ = false;
    setDatePickerGMTSeconds(moment);
    setLunationSliderGMTSeconds(moment);
    updateStaticMoonInfo();
}

void LumivaneWindowController::showNow(QObject*) {
    const Clock::Hold oneMoment;
    bool outOfRange = false;
    const std::uint32_t present = presentGMTSeconds(&outOfRange);
    presentIsOutOfRange_ = outOfRange;
    setDatePickerGMTSeconds(present);
    setLunationSliderGMTSeconds(present);
    updateStaticMoonInfo();
}

void LumivaneWindowController::clockChanged(QObject*) {
    const Clock::Hold oneMoment;
    presentIsOutOfRange_ = false;
    setLunationSliderGMTSeconds(datePickerGMTSeconds());
    updateStaticMoonInfo();
}

void LumivaneWindowController::lunationSliderChanged(QObject*) {
    const Clock::Hold oneMoment;
    presentIsOutOfRange_ = false;
    setDatePickerGMTSeconds(lunationSliderGMTSeconds());
    updateStaticMoonInfo();
}

void LumivaneWindowController::addTagToDatePicker(QObject* sender) {
    const Clock::Hold oneMoment;
    moveTo(std::int64_t{datePickerGMTSeconds()} + Layout::tag(sender) * kSecondsPerHour);
}

void LumivaneWindowController::addTagToLunation(QObject* sender) {
    const Clock::Hold oneMoment;
    const int index = gMoon.GetLunation(datePickerGMTSeconds()) + Layout::tag(sender);
    moveTo(gMoon.FindLunationAtIndex(std::clamp(index, 0, kLunationCount - 1))->fullMoon);
}

void LumivaneWindowController::phaseWithTag(QObject* sender) {
    const Clock::Hold oneMoment;
    const auto tag = static_cast<std::size_t>(Layout::tag(sender));
    const tLunation* lunation = gMoon.FindLunationForGMTSeconds(datePickerGMTSeconds());
    moveTo(lunation->*kPhaseInstants[tag < kPhaseInstants.size() ? tag : 0]);
}
