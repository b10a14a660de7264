#pragma once

#include <gtest/gtest.h>

#include "engine/current_year.h"
#include "engine/year_table.h"
#include "geo/qibla.h"
#include "store/isha_setting.h"
#include "store/location_record.h"
#include "store/settings_record.h"
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
        data.WriteTexts(77);
        const std::pair<std::uint16_t, const char*> texts[] = {
            {1, "Please wait..."},
            {6, "Fajr"},
            {7, "Shurooq"},
            {8, "Zuhr"},
            {9, "Asr"},
            {10, "Maghrib"},
            {11, "Isha"},
            {12, "North"},
            {13, "East"},
            {16, "degrees"},
            {17, "minutes"},
            {25, "City"},
            {26, "Exporting the year."},
            {27, "Cancel"},
            {32, "Start of"},
            {33, "End of"},
            {34, "daylight saving"},
            {35, "Note"},
            {36, "Prayer times of"},
            {37, "Day"},
            {49, "Time Zone"},
            {59, "Latitude"},
            {60, "Longitude"},
            {67, "GMT"},
            {75, "method"},
            {76, "second"},
            {77, "first"},
        };
        for (const auto& [entry, text] : texts) {
            data.WriteText(entry, 1, text);
        }
    }

    TestPlatform platform;
    DataFolder data{platform.files};
};

}  // namespace horavex
