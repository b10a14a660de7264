#pragma once

#include "platform/face.h"

namespace horavex {

/// Hands a face what a tick at noon in Cairo and the English pack hand it.
inline void TellEnglish(Face& face) {
    face.SetVariable("_root.iArabicDay", "11");
    face.SetVariable("_root.ArabicMonth", "Jamad Thani");
    face.SetVariable("_root.iArabicYear", "1448");
    face.SetVariable("_root.sNextPrayer", "Next Athan: Asr at 2:36:00 PM");
    face.SetVariable("_root.sNextRemaining", "Remaining: 2:36:0");
    face.SetVariable("_root.allPrayerTime.allPrayerTimeText.sAllPrayers",
                     " Fajr:04:56 AM Shurooq:06:24 AM Zuhr:11:41 AM Asr:02:36 PM"
                     " Maghrib:04:57 PM Isha:06:20 PM");
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
    face.SetVariable("_root.allPrayerTime.allPrayerTimeText.sAllPrayers",
                     " الفجر:04:56 AM الشروق:06:24 AM الظهر:11:41 AM العصر:02:36 PM"
                     " المغرب:04:57 PM العشاء:06:20 PM");
    face.SetVariable("_root.azan", "الأذان");
    face.SetVariable("_root.settings", "الإعدادات");
    face.SetVariable("_root.tools", "الأدوات");
    face.SetVariable("_root.help", "المساعدة");
    face.SetVariable("qibla", "القبلة");
    face.SetVariable("prayer_time", "مواقيت الصلاة");
}

}  // namespace horavex
