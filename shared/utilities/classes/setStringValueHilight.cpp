// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/setStringValueHilight.h"

#include <QEvent>

#include <cmath>

namespace {

/// Relative luminance, 0 to 1, by the Web Content Accessibility Guidelines 2.1.
double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

/// Dark red, made lighter without a change of hue as far as a dark window asks for.
QColor hilightColour(const QColor& window) {
    constexpr double kReadable = 4.5;
    const QColor darkRed = QColor::fromRgbF(0.5F, 0.0F, 0.0F);
    if (window.lightness() >= 128)
        return darkRed;
    for (int percent = 26; percent < 100; ++percent) {
        const QColor lighter = QColor::fromHslF(0.0F, 1.0F, static_cast<float>(percent) / 100.0F).toRgb();
        if (contrast(lighter, window) >= kReadable)
            return lighter;
    }
    return Qt::white;
}

/// Lives in a field while that is highlighted, so that the colour follows a switch between light and dark.
class Hilight : public QObject {
public:
    explicit Hilight(QLabel* field)
        : QObject(field), field_(field),
          before_(field->testAttribute(Qt::WA_SetPalette) ? field->palette() : QPalette()) {
        setObjectName(kName);
        field->installEventFilter(this);
        colour();
    }

    void end() {
        field_->removeEventFilter(this);
        field_->setPalette(before_);
    }

    static Hilight* of(const QLabel* field) {
        return static_cast<Hilight*>(field->findChild<QObject*>(kName, Qt::FindDirectChildrenOnly));
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::PaletteChange)
            colour();
        return QObject::eventFilter(watched, event);
    }

private:
    void colour() {
        const QColor wanted = hilightColour(field_->palette().color(QPalette::Window));
        if (field_->palette().color(field_->foregroundRole()) == wanted)
            return;
        QPalette palette = before_;
        palette.setColor(field_->foregroundRole(), wanted);
        field_->setPalette(palette);
    }

    inline static const QString kName = QStringLiteral("setStringValueHilight");
    QLabel* field_;
    QPalette before_;
};

} // namespace

void setStringValueHilight(QLabel* field, const QString& text) {
    Hilight* const hilight = Hilight::of(field);
    const bool changed = !gKeepBlack && field->text() != text;
    field->setText(text);
    if (changed && !hilight)
        new Hilight(field);
    if (!changed && hilight) {
        hilight->end();
        delete hilight;
    }
}
