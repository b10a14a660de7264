#pragma once

#include <gtest/gtest.h>

#include "engine/angle.h"
#include "engine/current_year.h"
#include "engine/ruled_year.h"
#include "engine/year_calculation.h"
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

    /// The zone of Lord Howe in 2026: half an hour of daylight saving until 5 April, local time
    /// 02:00, and from 4 October on.
    static void LordHowe() {
        ActiveSettings.TimeZone = 10.5;
        RuledYear.inputs = PresentInputs();
        RuledYear.inputs.place.timeZone = 10.5;
        RuledYear.rules.zoneName = "Australia/Lord_Howe";
        RuledYear.rules.moments.zone = {
            {DateSerial(2025, 12, 30), 11.0, true},
            {DateSerial(2026, 4, 4) + TimeSerial(15, 0, 0), 10.5, false},
            {DateSerial(2026, 10, 3) + TimeSerial(15, 30, 0), 11.0, true}};
    }

    /// A clock that is set back for a month: ahead of that from the beginning and to the end.
    static void Casablanca() {
        LordHowe();
        ActiveSettings.TimeZone = RuledYear.inputs.place.timeZone = 0.0;
        RuledYear.rules.zoneName = "Africa/Casablanca";
        RuledYear.rules.moments.zone = {{DateSerial(2025, 12, 30), 1.0, true},
                                        {DateSerial(2026, 2, 15) + TimeSerial(2, 0, 0), 0.0, false},
                                        {DateSerial(2026, 3, 22) + TimeSerial(2, 0, 0), 1.0, true}};
    }

    /// The year of Oslo by the clock of Cairo: Fajr and Isha meet in the middle of a summer's
    /// night, behind midnight.
    static void Oslo() {
        const YearMethod method = {18.0, 18.0, 1.0, 0, 0, 0, false, false};
        RuledYear.inputs = {2026, {DegToRad(59.91), -DegToRad(10.75), 2.0}, method};
        RuledYear.rules.moments.highLatitude = HighLatitudeRule::kMiddle;
        Times = CalculateYear(RuledYear.inputs).times;
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
