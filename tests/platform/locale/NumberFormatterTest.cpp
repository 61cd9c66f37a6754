// SPDX-License-Identifier: MIT
#include "platform/locale/NumberFormatter.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <limits>

namespace {

class InLocale {
public:
    explicit InLocale(const char* name) { QLocale::setDefault(QLocale(QLatin1String(name))); }
    ~InLocale() { QLocale::setDefault(QLocale::system()); }
    InLocale(const InLocale&) = delete;
    InLocale& operator=(const InLocale&) = delete;
};

std::string shown(float number) {
    return NumberFormatter::string(number).toStdString();
}

} // namespace

TEST(NumberFormatterTest, ShortestTextsReadBackInEveryLocale) {
    constexpr float kLargest = std::numeric_limits<float>::max();
    for (const char* locale : {"C", "de_DE", "sv_SE", "fr_CH", "ar_EG", "ar_MA", "fa_IR", "hi_IN", "my_MM"}) {
        const InLocale here(locale);
        for (const float number : {0.0F, 52.5F, -33.867F, 5.4F, 0.1F, 1e-7F, 123456.0F, kLargest,
                                   std::numeric_limits<float>::denorm_min()}) {
            const QString text = NumberFormatter::string(number);
            EXPECT_EQ(NumberFormatter::number(text), number) << locale << ' ' << text.toStdString();
            EXPECT_EQ(NumberFormatter::leadingNumber(text), number) << locale;
        }
    }
    EXPECT_EQ(shown(52.49999997206032F), "52.5");
    EXPECT_EQ(shown(-0.0F), "0");
    EXPECT_EQ(shown(0.0001F), "0.0001");
}

TEST(NumberFormatterTest, NumbersHaveTheLocalesSignsAndDigits) {
    struct Case {
        const char* locale;
        const char* light;
        const char* place;
        const char* list;
    };
    for (const Case& expected :
         {Case{"C", "89.974", "-33.9", "-5, +1.5, 12, 0"},
          Case{"en_US", "89.974", "-33.9", "-5, +1.5, 12, 0"},
          Case{"de_DE", "89,974", "-33,9", "-5; +1,5; 12; 0"},
          Case{"sv_SE", "89,974", "\u221233,9", "\u22125; +1,5; 12; 0"},
          Case{"ar_EG", "٨٩٫٩٧٤", "\u061C-٣٣٫٩", "\u061C-٥, \u061C+١٫٥, ١٢, ٠"},
          Case{"fa_IR", "۸۹٫۹۷۴", "\u200E\u2212۳۳٫۹", "\u200E\u2212۵, \u200E+۱٫۵, ۱۲, ۰"}}) {
        const InLocale here(expected.locale);
        EXPECT_EQ(NumberFormatter::string(89.974F, 3).toStdString(), expected.light);
        EXPECT_EQ(shown(-33.9F), expected.place);
        EXPECT_EQ(NumberFormatter::localized(QStringLiteral("Offset: -5, +1.5, 12, 0")).toStdString(),
                  std::string("Offset: ") + expected.list);
        EXPECT_EQ(NumberFormatter::plainString(0.0625F, 3), u"0.062") << "a tie goes to the even digit";
    }
}

TEST(NumberFormatterTest, ATypedNumberMayHaveTheLocalesSignOrThePoint) {
    struct Case {
        const char* locale;
        const char* text;
        float leading;
        bool isAll = false;
    };
    constexpr float kLargest = std::numeric_limits<float>::max();
    for (const Case& typed : {Case{"C", "\t-3.5 ", -3.5F, true},
                              Case{"C", "+2.", 2.0F, true},
                              Case{"C", "25e-1", 2.5F, true},
                              Case{"C", "1e-999", 0.0F, true},
                              Case{"C", "\u22125.5", -5.5F, true},
                              Case{"C", "-1e999", -kLargest},
                              Case{"C", "1e39", kLargest},
                              Case{"C", "  7x", 7.0F},
                              Case{"C", ".5.5", 0.5F},
                              Case{"C", "5e", 5.0F},
                              Case{"C", "5,5", 5.0F},
                              Case{"C", "0x10", 0.0F},
                              Case{"C", "5\u00B2", 5.0F},
                              Case{"C", "", 0.0F},
                              Case{"C", "abc", 0.0F},
                              Case{"C", ".", 0.0F},
                              Case{"C", "--1", 0.0F},
                              Case{"C", "- 1", 0.0F},
                              Case{"C", "e5", 0.0F},
                              Case{"C", "nan", 0.0F},
                              Case{"C", "inf", 0.0F},
                              Case{"de_DE", "5,5", 5.5F, true},
                              Case{"de_DE", "5.5", 5.5F, true},
                              Case{"de_DE", ",5", 0.5F, true},
                              Case{"de_DE", "-5,5 Stunden", -5.5F},
                              Case{"de_DE", "1.234,5", 1.234F},
                              Case{"fa_IR", "\u2212۳۳/۹", -33.0F},
                              Case{"fa_IR", "33.9", 33.9F, true},
                              Case{"ja_JP", "－３．５", -3.5F, true},
                              Case{"en_US", "٣٫٥", 3.5F, true}}) {
        const InLocale here(typed.locale);
        const QString text = QString::fromUtf8(typed.text);
        EXPECT_EQ(NumberFormatter::leadingNumber(text), typed.leading) << typed.text;
        EXPECT_EQ(NumberFormatter::number(text), typed.isAll ? std::optional(typed.leading) : std::nullopt)
            << typed.text;
    }
}
