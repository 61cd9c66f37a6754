// SPDX-License-Identifier: MIT
#pragma once

#include "app/model/PanelModel.h"

#include <QImage>
#include <QObject>

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>

class AskNumber;
class DisclosureTriangleWithResize;
class LumivaneStatusItem;
class LumivaneWindow;
class PanelCommands;
class MouseDownButton;
class DatePicker;
class Slider;
class QAbstractButton;
class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QScrollArea;
class QToolButton;
class QWidget;

/// Runs the information panel, which shows the Moon for one chosen moment, the displayed date: it carries
/// what the controls say to the `PanelModel` and what the model says to the controls. Moments are in GMT
/// seconds.
class LumivaneWindowController : public QObject {
    Q_OBJECT

public:
    /// A new controller with its panel loaded and not visible, in the window style `styleMask`; `commands`,
    /// which its gear menu shows, outlive it. When the layout can't be loaded, which is taken as a sign that
    /// the program was moved while it runs, the user is told and the program ends with status 1.
    static std::unique_ptr<LumivaneWindowController> lumivaneWindowController(PanelCommands& commands,
                                                                              std::uint32_t styleMask);
    ~LumivaneWindowController() override;

    /// The name of the picture for a moment: "M07".
    static QString moonImageNameFor(std::uint32_t gmtSeconds);

    /// The picture for a moment, tinted grey or, in a blue moon's lunation, blue by LVBrightness, and turned
    /// for a place south of the equator. Empty when the resource is missing.
    static QImage moonImageFor(std::uint32_t gmtSeconds);

    void setStatusItem(LumivaneStatusItem* statusItem);
    LumivaneWindow* window() const { return window_.get(); }
    QMenu* gearMenu() const { return gearMenu_; }
    const PanelModel& model() const { return model_; }
    bool isWindoid() const;

    /// Hides a drop-down; a utility window stays.
    void putDropDownAway();

    void updateStaticMoonInfo();
    void updateMoonImage();
    void updateQuarterButtons();

    /// The displayed date. What is set comes back to the second for every zone type; a moment outside the
    /// table is held at its nearest end.
    std::uint32_t datePickerGMTSeconds() const { return model_.moment(); }
    void setDatePickerGMTSeconds(std::int64_t gmtSeconds);

    /// Moves the panel to a moment, held inside the table.
    void moveTo(std::int64_t gmtSeconds);

    /// The moment of the slider's knob within the displayed date's lunation.
    std::uint32_t lunationSliderGMTSeconds() const;
    void setLunationSliderGMTSeconds(std::uint32_t gmtSeconds);

    /// The picker shows the system's zone; this shifts `seconds` by how far the chosen zone lies behind it,
    /// times `withMultiplier`.
    static std::uint32_t applyDatePickerOffset(std::uint32_t seconds, int withMultiplier);

    /// Lets the key for copying copy the information where a text field has nothing selected.
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// Brings a command's check mark and title up to date. Every command may be used.
    bool validateMenuItem(QAction* item);

public Q_SLOTS:
    // The displayed date
    void clockChanged(QObject* sender);
    void lunationSliderChanged(QObject* sender);
    void addTagToDatePicker(QObject* sender);
    void addTagToLunation(QObject* sender);
    void phaseWithTag(QObject* sender);
    void showNow(QObject* sender);

    // Settings
    void timeZoneChanged(QObject* sender);
    void timeZoneOther(QObject* sender);
    void latitudeAndLongitudeFromSystemSettings(QObject* sender);
    void latitudeAndLongitudeFromCity(QObject* sender);
    void latitudeAndLongitudeFromWeb(QObject* sender);
    void latitudeOrLongitudeChange(QObject* sender);
    void brightness(QObject* sender);

    // Commands
    void windoid(QObject* sender);
    void hideButton(QObject* sender);
    void runAtLogin(QObject* sender);
    void checkForUpdate(QObject* sender);
    void lumivaneHomePage(QObject* sender);
    void copyMoonToClipboard(QObject* sender);
    void showAbout(QObject* sender);
    void terminate(QObject* sender);

private:
    explicit LumivaneWindowController(PanelCommands& commands);

    void loadWindow(std::uint32_t styleMask);
    void connectOutlets();
    void awakeFromNib();
    void makeMenus();
    void giveKeys();
    void prepareTimeZonePopup();
    void prepareTriangles();
    void defaultsChanged(const QString& key);
    void askTimeZoneDidEnd(const QString& text, AskNumber* dialog);
    void selectTimeZoneEntry(int type);
    void updateForTray();
    void storePlace(double latitude, double longitude);
    void showStoredPlace();
    void showModel();
    void showPickerDate();

    PanelCommands& commands_;
    QString originalSystemTimeZoneMenuTitle_;
    LumivaneStatusItem* statusItem_ = nullptr;
    std::unique_ptr<LumivaneWindow> window_;
    PanelModel model_;
    /// What the panel's picture is made of, and for how many pixels in a point.
    std::optional<std::pair<PanelModel::Picture, qreal>> shownPicture_;

    // Outlets
    QMenu* gearMenu_ = nullptr;
    DatePicker* datePicker_ = nullptr;
    QLabel* moonImageView_ = nullptr;
    QLabel* phaseName_ = nullptr;
    QLabel* illumination_ = nullptr;
    QLabel* daysSinceNewMoon_ = nullptr;
    QLabel* nextFullMoonName_ = nullptr;
    QLabel* sunRiseSet_ = nullptr;
    QLabel* nauticalTwilight_ = nullptr;
    QLabel* moonRiseSet_ = nullptr;
    Slider* lunationSlider_ = nullptr;
    QToolButton* showNew_ = nullptr;
    QToolButton* showQ1_ = nullptr;
    QToolButton* showFull_ = nullptr;
    QToolButton* showQ3_ = nullptr;
    QLabel* timeNew_ = nullptr;
    QLabel* timeFirstQuarter_ = nullptr;
    QLabel* timeFull_ = nullptr;
    QLabel* timeLastQuarter_ = nullptr;
    QLabel* lunation_ = nullptr;
    QComboBox* timeZonePopup_ = nullptr;
    QLabel* dtsSetting_ = nullptr;
    QPushButton* latitudeAndLongitudePopup_ = nullptr;
    QLineEdit* longitude_ = nullptr;
    QLineEdit* latitude_ = nullptr;
    Slider* brightness_ = nullptr;
    MouseDownButton* gearButton_ = nullptr;
    QToolButton* windoidButton_ = nullptr;
    QToolButton* hideButton_ = nullptr;
    QLabel* title_ = nullptr;
    QAction* placeFromSystemSettings_ = nullptr;
    QScrollArea* scrollArea_ = nullptr;
    QWidget* contentView_ = nullptr;
};
