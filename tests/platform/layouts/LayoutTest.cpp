// SPDX-License-Identifier: MIT
#include "platform/layouts/Layout.h"

#include "platform/layouts/FieldNote.h"
#include "platform/layouts/Slider.h"
#include "platform/preferences/Preferences.h"
#include "tests/Interaction.h"
#include "tests/TestMain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPushButton>
#include <QWheelEvent>

namespace {

constexpr PreferenceKey<float> kFloat{QLatin1String("LayoutFloat"), 1.5F, {-90.0F, 90.0F}};
constexpr PreferenceKey<bool> kBool{QLatin1String("LayoutBool"), true};
constexpr PreferenceKey<int> kType{QLatin1String("LayoutType"), 2};

Preferences* defaults() {
    return Preferences::standard();
}

class Owner : public QObject {
    Q_OBJECT

public:
    QList<QObject*> senders;
    QList<float> seen;
    bool notASlot(QObject*) { return true; }

public Q_SLOTS:
    void pushed(QObject* sender) {
        senders.append(sender);
        seen.append(defaults()->value(kFloat));
    }
    void withoutSender() {}
};

/// A control in a layout; `more` is its other properties.
QString control(const char* type, const char* name, const char* action = "", const char* binding = "",
                const char* more = "") {
    QString xml = u"<widget class=\"%1\" name=\"%2\">%3"_s.arg(QLatin1String(type), QLatin1String(name),
                                                               QLatin1String(more));
    for (const auto& [key, value] : {std::pair{"action", action}, {"binding", binding}}) {
        if (*value)
            xml += u"<property name=\"%1\" stdset=\"0\"><string notr=\"true\">%2</string></property>"_s.arg(
                QLatin1String(key), QLatin1String(value));
    }
    return xml + u"</widget>"_s;
}

class LayoutTest : public testing::Test {
protected:
    LayoutTest() {
        Layout::registerClass(u"Slider"_s, [](QWidget* parent) { return new Slider(parent); });
        defaults()->registerKey(kFloat);
        defaults()->registerKey(kBool);
        defaults()->registerKey(kType);
    }
    ~LayoutTest() override {
        defaults()->remove(kFloat);
        defaults()->remove(kBool);
        defaults()->remove(kType);
    }

    /// Loads a layout of these controls; why that can't be done.
    QString load(const QString& children, const char* start = "<ui version=\"4.0\">") {
        writeFile(resources_.path(u"Trial.ui"_s),
                  start + ("<class>Trial</class><widget class=\"QWidget\" name=\"Trial\">" +
                           children.toUtf8() + "</widget></ui>"));
        QString error;
        root_ = Layout::load(u"Trial"_s, &owner_, &error);
        EXPECT_EQ(root_ == nullptr, !error.isEmpty());
        return error;
    }

    template <typename T = QWidget>
    T* get(const char* name) {
        return root_->findChild<T*>(QLatin1String(name));
    }

    const OtherResources resources_;
    Owner owner_;
    std::unique_ptr<QWidget> root_;
};

} // namespace

TEST_F(LayoutTest, TellsWhyALayoutCannotBeLoaded) {
    for (const auto& [child, reason] :
         {std::pair{control("NoSuchClass", "a"), "NoSuchClass"},
          {control("QPushButton", "a", "notASlot"), "notASlot"},
          {control("QPushButton", "a", "withoutSender"), "withoutSender"},
          {control("QPushButton", "a", "", "LayoutBool"), "LayoutBool"}}) // it can't be checked
        EXPECT_TRUE(load(child).contains(QLatin1String(reason))) << reason;
    EXPECT_TRUE(load({}, "<ui><widget").contains(u"damaged"));
    QString error;
    EXPECT_EQ(Layout::load(u"Absent"_s, &owner_, &error), nullptr);
    EXPECT_TRUE(error.contains(u"Absent"));
}

TEST_F(LayoutTest, ABoundControlFollowsAndStoresItsPreference) {
    ASSERT_EQ(load(control("QCheckBox", "check", "", "LayoutBool") +
                   control("QComboBox", "box", "", "LayoutType") +
                   control("Slider", "slider", "pushed", "LayoutFloat",
                           "<property name=\"maxValue\"><double>50</double></property>")),
              QString());
    auto* check = get<QCheckBox>("check");
    EXPECT_TRUE(check->isChecked());
    defaults()->set(kBool, false);
    EXPECT_FALSE(check->isChecked());
    check->click();
    EXPECT_TRUE(defaults()->value(kBool));

    auto* box = get<QComboBox>("box");
    for (const int type : {1, 2, 3})
        box->addItem(QString::number(type), type);
    box->addItem(u"Other"_s);
    EXPECT_EQ(box->currentIndex(), 1);
    defaults()->set(kType, 3);
    EXPECT_EQ(box->currentIndex(), 2);
    press(box, Qt::Key_Down);
    EXPECT_EQ(defaults()->value(kType), 3) << "an entry without a number stores none";
    press(box, Qt::Key_Home);
    EXPECT_EQ(defaults()->value(kType), 1);

    auto* slider = get<Slider>("slider");
    EXPECT_EQ(slider->doubleValue(), 1.5);
    for (const float number : {40.0F, 80.0F}) {
        defaults()->set(kFloat, number);
        EXPECT_EQ(slider->doubleValue(), std::min(number, 50.0F));
    }
    EXPECT_TRUE(owner_.senders.isEmpty()) << "the preference's own changes send nothing";
    press(slider, Qt::Key_Home);
    EXPECT_EQ(owner_.seen, QList<float>{0}) << "the action sees what was stored";
}

TEST_F(LayoutTest, ABoundTextFieldTakesNumbersWithinTheRangeOnly) {
    ASSERT_EQ(load(control("QLineEdit", "field", "pushed", "LayoutFloat")), QString());
    auto* field = get<QLineEdit>("field");
    const auto type = [field](const char* text) {
        field->selectAll();
        press(field, Qt::Key_Backspace);
        for (const char* letter = text; *letter; ++letter)
            press(field, 0, QString(QLatin1Char(*letter)));
        press(field, Qt::Key_Return);
        deletePending();
    };
    EXPECT_EQ(field->text(), u"1.5");
    press(field, Qt::Key_Return);
    EXPECT_TRUE(owner_.senders.isEmpty()) << "nothing was changed";
    type(" -33.25 ");
    EXPECT_EQ(owner_.seen, QList<float>{-33.25F});
    EXPECT_EQ(field->text(), u"-33.25");
    for (const auto& [typed, reason] : {std::pair{"1,234", u"This is not a number. Example: 12.5"_s},
                                        {"90.5", u"90.5 is not between -90 and 90."_s}}) {
        type(typed);
        EXPECT_EQ(field->text(), u"-33.25") << typed;
        EXPECT_EQ(field->accessibleDescription(), reason) << typed;
        const auto notes = root_->findChildren<FieldNote*>();
        ASSERT_EQ(notes.size(), 1) << typed;
        EXPECT_EQ(notes.front()->text(), reason);
    }
    type("90");
    EXPECT_EQ(owner_.seen.size(), 2);
    EXPECT_TRUE(root_->findChildren<FieldNote*>().isEmpty()) << "it goes with the next edit";
    const InLocale german("de_DE");
    type("48,123455");
    EXPECT_EQ(field->text(), u"48,123455");
    EXPECT_EQ(field->cursorPosition(), 0);
    defaults()->set(kFloat, 5.4F);
    EXPECT_EQ(field->text(), u"5,4");
    showActive(root_.get());
    field->setFocus();
    ASSERT_TRUE(field->hasFocus());
    press(field, 0, u"7"_s);
    defaults()->set(kFloat, 3.0F);
    EXPECT_EQ(field->text(), u"75,4") << "what is being typed is not overwritten";
}

TEST_F(LayoutTest, TheWheelChangesOnlyTheControlThatHasTheFocus) {
    ASSERT_EQ(load(control("QComboBox", "box") + control("Slider", "slider") +
                   control("QDateTimeEdit", "date") + control("QPushButton", "elsewhere")),
              QString());
    get<QComboBox>("box")->addItems({u"a"_s, u"b"_s, u"c"_s});
    get<QSlider>("slider")->setValue(50);
    get<QDateTimeEdit>("date")->setDateTime(gmt(2026, 7, 15));
    showActive(root_.get());
    for (const char* name : {"box", "slider", "date"}) {
        auto* controlled = get(name);
        const auto value = [&] { return controlled->metaObject()->userProperty().read(controlled); };
        for (const bool focused : {false, true}) {
            get(focused ? name : "elsewhere")->setFocus();
            ASSERT_EQ(controlled->hasFocus(), focused);
            const QVariant before = value();
            QWheelEvent event({1, 1}, {1, 1}, {0, -40}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            QApplication::sendEvent(controlled, &event);
            EXPECT_EQ(event.isAccepted(), focused) << name << ": else what lies around gets it";
            EXPECT_EQ(value() != before, focused) << name;
        }
    }
}

#include "LayoutTest.moc"
