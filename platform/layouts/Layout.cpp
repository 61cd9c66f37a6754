// SPDX-License-Identifier: MIT
#include "platform/layouts/Layout.h"

#include "platform/bundle/Bundle.h"
#include "platform/files/RegularFile.h"
#include "platform/layouts/FieldNote.h"
#include "platform/layouts/Mnemonics.h"
#include "platform/layouts/Slider.h"
#include "platform/locale/NumberFormatter.h"
#include "platform/preferences/Preferences.h"

#include <QAbstractButton>
#include <QAbstractItemModel>
#include <QAbstractSpinBox>
#include <QAction>
#include <QBuffer>
#include <QComboBox>
#include <QCoreApplication>
#include <QDateTimeEdit>
#include <QEvent>
#include <QHash>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPointer>
#include <QScrollBar>
#include <QUiLoader>

#include <optional>
#include <utility>

namespace {

constexpr qint64 kLargestLayout = 4 << 20;
constexpr char kAction[] = "action";
constexpr char kBinding[] = "binding";

QHash<QString, Layout::Factory>& factories() {
    static QHash<QString, Layout::Factory> registered;
    return registered;
}

void addReason(QString* error, const QString& reason) {
    *error += (error->isEmpty() ? QString() : QStringLiteral(" ")) + reason;
}

/// A new QUiLoader loads every widget plugin that Qt Designer has on this machine, and their libraries with
/// them. While one of these lives it finds none.
class NoPlugins {
public:
    NoPlugins() { QCoreApplication::setLibraryPaths({}); }
    ~NoPlugins() { QCoreApplication::setLibraryPaths(paths_); }
    NoPlugins(const NoPlugins&) = delete;
    NoPlugins& operator=(const NoPlugins&) = delete;

private:
    const QStringList paths_ = QCoreApplication::libraryPaths();
};

class Loader : public QUiLoader {
public:
    explicit Loader(const NoPlugins& = {}) {}

    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override {
        QWidget* widget = nullptr;
        if (const auto factory = factories().constFind(className); factory != factories().constEnd())
            widget = (*factory)(parent);
        else if (known_.contains(className))
            return QUiLoader::createWidget(className, parent, name);
        if (!widget) {
            unknownClasses.append(className);
            widget = new QWidget(parent);
        }
        widget->setObjectName(name);
        return widget;
    }

    QStringList unknownClasses;

private:
    const QStringList known_ = availableWidgets();
};

/// Why a field's text is not taken; empty for a number within `range`.
QString refusal(const QString& text, const PreferenceRange& range) {
    const Bundle& bundle = Bundle::main();
    const auto number = NumberFormatter::number(text);
    if (!number)
        return bundle.localizedString(QT_TRANSLATE_NOOP("Lumivane", "This is not a number. Example: %1"))
            .arg(NumberFormatter::string(12.5F));
    if (*number >= range.smallest && *number <= range.largest)
        return {};
    return bundle.localizedString(QT_TRANSLATE_NOOP("Lumivane", "%1 is not between %2 and %3."))
        .arg(NumberFormatter::string(*number), NumberFormatter::string(range.smallest),
             NumberFormatter::string(range.largest));
}

/// How a control's value and the preference that it is bound to become each other.
struct Value {
    /// False when the preference does not take the value; the control then shows the old one.
    std::function<bool(Preferences&, const QString& key)> store;
    std::function<void(const Preferences&, const QString& key)> fill;
};

template <typename Switch>
std::optional<Value> switchValue(Switch* control) {
    if (!control->isCheckable())
        return std::nullopt;
    return Value{[control](Preferences& defaults, const QString& key) {
                     defaults.setBool(control->isChecked(), key);
                     return true;
                 },
                 [control](const Preferences& defaults, const QString& key) {
                     control->setChecked(defaults.boolForKey(key));
                 }};
}

Value choiceValue(QComboBox* box) {
    return {[box](Preferences& defaults, const QString& key) {
                if (const QVariant value = box->currentData(); value.isValid())
                    defaults.setInteger(value.toInt(), key);
                return true;
            },
            [box](const Preferences& defaults, const QString& key) {
                if (const int index = box->findData(defaults.integerForKey(key)); index >= 0)
                    box->setCurrentIndex(index);
            }};
}

void showNumber(QLineEdit* field, float number) {
    field->setText(NumberFormatter::string(number));
    field->setCursorPosition(0); // a long number is read from its start
}

/// Whether a field loses the focus because its window is hidden, or even deleted: no place for a note.
bool isGoing(const QWidget* field) {
    return field->isVisible() && !field->window()->testAttribute(Qt::WA_Mapped);
}

Value numberValue(QLineEdit* field) {
    return {[field](Preferences& defaults, const QString& key) {
                const QString reason = refusal(field->text(), defaults.rangeForKey(key));
                if (reason.isEmpty())
                    defaults.setFloat(NumberFormatter::number(field->text()).value_or(0.0F), key);
                showNumber(field, defaults.floatForKey(key));
                if (!reason.isEmpty() && !isGoing(field))
                    FieldNote::showAt(field, reason);
                return reason.isEmpty();
            },
            [field](const Preferences& defaults, const QString& key) {
                // What is being typed is not overwritten.
                if (!field->isModified() || !field->hasFocus())
                    showNumber(field, defaults.floatForKey(key));
            }};
}

Value sliderValue(Slider* slider) {
    return {[slider](Preferences& defaults, const QString& key) {
                defaults.setFloat(static_cast<float>(slider->doubleValue()), key);
                return true;
            },
            [slider](const Preferences& defaults, const QString& key) {
                slider->setDoubleValue(static_cast<double>(defaults.floatForKey(key)));
            }};
}

std::optional<Value> valueOf(QObject* control) {
    if (auto* button = qobject_cast<QAbstractButton*>(control))
        return switchValue(button);
    if (auto* action = qobject_cast<QAction*>(control))
        return switchValue(action);
    if (auto* box = qobject_cast<QComboBox*>(control))
        return choiceValue(box);
    if (auto* field = qobject_cast<QLineEdit*>(control))
        return numberValue(field);
    if (auto* slider = qobject_cast<Slider*>(control))
        return sliderValue(slider);
    return std::nullopt;
}

/// Carries a user's change of one control to its preference and its owner's slot, and a change of the
/// preference to the control. Child of the control.
class ControlTie : public QObject {
public:
    ControlTie(QObject* control, QObject* owner) : QObject(control), control_(control), owner_(owner) {}

    bool setAction(const QString& name) {
        const QByteArray signature =
            QMetaObject::normalizedSignature((name.toUtf8() + "(QObject*)").constData());
        const int index = owner_ ? owner_->metaObject()->indexOfSlot(signature.constData()) : -1;
        if (index >= 0)
            slot_ = owner_->metaObject()->method(index);
        return index >= 0;
    }

    bool setBinding(const QString& key) {
        value_ = valueOf(control_);
        if (!value_)
            return false;
        key_ = key;
        fill();
        connect(Preferences::standard(), &Preferences::valueChanged, this, [this](const QString& changed) {
            if (changed == key_)
                fill();
        });
        return true;
    }

    /// False for a control that reports no changes.
    bool watch() {
        if (const auto* button = qobject_cast<QAbstractButton*>(control_))
            connect(button, &QAbstractButton::clicked, this, &ControlTie::changed);
        else if (const auto* action = qobject_cast<QAction*>(control_))
            connect(action, &QAction::triggered, this, &ControlTie::changed);
        else if (const auto* box = qobject_cast<QComboBox*>(control_))
            watchComboBox(box);
        else if (const auto* field = qobject_cast<QLineEdit*>(control_))
            connect(field, &QLineEdit::editingFinished, this, &ControlTie::editingFinished);
        else if (const auto* slider = qobject_cast<Slider*>(control_))
            connect(slider, &Slider::doubleValueChanged, this, &ControlTie::changed);
        else if (const auto* date = qobject_cast<QDateTimeEdit*>(control_))
            connect(date, &QDateTimeEdit::dateTimeChanged, this, &ControlTie::changed);
        else
            return false;
        return true;
    }

private:
    void changed() {
        if (!filling_ && (!value_ || value_->store(*Preferences::standard(), key_)))
            sendAction();
    }

    void watchComboBox(const QComboBox* box) {
        connect(box, &QComboBox::activated, this, &ControlTie::changed);
        // The items get their integers after the layout is loaded.
        connect(box->model(), &QAbstractItemModel::dataChanged, this, &ControlTie::fill);
        connect(box->model(), &QAbstractItemModel::rowsInserted, this, &ControlTie::fill);
    }

    void editingFinished() {
        auto* field = qobject_cast<QLineEdit*>(control_);
        if (!field->isModified())
            return;
        field->setModified(false);
        changed();
    }

    void sendAction() {
        if (slot_.isValid() && owner_)
            slot_.invoke(owner_, Qt::DirectConnection, Q_ARG(QObject*, control_));
    }

    void fill() {
        if (!value_)
            return;
        const bool before = std::exchange(filling_, true);
        value_->fill(*Preferences::standard(), key_);
        filling_ = before;
    }

    QObject* control_;
    QPointer<QObject> owner_;
    QMetaMethod slot_;
    std::optional<Value> value_;
    QString key_;
    bool filling_ = false;
};

/// Ties a control as its properties ask; the reason when it can't be done, else an empty string.
QString tie(QObject* control, QObject* owner) {
    const QString action = control->property(kAction).toString();
    const QString binding = control->property(kBinding).toString();
    if (action.isEmpty() && binding.isEmpty())
        return {};
    auto* controlTie = new ControlTie(control, owner);
    const QString name = QStringLiteral("%1 \"%2\"")
                             .arg(QLatin1String(control->metaObject()->className()), control->objectName());
    if (!action.isEmpty() && !controlTie->setAction(action))
        return QStringLiteral("%1 sends \"%2\", which its owner has no slot for.").arg(name, action);
    if (!binding.isEmpty() && !controlTie->setBinding(binding))
        return QStringLiteral("%1 has no value that \"%2\" could be bound to.").arg(name, binding);
    return controlTie->watch() ? QString() : QStringLiteral("%1 reports no changes.").arg(name);
}

class WheelFilter : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus())
            return false;
        event->ignore(); // goes on to what the control lies in
        return true;
    }
};

/// Keeps the mouse wheel from a control that changes its value by it (a choice, a slider, a number or date
/// field) unless the control has the keyboard's focus, which the wheel does not give it either: otherwise
/// what lies around it scrolls. Does nothing to any other object.
void actOnWheelOnlyWithFocus(QObject* control) {
    const bool slider = qobject_cast<QAbstractSlider*>(control) && !qobject_cast<QScrollBar*>(control);
    if (!slider && !qobject_cast<QComboBox*>(control) && !qobject_cast<QAbstractSpinBox*>(control))
        return;
    auto* widget = static_cast<QWidget*>(control);
    if (widget->focusPolicy() == Qt::WheelFocus)
        widget->setFocusPolicy(Qt::StrongFocus);
    widget->installEventFilter(new WheelFilter(widget));
}

/// Assistive programs say a button's text, and of "(&M)" Qt takes but the mark away.
void nameButton(QObject* object) {
    auto* button = qobject_cast<QAbstractButton*>(object);
    if (button && button->accessibleName().isEmpty() && button->text().contains(u"(&"))
        button->setAccessibleName(withoutMnemonic(button->text()));
}

} // namespace

void Layout::registerClass(const QString& className, Factory factory) {
    factories().emplace(className, std::move(factory));
}

std::unique_ptr<QWidget> Layout::load(const QString& name, QObject* owner, QString* error) {
    const QString path = Bundle::main().resourcePath() + u'/' + name + QStringLiteral(".ui");
    QString problem;
    auto bytes = RegularFile::read(path, kLargestLayout, &problem);
    if (!bytes) {
        addReason(error, QStringLiteral("There is no layout \"%1\": %2.").arg(name, problem));
        return nullptr;
    }
    QBuffer file(&*bytes);
    file.open(QIODevice::ReadOnly);
    Loader loader;
    std::unique_ptr<QWidget> root(loader.load(&file));
    if (!root) {
        addReason(error, QStringLiteral("%1 is damaged: %2").arg(path, loader.errorString()));
        return nullptr;
    }
    QStringList reasons;
    for (const QString& className : std::as_const(loader.unknownClasses))
        reasons.append(QStringLiteral("The class %1 is unknown.").arg(className));
    QObjectList objects = root->findChildren<QObject*>();
    objects.prepend(root.get());
    for (QObject* object : std::as_const(objects)) {
        if (const QString reason = tie(object, owner); !reason.isEmpty())
            reasons.append(reason);
        actOnWheelOnlyWithFocus(object);
        nameButton(object);
    }
    if (reasons.isEmpty())
        return root;
    addReason(error, path + QStringLiteral(": ") + reasons.join(u' '));
    return nullptr;
}

int Layout::tag(const QObject* control) {
    return control->property("tag").toInt();
}

QObject* Layout::objectNamed(QWidget* root, const char* objectName, const QMetaObject& type, QString* error) {
    const QString name = QString::fromUtf8(objectName);
    QObject* object = root->objectName() == name ? root : root->findChild<QObject*>(name);
    if (object && type.cast(object))
        return object;
    addReason(error, object ? QStringLiteral("The outlet \"%1\" is a %2, not a %3.")
                                  .arg(name, QLatin1String(object->metaObject()->className()),
                                       QLatin1String(type.className()))
                            : QStringLiteral("The outlet \"%1\" is missing.").arg(name));
    return nullptr;
}
