// SPDX-License-Identifier: MIT
#include "platform/layouts/Layout.h"

#include "platform/layouts/FieldNote.h"
#include "platform/layouts/Slider.h"
#include "platform/preferences/Preferences.h"
#include "tests/Interaction.h"
#include "tests/TestMain.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPushButton>
#include <QSlider>
#include <QTemporaryDir>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace {

class Owner : public QObject {
    Q_OBJECT

public:
    QList<QObject*> senders;
    QList<float> seen;
    bool notASlot(QObject*) { return true; }

public Q_SLOTS:
    void pushed(QObject* sender) {
        senders.append(sender);
        seen.append(Preferences::standard()->floatForKey(QStringLiteral("NibFloat")));
    }
    void withoutSender() {}
};

QString control(const char* type, const char* name, const char* action, const char* binding = nullptr,
                const char* more = "") {
    QString xml =
        QStringLiteral("<widget class=\"%1\" name=\"%2\">").arg(QLatin1String(type), QLatin1String(name));
    const auto add = [&xml](const char* key, const char* value) {
        if (value)
            xml += QStringLiteral(
                       "<property name=\"%1\" stdset=\"0\"><string notr=\"true\">%2</string></property>")
                       .arg(QLatin1String(key), QLatin1String(value));
    };
    add("action", action);
    add("binding", binding);
    return xml + QLatin1String(more) + QStringLiteral("</widget>");
}

class LayoutTest : public testing::Test {
protected:
    LayoutTest() {
        Layout::registerClass(QStringLiteral("Slider"), [](QWidget* parent) { return new Slider(parent); });
        defaults()->registerKey(PreferenceKey<float>{QLatin1String("NibFloat"), 1.5F});
        defaults()->registerKey(PreferenceKey<bool>{QLatin1String("NibBool"), true});
        defaults()->registerKey(PreferenceKey<int>{QLatin1String("NibType"), 2});
    }
    ~LayoutTest() override {
        for (const QString& key :
             {QStringLiteral("NibFloat"), QStringLiteral("NibBool"), QStringLiteral("NibType")})
            defaults()->removeObjectForKey(key);
    }

    static Preferences* defaults() { return Preferences::standard(); }

    void write(const QByteArray& text) {
        QFile file(folder_.filePath(QStringLiteral("Trial.ui")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    bool load(const QString& children) {
        write("<?xml version=\"1.0\"?><ui version=\"4.0\"><class>Trial</class>"
              "<widget class=\"QWidget\" name=\"Trial\">" +
              children.toUtf8() + "</widget></ui>");
        error_.clear();
        root_ = Layout::load(QStringLiteral("Trial"), &owner_, &error_);
        return root_ != nullptr;
    }

    template <typename T>
    T* get(const char* name) {
        T* object = nullptr;
        EXPECT_TRUE(Layout::connectOutlet(root_.get(), name, object, &error_)) << error_.toStdString();
        return object;
    }

    bool reasonHolds(const char* part) const { return error_.contains(QLatin1String(part)); }

    const QTemporaryDir folder_;
    const WithEnvironment resources_{"LUMIVANE_RESOURCES", folder_.path().toLocal8Bit()};
    Owner owner_;
    QString error_;
    std::unique_ptr<QWidget> root_;
};

} // namespace

TEST_F(LayoutTest, TellsWhyALayoutCannotBeLoaded) {
    EXPECT_EQ(Layout::load(QStringLiteral("Absent"), &owner_, &error_), nullptr);
    EXPECT_TRUE(reasonHolds("Absent"));

    write("<ui version=\"4.0\"><widget class=\"QWidget\"");
    error_.clear();
    EXPECT_EQ(Layout::load(QStringLiteral("Trial"), &owner_, &error_), nullptr);
    EXPECT_TRUE(reasonHolds("damaged")) << error_.toStdString();

    EXPECT_FALSE(load(control("NoSuchClass", "a", nullptr)));
    EXPECT_TRUE(reasonHolds("NoSuchClass"));
    for (const char* action : {"nothing", "notASlot", "withoutSender"}) {
        EXPECT_FALSE(load(control("QPushButton", "a", action))) << action;
        EXPECT_TRUE(reasonHolds(action)) << error_.toStdString();
    }
    EXPECT_FALSE(load(control("QLabel", "a", "pushed")));
    EXPECT_FALSE(load(control("QPushButton", "a", nullptr, "NibBool"))) << "it can't be checked";
    // The caller may not want to know.
    EXPECT_EQ(Layout::load(QStringLiteral("Trial"), &owner_, nullptr), nullptr);
}

TEST_F(LayoutTest, OutletsAreFoundByNameAndType) {
    ASSERT_TRUE(load(control("QPushButton", "button_", nullptr)));
    EXPECT_EQ(get<QPushButton>("button_"), get<QAbstractButton>("button_"));
    EXPECT_EQ(get<QWidget>("Trial"), root_.get());

    QSlider* slider = nullptr;
    EXPECT_FALSE(Layout::connectOutlet(root_.get(), "button_", slider, &error_));
    EXPECT_TRUE(reasonHolds("QSlider"));
    EXPECT_FALSE(Layout::connectOutlet(root_.get(), "slider_", slider, &error_));
    EXPECT_TRUE(reasonHolds("slider_"));
    EXPECT_EQ(slider, nullptr);
}

TEST_F(LayoutTest, ChangesByTheUserReachTheSlot) {
    ASSERT_TRUE(load(control("QPushButton", "button", "pushed", nullptr,
                             "<property name=\"tag\" stdset=\"0\"><number>-7</number></property>") +
                     control("QComboBox", "box", "pushed") + control("Slider", "slider", "pushed") +
                     control("QDateTimeEdit", "date", "pushed") + control("QLineEdit", "field", "pushed") +
                     QStringLiteral("<action name=\"item\"><property name=\"action\" stdset=\"0\">"
                                    "<string notr=\"true\">pushed</string></property></action>")))
        << error_.toStdString();
    EXPECT_EQ(Layout::tag(get<QPushButton>("button")), -7);
    EXPECT_EQ(Layout::tag(get<QComboBox>("box")), 0);

    auto* box = get<QComboBox>("box");
    box->addItems({QStringLiteral("a"), QStringLiteral("b")});
    auto* field = get<QLineEdit>("field");
    field->setText(QStringLiteral("by the program"));
    press(field, Qt::Key_Return);
    EXPECT_TRUE(owner_.senders.isEmpty()) << "nothing was done by the user";

    get<QPushButton>("button")->click();
    press(box, Qt::Key_Down);
    press(get<QSlider>("slider"), Qt::Key_Up);
    get<QDateTimeEdit>("date")->stepBy(1);
    press(field, Qt::Key_X, QStringLiteral("x"));
    press(field, Qt::Key_Return);
    press(field, Qt::Key_Return);
    get<QAction>("item")->trigger();
    EXPECT_EQ(owner_.senders, (QList<QObject*>{get<QObject>("button"), box, get<QObject>("slider"),
                                               get<QObject>("date"), field, get<QObject>("item")}));
}

TEST_F(LayoutTest, ABoundControlFollowsAndStoresItsPreference) {
    ASSERT_TRUE(load(control("QCheckBox", "check", nullptr, "NibBool") +
                     control("QComboBox", "box", nullptr, "NibType") +
                     control("Slider", "slider", "pushed", "NibFloat",
                             "<property name=\"maxValue\"><double>50</double></property>")))
        << error_.toStdString();
    auto* check = get<QCheckBox>("check");
    EXPECT_TRUE(check->isChecked());
    defaults()->setBool(false, QStringLiteral("NibBool"));
    EXPECT_FALSE(check->isChecked());
    check->click();
    EXPECT_TRUE(defaults()->boolForKey(QStringLiteral("NibBool")));

    auto* box = get<QComboBox>("box");
    for (const int type : {1, 2, 3})
        box->addItem(QString::number(type), type);
    box->addItem(QStringLiteral("Other"));
    EXPECT_EQ(box->currentIndex(), 1);
    defaults()->setInteger(3, QStringLiteral("NibType"));
    EXPECT_EQ(box->currentIndex(), 2);
    press(box, Qt::Key_Down);
    EXPECT_EQ(defaults()->integerForKey(QStringLiteral("NibType")), 3)
        << "an entry without a number stores none";
    press(box, Qt::Key_Home);
    EXPECT_EQ(defaults()->integerForKey(QStringLiteral("NibType")), 1);

    auto* slider = get<Slider>("slider");
    EXPECT_EQ(slider->doubleValue(), 1.5);
    defaults()->setFloat(40, QStringLiteral("NibFloat"));
    EXPECT_EQ(slider->doubleValue(), 40);
    EXPECT_TRUE(owner_.senders.isEmpty()) << "the preference's own changes send nothing";
    defaults()->setFloat(1e9F, QStringLiteral("NibFloat"));
    EXPECT_EQ(slider->doubleValue(), 50);
    press(slider, Qt::Key_Home);
    EXPECT_EQ(owner_.seen, QList<float>{0}) << "the action sees what was stored";
}

TEST_F(LayoutTest, ABoundTextFieldTakesNumbersWithinTheRangeOnly) {
    defaults()->registerKey(PreferenceKey<float>{QLatin1String("NibFloat"), 1.5F, {-90.0F, 90.0F}});
    ASSERT_TRUE(load(control("QLineEdit", "field", "pushed", "NibFloat"))) << error_.toStdString();
    auto* field = get<QLineEdit>("field");
    const auto type = [field](const char* text) {
        field->selectAll();
        press(field, Qt::Key_Backspace);
        for (const char* letter = text; *letter; ++letter)
            press(field, 0, QString(QLatin1Char(*letter)));
        press(field, Qt::Key_Return);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    EXPECT_EQ(field->text(), u"1.5");
    type(" -33.25 ");
    EXPECT_EQ(owner_.seen, QList<float>{-33.25F});
    EXPECT_EQ(field->text(), u"-33.25");
    const QString noNumber = QStringLiteral("This is not a number. Example: 12.5");
    for (const auto& [typed, reason] :
         {std::pair{"north", noNumber}, std::pair{"", noNumber}, std::pair{"1,234", noNumber},
          std::pair{"nan", noNumber}, std::pair{"1e99", noNumber},
          std::pair{"90.5", QStringLiteral("90.5 is not between -90 and 90.")},
          std::pair{"-1000", QStringLiteral("-1000 is not between -90 and 90.")}}) {
        type(typed);
        EXPECT_EQ(field->text(), u"-33.25") << typed;
        EXPECT_EQ(field->accessibleDescription(), reason) << typed;
        const auto notes = root_->findChildren<FieldNote*>();
        ASSERT_EQ(notes.size(), 1) << typed;
        EXPECT_EQ(notes.front()->text(), reason);
    }
    EXPECT_EQ(owner_.seen.size(), 1);
    type("90");
    EXPECT_EQ(owner_.seen.size(), 2);
    EXPECT_TRUE(root_->findChildren<FieldNote*>().isEmpty()) << "it goes with the next edit";
    EXPECT_TRUE(field->accessibleDescription().isEmpty());

    QLocale::setDefault(QLocale(QLocale::German));
    type("48,123455");
    EXPECT_EQ(field->text(), u"48,123455");
    EXPECT_EQ(field->cursorPosition(), 0);
    EXPECT_EQ(defaults()->floatForKey(QStringLiteral("NibFloat")), 48.123455F);
    defaults()->setFloat(5.4F, QStringLiteral("NibFloat"));
    EXPECT_EQ(field->text(), u"5,4");

    root_->show();
    root_->activateWindow();
    QApplication::processEvents();
    field->setFocus();
    ASSERT_TRUE(field->hasFocus());
    press(field, 0, QStringLiteral("7"));
    defaults()->setFloat(3.0F, QStringLiteral("NibFloat"));
    EXPECT_EQ(field->text(), u"75,4") << "what is being typed is not overwritten";
    QLocale::setDefault(QLocale::system());
}

TEST_F(LayoutTest, TheWheelChangesOnlyTheControlThatHasTheFocus) {
    ASSERT_TRUE(load(control("QComboBox", "box", nullptr) + control("QSlider", "slider", nullptr) +
                     control("QDoubleSpinBox", "number", nullptr) +
                     control("QDateTimeEdit", "date", nullptr) +
                     control("QPushButton", "elsewhere", nullptr)))
        << error_.toStdString();
    get<QComboBox>("box")->addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    get<QSlider>("slider")->setValue(50);
    get<QDoubleSpinBox>("number")->setValue(50);
    get<QDateTimeEdit>("date")->setDateTime(gmt(2026, 7, 15));
    root_->show();
    root_->activateWindow();
    QApplication::processEvents();
    // A notched wheel, and a touchpad's gesture.
    using Turn = std::pair<QPoint, Qt::ScrollPhase>;
    const QList<QList<Turn>> gestures{{{{0, -120}, Qt::NoScrollPhase}},
                                      {{{0, -60}, Qt::ScrollBegin}, {{0, -60}, Qt::ScrollUpdate}}};
    for (const char* name : {"box", "slider", "number", "date"}) {
        SCOPED_TRACE(name);
        auto* controlled = get<QWidget>(name);
        const auto value = [&] { return controlled->metaObject()->userProperty().read(controlled); };
        for (const QList<Turn>& gesture : gestures) {
            for (const bool focused : {false, true}) {
                get<QWidget>(focused ? name : "elsewhere")->setFocus();
                ASSERT_EQ(controlled->hasFocus(), focused);
                const QVariant before = value();
                for (const auto& [angle, phase] : gesture) {
                    QWheelEvent event({1, 1}, {1, 1}, angle / 3, angle, Qt::NoButton, Qt::NoModifier, phase,
                                      false);
                    QApplication::sendEvent(controlled, &event);
                    EXPECT_EQ(event.isAccepted(), focused) << "else what lies around gets it";
                }
                EXPECT_EQ(value() != before, focused);
            }
        }
        EXPECT_EQ(controlled->focusPolicy(), Qt::StrongFocus);
    }
}

#include "LayoutTest.moc"
