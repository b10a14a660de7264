#include <algorithm>
#include <map>

#include "data/built_data.h"
#include "engine/angle.h"
#include "engine/current_year.h"
#include "engine/day_driver.h"
#include "engine/year_table.h"
#include "store/angle_band.h"
#include "store/city_search.h"
#include "store/location_text.h"
#include "store/settings_defaults.h"
#include "store/settings_record.h"

namespace horavex {
namespace {

constexpr std::int16_t kSixtyDegrees = 6000;
constexpr std::int16_t kUsualIshaAngle = 18;
constexpr std::size_t kSampleStep = 40;
constexpr std::int16_t kYears[] = {2024, 2026, 2027};

struct AngleBands : BuiltData {
    AngleLimits BandOf(std::int16_t latitude) {
        AngleBand = {};
        LoadAngleBand(latitude);
        return AngleBand;
    }

    std::size_t Count() { return folder.ReadWhole("Dat\\A.dat").size() / 5; }

    /// Upper bound of the band before, hundredths of a degree; record: 0 to Count() - 1.
    std::int16_t LimitOf(std::size_t record) {
        return GetInt16(folder.ReadWhole("Dat\\A.dat"), record * 5);
    }

    /// Takes a place, in hundredths of a degree, with its default angles in its nearest zone.
    void Place(std::int16_t latitude, std::int16_t longitude) {
        Location.City.Latitude = latitude;
        Location.City.Longitude = longitude;
        const AngleLimits band = BandOf(latitude);
        Settings.FajrAngle = band.middle;
        IshaAngle = std::min(kUsualIshaAngle, band.largest);
        Settings.AsrRatio = 1.0;
        ZoneFromLongitude(StoredCoord(longitude));
        Settings.TimeZone = ZoneNearest;
    }

    void ExpectYear(std::int16_t year, std::int16_t daylightSaving) {
        Settings.DstEnabled = daylightSaving;
        SetDefaultDstDays(DateSerial(year, 1, 1), Location.City.Latitude);
        CurrentYear = year;
        CalcFailed = 0;
        RecalculateYear();
        ASSERT_EQ(CalcFailed, 0) << "message " << LastYearFailure->message << " on row "
                                 << LastYearFailure->row << " of " << year;
    }

    /// Every year of the sample, with and without the days of daylight saving of its hemisphere.
    void ExpectYears(std::int16_t latitude, std::int16_t longitude) {
        SCOPED_TRACE(std::to_string(latitude) + ", " + std::to_string(longitude));
        Place(latitude, longitude);
        for (const std::int16_t year : kYears) {
            ExpectYear(year, 0);
            ExpectYear(year, 1);
        }
    }
};

TEST_F(AngleBands, EquatorFindsABand) {
    const AngleLimits band = BandOf(0);
    EXPECT_EQ(band.middle, 18);
    EXPECT_GE(band.largest, 18);
}

TEST_F(AngleBands, EgyptAllowsTheAnglesOfItsConventions) {
    for (std::int16_t latitude = 2200; latitude <= 3170; latitude = std::int16_t(latitude + 10)) {
        const AngleLimits band = BandOf(latitude);
        ASSERT_GE(band.largest, 20) << latitude;
        ASSERT_LE(band.smallest, 17) << latitude;
    }
}

TEST_F(AngleBands, SouthTakesTheBandsOfTheNorth) {
    for (std::int16_t latitude = 0; latitude <= 9000; latitude = std::int16_t(latitude + 50)) {
        ASSERT_EQ(BandOf(static_cast<std::int16_t>(-latitude)), BandOf(latitude)) << latitude;
    }
}

TEST_F(AngleBands, AnglesShrinkTowardsThePoles) {
    for (std::size_t record = 1; record < Count(); ++record) {
        const AngleLimits before = BandOf(LimitOf(record));
        const AngleLimits band = BandOf(static_cast<std::int16_t>(LimitOf(record) + 1));
        EXPECT_NE(band, before);
        EXPECT_LE(band.largest, before.largest);
        EXPECT_GE(band.middle, band.smallest);
        EXPECT_LE(band.middle, band.largest);
    }
    EXPECT_GE(BandOf(4000).largest, 20);
    EXPECT_LE(BandOf(5999).largest, 5);
}

// One test in eight parts, so that they run beside each other.
class AngleBandsOfCities : public AngleBands, public testing::WithParamInterface<std::size_t> {};

TEST_P(AngleBandsOfCities, DefaultAnglesLastAWholeYearInTheNearestZone) {
    const auto cities = ListCities();
    std::size_t tried = 0;
    for (std::size_t i = GetParam() * kSampleStep; i < cities.size(); i += 8 * kSampleStep) {
        if (std::abs(cities[i].latitude) < kSixtyDegrees) {
            ASSERT_NO_FATAL_FAILURE(ExpectYears(cities[i].latitude, cities[i].longitude))
                << cities[i].name << " - " << cities[i].country;
            ++tried;
        }
    }
    EXPECT_GT(tried, 100U);
    EXPECT_TRUE(dialogs.messages.empty());
}

INSTANTIATE_TEST_SUITE_P(Sample, AngleBandsOfCities, testing::Range<std::size_t>(0, 8));

TEST_F(AngleBands, SampleOfCitiesReachesEveryBandBelowSixtyDegrees) {
    const auto cities = ListCities();
    std::map<std::int16_t, int> citiesOfBand;
    for (std::size_t i = 0; i < cities.size(); i += kSampleStep) {
        if (std::abs(cities[i].latitude) < kSixtyDegrees) {
            ++citiesOfBand[BandOf(cities[i].latitude).largest];
        }
    }
    for (std::size_t record = 0; LimitOf(record) < kSixtyDegrees; ++record) {
        const AngleLimits band = BandOf(static_cast<std::int16_t>(LimitOf(record) + 1));
        EXPECT_GT(citiesOfBand[band.largest], 0) << LimitOf(record);
    }
}

TEST_F(AngleBands, EdgesOfBandsLastAYearAtTheEdgesOfZones) {
    constexpr std::int16_t kLongitudes[] = {-18000, -751, -750, 0, 749, 18000};
    for (std::size_t record = 0; LimitOf(record) < kSixtyDegrees; ++record) {
        const auto first = static_cast<std::int16_t>(LimitOf(record) + 1);
        const std::int16_t last = LimitOf(record + 1);
        for (const std::int16_t longitude : kLongitudes) {
            for (const std::int16_t latitude : {first, last}) {
                ASSERT_NO_FATAL_FAILURE(ExpectYears(latitude, longitude));
                ASSERT_NO_FATAL_FAILURE(
                    ExpectYears(static_cast<std::int16_t>(-latitude), longitude));
            }
        }
    }
    EXPECT_TRUE(dialogs.messages.empty());
}

}  // namespace
}  // namespace horavex
