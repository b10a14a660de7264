#pragma once

#include <array>

#include "engine/day_view.h"
#include "platform/face.h"
#include "windows/frm_main.h"

namespace horavex {

/// The day of a Saturday in Cairo, with the names that a pack gives.
inline void TellTimes(Face& face, const std::array<const char*, kPrayerCount>& names) {
    constexpr std::array<double, kPrayerCount> kMinutes = {296, 384, 701, 876, 1017, 1100};
    DayView day;
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        frmMain->lblZoritNameArabic(static_cast<int>(prayer)).SetCaption(names[prayer]);
        day.moments[prayer].hours = kMinutes[prayer] / 60.0;
    }
    day.next = {kAsr, false, day.moments[kAsr], 9360.0};
    face.ShowDay(day);
}

/// Hands a face what a tick at noon in Cairo and the English pack hand it.
inline void TellEnglish(Face& face) {
    face.SetVariable("_root.iArabicDay", "11");
    face.SetVariable("_root.ArabicMonth", "Jamad Thani");
    face.SetVariable("_root.iArabicYear", "1448");
    face.SetVariable("_root.sNextPrayer", "Next Athan: Asr at 2:36:00 PM");
    face.SetVariable("_root.sNextRemaining", "Remaining: 2:36:0");
    TellTimes(face, {"Fajr", "Shurooq", "Zuhr", "Asr", "Maghrib", "Isha"});
    face.SetVariable("_root.icompassAngle", "136.142857");
    face.SetVariable("_root.myDay", "Saturday");
    face.SetVariable("_root.myMonth", "November");
    face.SetVariable("_root.myYear", "2026");
    face.SetVariable("_root.myNumber", "21");
}

/// The same with the Arabic pack.
inline void TellArabic(Face& face) {
    TellEnglish(face);
    face.SetVariable("_root.ArabicMonth", "جمادى الآخرة");
    face.SetVariable("_root.sNextPrayer", "الأذان القادم: العصر الساعة 2:36:00 PM");
    face.SetVariable("_root.sNextRemaining", "المتبقي: 2:36:0");
    TellTimes(face, {"الفجر", "الشروق", "الظهر", "العصر", "المغرب", "العشاء"});
    face.SetVariable("_root.azan", "الأذان");
    face.SetVariable("_root.settings", "الإعدادات");
    face.SetVariable("_root.tools", "الأدوات");
    face.SetVariable("_root.help", "المساعدة");
    face.SetVariable("qibla", "القبلة");
    face.SetVariable("prayer_time", "مواقيت الصلاة");
}

}  // namespace horavex
