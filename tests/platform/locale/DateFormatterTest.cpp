// SPDX-License-Identifier: MIT
#include "platform/locale/DateFormatter.h"

#include "tests/TestMain.h"

TEST(DateFormatterTest, WritesTheShortStylesOfTheTimeLocale) {
    const std::int64_t wall = gmt(2026, 11, 3, 13, 5).toSecsSinceEpoch();
    using Row = std::tuple<const char*, QString, QString>;
    for (const auto& [locale, date, time] :
         {Row{"en_US.UTF-8", u"11/3/26"_s, u"1:05 PM"_s}, Row{"C", u"11/3/26"_s, u"1:05 PM"_s},
          Row{"en_AU.UTF-8", u"3/11/26"_s, u"1:05 pm"_s}, // not "PM"
          Row{"de_DE@euro", u"03.11.26"_s, u"13:05"_s}, Row{"mr_IN", u"३/११/२६"_s, u"१:०५ PM"_s},
          Row{"zh_TW.UTF-8", u"2026/11/3"_s, u"下午1:05"_s}}) { // has no halves of the day
        const WithEnvironment here("LC_ALL", locale);
        using Style = DateFormatter::Style;
        EXPECT_EQ(DateFormatter::dateString(wall, Style::Short), date) << locale;
        EXPECT_EQ(DateFormatter::timeString(wall, Style::Short), time) << locale;
    }
}
