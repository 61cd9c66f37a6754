// SPDX-License-Identifier: MIT
#include "platform/layouts/DatePicker.h"

#include "tests/TestMain.h"

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

} // namespace

TEST(DatePickerTest, ShowsTheLocalesOwnPatternWithSeconds) {
    using Row = std::tuple<const char*, const char*>;
    for (const auto& [locale, shown] :
         {Row{"da_DK.UTF-8", "23.11.2026 14.05.09"}, Row{"fr_CA", "2026-11-23 14 h 05 min 09 s"},
          Row{"zh_TW", "2026/11/23 下午2:05:09"}, Row{"ar_EG", "٢٣\u200F/١١\u200F/٢٠٢٦ ٢:٠٥:٠٩ م"},
          Row{"ca_ES@valencia", "23/11/2026 14:05:09"}, Row{"C.UTF-8", "11/23/2026 2:05:09 PM"}}) {
        const WithEnvironment here("LC_ALL", locale);
        Picker picker;
        picker.setDateValue(gmt(2026, 11, 23, 14, 5, 9));
        EXPECT_EQ(picker.text().toStdString(), shown) << locale;
    }
}

TEST(DatePickerTest, ReadsBackWhatItShowsInEveryLocale) {
    std::int32_t count = 0;
    const icu::Locale* all = icu::Locale::getAvailableLocales(count);
    ASSERT_GT(count, 400);
    for (std::int32_t i = 0; i < count; ++i) {
        const QByteArray script = all[i].getScript();
        const char* modifier = script == "Latn" ? "@latin" : script == "Cyrl" ? "@cyrillic" : "";
        const WithEnvironment here("LC_ALL",
                                   QByteArray(all[i].getLanguage()) + '_' + all[i].getCountry() + modifier);
        Picker picker;
        for (const QDateTime& moment :
             {gmt(2026, 11, 23, 14, 5, 9), gmt(1931, 2, 3), gmt(2039, 12, 31, 12, 59, 58)}) {
            picker.setDateValue(moment);
            EXPECT_EQ(picker.read(), moment) << all[i].getName() << ": " << picker.text().toStdString();
            EXPECT_TRUE(picker.accepts(picker.text())) << all[i].getName();
        }
    }
}
