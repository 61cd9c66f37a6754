// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/setStringValueHilight.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <cmath>

namespace {

const QColor kDarkRed = QColor::fromRgbF(0.5F, 0.0F, 0.0F);

/// The contrast of two colours as the Web Content Accessibility Guidelines define it.
double contrast(const QColor& one, const QColor& other) {
    const auto luminance = [](const QColor& colour) {
        const double weights[]{0.2126, 0.7152, 0.0722};
        const double parts[]{colour.red() / 255.0, colour.green() / 255.0, colour.blue() / 255.0};
        double sum = 0;
        for (int i = 0; i < 3; ++i)
            sum += weights[i] *
                   (parts[i] <= 0.03928 ? parts[i] / 12.92 : std::pow((parts[i] + 0.055) / 1.055, 2.4));
        return sum;
    };
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QPalette panel(const QColor& window, const QColor& text) {
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    return palette;
}

class setStringValueHilightTest : public testing::Test {
protected:
    void SetUp() override {
        window.setPalette(panel(QColor(0xEF, 0xEF, 0xEF), Qt::black));
        field.setAlignment(Qt::AlignRight);
        gKeepBlack = false;
    }
    void TearDown() override { gKeepBlack = true; }
    QColor shown() const { return field.palette().color(field.foregroundRole()); }
    void set(const char* text) { setStringValueHilight(&field, QString::fromLatin1(text)); }

    QWidget window;
    QLabel field{&window};
};

TEST_F(setStringValueHilightTest, AChangeIsDarkRedUntilTheNextUpdateThatLeavesItAlone) {
    gKeepBlack = true;
    set("first");
    EXPECT_EQ(shown(), QColor(Qt::black));
    gKeepBlack = false;
    set("first");
    EXPECT_EQ(shown(), QColor(Qt::black));
    for (const char* text : {"second", "third"}) {
        set(text);
        EXPECT_EQ(field.text(), QString::fromLatin1(text));
        EXPECT_EQ(shown(), kDarkRed);
    }
    EXPECT_EQ(field.alignment(), Qt::AlignRight);
    set("third");
    EXPECT_EQ(shown(), QColor(Qt::black));
    EXPECT_FALSE(field.testAttribute(Qt::WA_SetPalette));
    set("fourth");
    gKeepBlack = true;
    set("fifth");
    EXPECT_EQ(shown(), QColor(Qt::black));
}

TEST_F(setStringValueHilightTest, ADarkPanelsRedCanBeReadAndFollowsTheSwitch) {
    set("text");
    for (const int grey : {0x00, 0x1B, 0x2D, 0x31, 0x40, 0x55}) {
        window.setPalette(panel(QColor(grey, grey, grey), Qt::white));
        EXPECT_GE(contrast(shown(), field.palette().color(QPalette::Window)), 4.5) << grey;
        EXPECT_GT(shown().red(), shown().green());
        EXPECT_EQ(field.palette().color(QPalette::Window).red(), grey);
    }
    window.setPalette(panel(Qt::white, Qt::black));
    EXPECT_EQ(shown(), kDarkRed);
    window.setPalette(panel(Qt::black, Qt::white));
    set("text");
    EXPECT_EQ(shown(), QColor(Qt::white));
}

} // namespace
