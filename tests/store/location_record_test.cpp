#include "store/location_record.h"

#include <gtest/gtest.h>

#include "base/program_state.h"

namespace horavex {
namespace {

TEST(LocationRecord, FreshProcessHasNoPlace) {
    Location.Country = ActiveLocation.City.Name = CityText = ActiveCityText = "left over";
    Location.City.Latitude = ActiveLocation.City.Longitude = 1;
    ResetProgramState();
    EXPECT_EQ(Location.Country + ActiveLocation.City.Name + CityText + ActiveCityText, "");
    EXPECT_EQ(Location.City.Latitude, 0);
    EXPECT_EQ(ActiveLocation.City.Longitude, 0);
}

}  // namespace
}  // namespace horavex
