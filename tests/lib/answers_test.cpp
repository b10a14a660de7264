// What crosses the edge of the library: sizes of structs, ranges, and how a call says no.

#include <cmath>
#include <cstring>

#include "lib/library.h"

namespace horavex {
namespace {

using testing::HasSubstr;
using testing::StrEq;

/// A year's answer to a place and a method.
class Asked {
public:
    horavex_status Make() {
        horavex_year* made = nullptr;
        const horavex_status status = horavex_year_make(&place, &method, year, &made, &error);
        horavex_year_free(made);
        return status;
    }

    horavex_place place = Cairo();
    horavex_method method = HORAVEX_METHOD_INIT;
    int year = 2026;
    horavex_error error = HORAVEX_ERROR_INIT;
};

TEST(Answers, VersionIsThatOfTheHeader) {
    EXPECT_THAT(horavex_version(), StrEq(HORAVEX_LIBRARY_VERSION));
}

TEST(Answers, ErrorIsEmptyAfterAnAnswer) {
    Asked asked;
    asked.error.status = HORAVEX_NO_ANSWER;
    std::strcpy(asked.error.text, "before");
    EXPECT_EQ(asked.Make(), HORAVEX_OK);
    EXPECT_EQ(asked.error.status, HORAVEX_OK);
    EXPECT_THAT(asked.error.text, StrEq(""));
}

TEST(Answers, ErrorMayBeNull) {
    double degrees = 0.0;
    EXPECT_EQ(horavex_qibla(91.0, 0.0, &degrees, nullptr), HORAVEX_BAD_ARGUMENT);
}

TEST(Answers, ErrorOfNoSizeIsLeftAlone) {
    Asked asked;
    asked.error.size = 0;
    asked.year = 0;
    EXPECT_EQ(asked.Make(), HORAVEX_BAD_ARGUMENT);
    EXPECT_THAT(asked.error.text, StrEq(""));
}

TEST(Answers, UnknownZoneIsToldByName) {
    Asked asked;
    asked.place.zone = "Africa/Atlantis";
    EXPECT_EQ(asked.Make(), HORAVEX_UNKNOWN_NAME);
    EXPECT_THAT(asked.error.text, HasSubstr("Africa/Atlantis"));
}

TEST(Answers, LongNamesAreCutInTheText) {
    Asked asked;
    const std::string zone(1000, 'a');
    asked.place.zone = zone.c_str();
    EXPECT_EQ(asked.Make(), HORAVEX_UNKNOWN_NAME);
    EXPECT_EQ(std::strlen(asked.error.text), sizeof asked.error.text - 1);
}

TEST(Answers, UnknownMethodLeavesTheMethodAsItWas) {
    Asked asked;
    asked.method.fajr_angle = 12.5;
    EXPECT_EQ(horavex_method_take(&asked.method, "nowhere", &asked.error), HORAVEX_UNKNOWN_NAME);
    EXPECT_THAT(asked.error.text, HasSubstr("nowhere"));
    EXPECT_EQ(asked.method.fajr_angle, 12.5);
}

TEST(Answers, DayWithoutTwilightIsTold) {
    Asked asked;
    asked.place = Tromso();
    EXPECT_EQ(asked.Make(), HORAVEX_NO_TWILIGHT);
    EXPECT_EQ(asked.error.status, HORAVEX_NO_TWILIGHT);
    EXPECT_GT(asked.error.day_of_year, 30);
    EXPECT_LT(asked.error.day_of_year, 172);
    EXPECT_THAT(asked.error.text, HasSubstr(std::to_string(asked.error.day_of_year)));
}

// Each row: a change for the worse, and the field that the text names.
TEST(Answers, ValuesOutsideTheirRangesAreRefused) {
    const std::pair<void (*)(Asked&), const char*> rows[] = {
        {[](Asked& a) { a.year = 0; }, "year"},
        {[](Asked& a) { a.year = 10000; }, "year"},
        {[](Asked& a) { a.place.latitude = 90.01; }, "latitude"},
        {[](Asked& a) { a.place.latitude = std::nan(""); }, "latitude"},
        {[](Asked& a) { a.place.longitude = -180.01; }, "longitude"},
        {[](Asked& a) { a.method.fajr_angle = 90.5; }, "fajr_angle"},
        {[](Asked& a) { a.method.isha_angle = -HUGE_VAL; }, "isha_angle"},
        {[](Asked& a) { a.method.maghrib_angle = 10.5; }, "maghrib_angle"},
        {[](Asked& a) { a.method.asr_shadow = 3; }, "asr_shadow"},
        {[](Asked& a) { a.method.isha_interval = 181; }, "isha_interval"},
        {[](Asked& a) { a.method.isha_interval_ramadan = -1; }, "isha_interval_ramadan"},
        {[](Asked& a) { a.method.minutes[HORAVEX_ASR] = 61; }, "minutes[3]"},
        {[](Asked& a) { a.method.nights = 5; }, "nights"},
        {[](Asked& a) { a.method.sun = 2; }, "sun"},
        {[](Asked& a) { a.method.hijri = -1; }, "hijri"},
        {[](Asked& a) { a.method.hijri_adjustment = 3; }, "hijri_adjustment"},
        {[](Asked& a) { a.method.reserved = 1; }, "reserved"},
        {[](Asked& a) { a.place.zone = nullptr, a.place.utc_offset = 12.5; }, "utc_offset"},
        {[](Asked& a) { a.place.zone = nullptr, a.place.dst_first_day = 80; }, "dst_last_day"},
        {[](Asked& a) { a.place.zone = nullptr, a.place.dst_last_day = 367; }, "dst_first_day"},
    };
    for (const auto& [spoil, field] : rows) {
        Asked asked;
        spoil(asked);
        EXPECT_EQ(asked.Make(), HORAVEX_BAD_ARGUMENT) << field;
        EXPECT_THAT(asked.error.text, testing::StartsWith(std::string(field) + " ")) << field;
    }
}

TEST(Answers, NullsAreRefused) {
    Asked asked;
    horavex_year* made = nullptr;
    EXPECT_EQ(horavex_year_make(nullptr, &asked.method, 2026, &made, nullptr),
              HORAVEX_BAD_ARGUMENT);
    EXPECT_EQ(horavex_year_make(&asked.place, nullptr, 2026, &made, nullptr), HORAVEX_BAD_ARGUMENT);
    EXPECT_EQ(horavex_year_make(&asked.place, &asked.method, 2026, nullptr, nullptr),
              HORAVEX_BAD_ARGUMENT);
    EXPECT_EQ(horavex_year_day(nullptr, 1, nullptr, nullptr), HORAVEX_BAD_ARGUMENT);
    EXPECT_EQ(horavex_year_next(nullptr, 0, nullptr, nullptr), HORAVEX_BAD_ARGUMENT);
    EXPECT_EQ(horavex_qibla(0.0, 0.0, nullptr, nullptr), HORAVEX_BAD_ARGUMENT);
    EXPECT_EQ(horavex_method_take(nullptr, "egypt", nullptr), HORAVEX_BAD_ARGUMENT);
    EXPECT_EQ(horavex_method_take(&asked.method, nullptr, nullptr), HORAVEX_BAD_ARGUMENT);
    EXPECT_EQ(horavex_hijri_of(0, 0, nullptr, nullptr, nullptr), HORAVEX_BAD_ARGUMENT);
    EXPECT_EQ(horavex_date_of(0, 0, nullptr, nullptr, nullptr), HORAVEX_BAD_ARGUMENT);
    EXPECT_EQ(horavex_moon_phases(0, 1, nullptr, 0, nullptr, nullptr), HORAVEX_BAD_ARGUMENT);
    EXPECT_EQ(horavex_moon_at(0.0, 0.0, 0, nullptr, nullptr), HORAVEX_BAD_ARGUMENT);
    EXPECT_EQ(horavex_moon_rise_set(0.0, 0.0, 0, 1, nullptr, nullptr), HORAVEX_BAD_ARGUMENT);
    EXPECT_EQ(horavex_year_days(nullptr), 0);
    horavex_year_free(nullptr);
}

TEST(Answers, StructsWithoutASizeAreRefused) {
    Asked asked;
    asked.method.size = 0;
    EXPECT_EQ(asked.Make(), HORAVEX_BAD_ARGUMENT);
    EXPECT_THAT(asked.error.text, HasSubstr("method.size"));
    horavex_day day = HORAVEX_DAY_INIT;
    day.size = sizeof day - 1;
    EXPECT_EQ(horavex_year_day(CairoYear().get(), 1, &day, nullptr), HORAVEX_BAD_ARGUMENT);
}

/// A struct as a later version may have it.
template <class Struct>
struct Later {
    Struct known;
    std::int64_t news;
};

TEST(Answers, LaterStructsThatAskForNothingNewAreTaken) {
    Later<horavex_method> method = {HORAVEX_METHOD_INIT, 0};
    method.known.size = sizeof method;
    const horavex_place place = Cairo();
    horavex_year* made = nullptr;
    EXPECT_EQ(horavex_year_make(&place, &method.known, 2026, &made, nullptr), HORAVEX_OK);
    horavex_year_free(made);
    method.news = 1;
    EXPECT_EQ(horavex_year_make(&place, &method.known, 2026, &made, nullptr), HORAVEX_BAD_ARGUMENT);
}

TEST(Answers, LaterStructsAreFilledAsFarAsTheyAreKnown) {
    Later<horavex_day> day = {HORAVEX_DAY_INIT, 42};
    day.known.size = sizeof day;
    EXPECT_EQ(horavex_year_day(CairoYear().get(), 32, &day.known, nullptr), HORAVEX_OK);
    EXPECT_EQ(day.known.size, sizeof day);
    EXPECT_EQ(day.known.date.month, 2);
    EXPECT_EQ(day.news, 42);
}

// Programs that were built with a former version go on.
TEST(Answers, LayoutOfTheStructsIsThatOfTheFirstVersion) {
    if (sizeof(void*) != 8) {
        return;
    }
    EXPECT_EQ(sizeof(horavex_error), 256U);
    EXPECT_EQ(sizeof(horavex_place), 48U);
    EXPECT_EQ(sizeof(horavex_method), 88U);
    EXPECT_EQ(offsetof(horavex_method, minutes), 44U);
    EXPECT_EQ(sizeof(horavex_date), 12U);
    EXPECT_EQ(sizeof(horavex_moment), 24U);
    EXPECT_EQ(sizeof(horavex_day), 40U + 6 * 24U);
    EXPECT_EQ(offsetof(horavex_day, moments), 40U);
    EXPECT_EQ(sizeof(horavex_next), 24U);
    EXPECT_EQ(sizeof(horavex_phase), 16U);
    EXPECT_EQ(sizeof(horavex_moon), 56U);
    EXPECT_EQ(sizeof(horavex_moon_day), 48U);
}

}  // namespace
}  // namespace horavex
