// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/setStringValueHilight.h"

#include "tests/TestMain.h"

#include <cmath>

namespace {

/// The luminance of a colour as the Web Content Accessibility Guidelines define it.
double luminance(const QColor& colour) {
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

} // namespace

TEST(setStringValueHilightTest, AChangeIsReadablyRedUntilTheNextUpdateThatLeavesItAlone) {
    QWidget window;
    QLabel field(&window);
    field.setAlignment(Qt::AlignRight);
    const auto shown = [&] { return field.palette().color(field.foregroundRole()); };
    const auto put = [&](int grey, const QColor& text) {
        QPalette palette;
        palette.setColor(QPalette::Window, QColor(grey, grey, grey));
        palette.setColor(QPalette::WindowText, text);
        window.setPalette(palette);
    };
    const QColor darkRed = QColor::fromRgbF(0.5F, 0.0F, 0.0F);
    put(0xEF, Qt::black);
    using Row = std::tuple<bool, QString, bool>;
    for (const auto& [keepBlack, text, isRed] :
         {Row{true, u"first"_s, false}, Row{false, u"second"_s, true}, Row{false, u"second"_s, false},
          Row{false, u"third"_s, true}, Row{true, u"fourth"_s, false}, Row{false, u"fifth"_s, true}}) {
        gKeepBlack = keepBlack;
        setStringValueHilight(&field, text);
        EXPECT_EQ(field.text(), text);
        EXPECT_EQ(shown(), isRed ? darkRed : QColor(Qt::black)) << qPrintable(text);
    }
    EXPECT_EQ(field.alignment(), Qt::AlignRight);
    for (const int grey : {0x00, 0x1B, 0x2D, 0x31, 0x40, 0x55}) {
        put(grey, Qt::white);
        EXPECT_GE((luminance(shown()) + 0.05) / (luminance(QColor(grey, grey, grey)) + 0.05), 4.5) << grey;
        EXPECT_GT(shown().red(), shown().green());
    }
    setStringValueHilight(&field, u"fifth"_s);
    EXPECT_EQ(shown(), QColor(Qt::white));
    gKeepBlack = true;
}
