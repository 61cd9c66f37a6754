// SPDX-License-Identifier: MIT
#include "platform/locale/NumberFormatter.h"

#include "tests/TestMain.h"

#include <QLocale>

#include <limits>

TEST(NumberFormatterTest, ShortestTextsReadBackInEveryLocale) {
    for (const char* locale : {"C", "de_DE", "sv_SE", "fr_CH", "ar_EG", "fa_IR", "hi_IN", "my_MM"}) {
        const InLocale here(locale);
        for (const float number : {0.0F, -33.867F, 1e-7F, std::numeric_limits<float>::denorm_min()})
            EXPECT_EQ(NumberFormatter::number(NumberFormatter::string(number)), number) << locale;
    }
}

TEST(NumberFormatterTest, NumbersHaveTheLocalesSignsAndDigits) {
    using Row = std::tuple<const char*, QString, QString, QString>;
    for (const auto& [locale, light, place, list] :
         {Row{"en_US", u"89.974"_s, u"-33.9"_s, u"-5, +1.5, 12, 0"_s},
          Row{"de_DE", u"89,974"_s, u"-33,9"_s, u"-5; +1,5; 12; 0"_s},
          Row{"sv_SE", u"89,974"_s, u"\u221233,9"_s, u"\u22125; +1,5; 12; 0"_s},
          Row{"fa_IR", u"۸۹٫۹۷۴"_s, u"\u200E\u2212۳۳٫۹"_s, u"\u200E\u2212۵, \u200E+۱٫۵, ۱۲, ۰"_s}}) {
        const InLocale here(locale);
        EXPECT_EQ(NumberFormatter::string(89.974F, 3), light);
        EXPECT_EQ(NumberFormatter::string(-33.9F), place);
        EXPECT_EQ(NumberFormatter::localized(u"Offset: -5, +1.5, 12, 0"_s), u"Offset: "_s + list);
        EXPECT_EQ(NumberFormatter::plainString(0.0625F, 3), u"0.062") << "a tie goes to the even digit";
        EXPECT_EQ(NumberFormatter::string(-0.0F), NumberFormatter::string(0.0F));
        EXPECT_EQ(NumberFormatter::plainString(52.49999997206032F), u"52.5");
    }
}

TEST(NumberFormatterTest, ATypedNumberMayHaveTheLocalesSignOrThePoint) {
    constexpr float kLargest = std::numeric_limits<float>::max();
    using Row = std::tuple<const char*, const char*, float, bool>;
    for (const auto& [locale, typed, leading, isAll] :
         {Row{"C", "\t-3.5 ", -3.5F, true}, Row{"C", "+2.", 2, true}, Row{"C", "25e-1", 2.5F, true},
          Row{"C", "-1e999", -kLargest, false}, Row{"C", "\u22125.5", -5.5F, true},
          Row{"C", ".5.5", 0.5F, false}, Row{"C", "5,5", 5, false}, Row{"C", "0x10", 0, false},
          Row{"C", "", 0, false}, Row{"C", "- 1", 0, false}, Row{"C", "nan", 0, false},
          Row{"de_DE", "5,5", 5.5F, true}, Row{"de_DE", "5.5", 5.5F, true},
          Row{"de_DE", "-5,5 Stunden", -5.5F, false}, Row{"de_DE", "1.234,5", 1.234F, false},
          Row{"ja_JP", "－３．５", -3.5F, true}, Row{"en_US", "٣٫٥", 3.5F, true}}) {
        const InLocale here(locale);
        const QString text = QString::fromUtf8(typed);
        EXPECT_EQ(NumberFormatter::leadingNumber(text), leading) << typed;
        EXPECT_EQ(NumberFormatter::number(text), isAll ? std::optional(leading) : std::nullopt) << typed;
    }
}
