#pragma once

#include <gmock/gmock.h>

#include <memory>
#include <string>

#include "horavex.h"

namespace horavex {

struct FreeYear {
    void operator()(horavex_year* year) const { horavex_year_free(year); }
};
using Year = std::unique_ptr<horavex_year, FreeYear>;

inline horavex_place Place(double latitude, double longitude, const char* zone) {
    horavex_place place = HORAVEX_PLACE_INIT;
    place.latitude = latitude;
    place.longitude = longitude;
    place.zone = zone;
    return place;
}

inline horavex_place Cairo() {
    return Place(30.05, 31.25, "Africa/Cairo");
}

inline horavex_place Tromso() {
    return Place(69.65, 18.96, "Europe/Oslo");
}

inline Year MakeYear(const horavex_place& place, const horavex_method& method, int year) {
    horavex_error error = HORAVEX_ERROR_INIT;
    horavex_year* made = nullptr;
    EXPECT_EQ(horavex_year_make(&place, &method, year, &made, &error), HORAVEX_OK) << error.text;
    return Year(made);
}

inline Year CairoYear() {
    return MakeYear(Cairo(), HORAVEX_METHOD_INIT, 2026);
}

inline horavex_day DayOf(const Year& year, int dayOfYear) {
    horavex_day day = HORAVEX_DAY_INIT;
    EXPECT_EQ(horavex_year_day(year.get(), dayOfYear, &day, nullptr), HORAVEX_OK);
    return day;
}

}  // namespace horavex
