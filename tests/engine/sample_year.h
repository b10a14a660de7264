#pragma once

#include <cstdint>

#include "engine/current_year.h"
#include "engine/day_driver.h"
#include "engine/year_table.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "support/test_platform.h"

namespace horavex {

/// Writes down what the driver asks of the rooms above.
class RecordingHost : public DayHost {
public:
    void ReportProgress(double percent) override { percents.push_back(percent); }
    void ComputeQibla() override { ++qiblas; }
    double QiblaBearing() override { return bearing; }
    void RunSetAction() override { ++setActions; }
    void SetFlashVariables() override { ++faces; }

    std::vector<double> percents;
    double bearing = 0.0;  // degrees
    int qiblas = 0;
    int setActions = 0;
    int faces = 0;
};

/// A fresh process with an empty text table and a place to calculate for.
struct EngineTest : testing::Test {
    EngineTest() {
        platform.files.WriteWhole("/program/Dat/T.DAT", {});
        platform.files.WriteWhole("/program/Dat/TI.DAT", {});
        InstallDayHost(&host);
    }

    /// Coordinates in hundredths of a degree, north and east positive.
    void Place(std::int16_t latitude, std::int16_t longitude, double zone) {
        Location.City.Latitude = latitude;
        Location.City.Longitude = longitude;
        Settings.TimeZone = zone;
    }

    void Angles(double fajr, double isha) {
        Settings.FajrAngle = fajr;
        IshaAngle = isha;
    }

    /// Cairo with the angles that Egypt uses.
    void Cairo() {
        Place(3005, 3125, 2.0);
        Angles(19.5, 17.5);
        Settings.AsrRatio = 1.0;
    }

    /// 51.5 degrees north in the zone of Greenwich.
    void London(double fajr, double isha) {
        Place(5150, -12, 0.0);
        Angles(fajr, isha);
        Settings.AsrRatio = 1.0;
    }

    void Daylight(std::int16_t start, std::int16_t end) {
        Settings.DstEnabled = 1;
        Settings.DstStart = start;
        Settings.DstEnd = end;
    }

    void Calculate(std::int16_t year) {
        CurrentYear = year;
        CalcFailed = 0;
        RecalculateYear();
    }

    TestPlatform platform;
    RecordingHost host;
};

}  // namespace horavex
