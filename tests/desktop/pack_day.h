#pragma once

#include "base/int16.h"
#include "calendar/date_words.h"
#include "desktop/face/face_day.h"
#include "desktop/face/poster_layout.h"
#include "desktop/ports/toolkit_language.h"
#include "engine/day_view.h"
#include "lang/form_language.h"
#include "lang/language_pack.h"
#include "windows/frm_main.h"

namespace horavex {

/// Gives the face the words of a pack of the program folder.
inline void SpeakPack(const std::string& language) {
    currentLanguage = language;
    languageFilesPresent = kTrue;
    LoadFormLanguage(*frmMain, LanguagePackPath(language));
    SpeakLanguageOfPack();
}

/// A day in Cairo with an iqama behind each prayer, at its noon.
inline DayView DayWithIqamas() {
    constexpr std::array<double, kPrayerCount> kMinutes = {317, 384, 726, 876, 1017, 1100};
    DayView day;
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        day.moments[prayer].hours = kMinutes[prayer] / 60.0;
        day.iqamaMinutes[prayer] = prayer == kShurooq ? 0 : 10;
    }
    day.now = 0.5;
    day.place = "Cairo - Egypt";
    day.next = {kAsr, false, day.moments[kAsr], 9360.0};
    return day;
}

/// Its night, in Ramadan: Fajr of tomorrow comes next.
inline DayView NightOfRamadan() {
    DayView day = DayWithIqamas();
    day.now = 0.8;
    day.fast = GetLangString("desktop", "Suhoor", "");
    day.next = {kFajr, true, day.moments[kFajr], 38469.0};
    return day;
}

/// Dates with long names in the words of the pack.
inline PosterDates LongDates() {
    const auto word = [](const char* key) {
        return QString::fromStdString(GetLangString("timetables", key, ""));
    };
    constexpr int kJumadaTheSecond = 6;
    const QString hijri = QString::fromStdString(HijriMonthName(kJumadaTheSecond));
    return {word("Weekday3"), QStringLiteral("28 ") + word("Month9") + QStringLiteral(" 2026"),
            QStringLiteral("29 ") + hijri + QStringLiteral(" 1448")};
}

}  // namespace horavex
