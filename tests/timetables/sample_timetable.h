#pragma once

#include <gtest/gtest.h>

#include "engine/current_year.h"
#include "engine/year_table.h"
#include "geo/qibla.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "store/stored_values.h"
#include "support/data_folder.h"
#include "support/test_platform.h"

namespace horavex {

/// Cairo under the accepted settings, the same six times on every day of the year, and the texts
/// that a timetable needs.
struct TimetableTest : testing::Test {
    TimetableTest() {
        WriteTexts();
        ActiveLocation.Country = "Egypt";
        ActiveLocation.City.Name = "Cairo";
        ActiveLocation.City.Latitude = 3005;
        ActiveLocation.City.Longitude = 3125;
        ActiveCityText = "Cairo - Egypt";
        ActiveSettings.Language = 1;
        ActiveSettings.QiblaMethod = 1;
        ActiveSettings.TimeZone = 2.0;
        ActiveSettings.FajrAngle = 19.5;
        ActiveSettings.AsrRatio = 1.0;
        IshaAngle = ActiveIshaAngle = 17.5;
        QiblaDegrees = 136.14;
        QiblaText = "Qibla: 136 degrees, 8 minutes East of North";
        TakeYear(2026);
        constexpr double kHours[] = {5.0, 6.5, 12.0, 15.25, 18.0, 19.5};
        for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
            Times[prayer].fill(kHours[prayer]);
        }
    }

    static void TakeYear(std::int16_t year) {
        CurrentYear = year;
        LeapYearFlag();
    }

    static void Daylight(std::int16_t start, std::int16_t end) {
        ActiveSettings.DstEnabled = 1;
        ActiveSettings.DstStart = start;
        ActiveSettings.DstEnd = end;
    }

    void WriteTexts() {
        data.WriteTexts(kTextEntries);
        const std::pair<TextEntry, const char*> texts[] = {
            {TextEntry::kPleaseWait, "Please wait..."},
            {TextEntry::kFajr, "Fajr"},
            {TextEntry::kShurooq, "Shurooq"},
            {TextEntry::kZuhr, "Zuhr"},
            {TextEntry::kAsr, "Asr"},
            {TextEntry::kMaghrib, "Maghrib"},
            {TextEntry::kIsha, "Isha"},
            {TextEntry::kNorth, "North"},
            {TextEntry::kEast, "East"},
            {TextEntry::kDegrees, "degrees"},
            {TextEntry::kMinutes, "minutes"},
            {TextEntry::kCity, "City"},
            {TextEntry::kExportingYear, "Exporting the year."},
            {TextEntry::kCancel, "Cancel"},
            {TextEntry::kStartOf, "Start of"},
            {TextEntry::kEndOf, "End of"},
            {TextEntry::kOfDaylightSaving, "daylight saving"},
            {TextEntry::kNote, "Note"},
            {TextEntry::kPrayerTimesOf, "Prayer times of"},
            {TextEntry::kDay, "Day"},
            {TextEntry::kTimeZone, "Time Zone"},
            {TextEntry::kLatitude, "Latitude"},
            {TextEntry::kLongitude, "Longitude"},
            {TextEntry::kGmt, "GMT"},
            {TextEntry::kMethod, "method"},
            {TextEntry::kSecond, "second"},
            {TextEntry::kFirst, "first"},
        };
        for (const auto& [entry, text] : texts) {
            data.WriteText(entry, 1, text);
        }
    }

    TestPlatform platform;
    DataFolder data{platform.files};
};

}  // namespace horavex
