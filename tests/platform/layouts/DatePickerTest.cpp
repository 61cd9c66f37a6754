// SPDX-License-Identifier: MIT
#include "platform/layouts/DatePicker.h"

#include "tests/TestMain.h"

#include <gtest/gtest.h>

#include <unicode/locid.h>

namespace {

class Picker : public DatePicker {
public:
    QDateTime read() const { return dateTimeFromText(text()); }
    bool accepts(QString text) const {
        int position = 0;
        return validate(text, position) == QValidator::Acceptable;
    }
};

/// The names that the C library would have for all of ICU's locales.
QByteArrayList localeNames() {
    QByteArrayList names;
    std::int32_t count = 0;
    const icu::Locale* all = icu::Locale::getAvailableLocales(count);
    for (std::int32_t i = 0; i < count; ++i) {
        const QByteArray script = all[i].getScript();
        const char* modifier = script == "Latn" ? "@latin" : script == "Cyrl" ? "@cyrillic" : "";
        if (*all[i].getCountry())
            names.append(QByteArray(all[i].getLanguage()) + '_' + all[i].getCountry() + modifier);
    }
    return names;
}

} // namespace

TEST(DatePickerTest, ShowsTheLocalesOwnPatternWithSeconds) {
    struct Case {
        const char* locale;
        const char* shown;
    };
    for (const Case& expected :
         {Case{"da_DK.UTF-8", "23.11.2026 14.05.09"}, Case{"fi_FI", "23.11.2026 14.05.09"},
          Case{"id_ID.UTF-8", "23/11/2026 14.05.09"}, Case{"fr_CA", "2026-11-23 14 h 05 min 09 s"},
          Case{"zh_TW", "2026/11/23 下午2:05:09"}, Case{"fa_IR", "۲۰۲۶/۱۱/۲۳ ۱۴:۰۵:۰۹"},
          Case{"ar_EG", "٢٣\u200F/١١\u200F/٢٠٢٦ ٢:٠٥:٠٩ م"}, Case{"el_GR", "23/11/2026 2:05:09 μ.μ."},
          Case{"de_DE", "23.11.2026 14:05:09"}, Case{"ca_ES@valencia", "23/11/2026 14:05:09"},
          Case{"hi_IN", "23/11/2026 2:05:09 pm"}, Case{"en_IN", "23/11/2026 2:05:09 pm"},
          Case{"C", "11/23/2026 2:05:09 PM"}, Case{"POSIX", "11/23/2026 2:05:09 PM"},
          Case{"C.UTF-8", "11/23/2026 2:05:09 PM"}}) {
        const WithEnvironment here("LC_ALL", expected.locale);
        Picker picker;
        picker.setDateValue(gmt(2026, 11, 23, 14, 5, 9));
        EXPECT_EQ(picker.text().toStdString(), expected.shown) << expected.locale;
    }
}

TEST(DatePickerTest, ReadsBackWhatItShowsInEveryLocale) {
    const QByteArrayList names = localeNames();
    ASSERT_GT(names.size(), 400);
    for (const QByteArray& name : names) {
        const WithEnvironment here("LC_ALL", name);
        Picker picker;
        for (const QDateTime& moment :
             {gmt(2026, 11, 23, 14, 5, 9), gmt(1931, 2, 3), gmt(2039, 12, 31, 12, 59, 58)}) {
            picker.setDateValue(moment);
            EXPECT_EQ(picker.read(), moment) << name.constData() << ": " << picker.text().toStdString();
            EXPECT_TRUE(picker.accepts(picker.text())) << name.constData();
        }
    }
}
