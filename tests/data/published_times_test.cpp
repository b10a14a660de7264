#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <map>

#include "base/date.h"
#include "base/int16.h"
#include "base/number_text.h"
#include "base/text.h"
#include "config/authorities.h"
#include "engine/year_calculation.h"
#include "support/build_folder.h"

namespace horavex {
namespace {

struct PublishedDay {
    CivilDate date;
    std::array<std::optional<int>, kPrayerCount> minutes;  // of the day; none where not published
};

/// A file of data/published.
struct PublishedTable {
    std::map<std::string, std::string> told;  // by the names of the lines with "#"
    std::vector<PublishedDay> days;

    double Number(const std::string& name) const { return TextToNumber(told.at(name)); }
};

std::optional<int> MinuteOf(const std::string& text) {
    if (text.empty()) {
        return std::nullopt;
    }
    return std::stoi(text.substr(0, 2)) * 60 + std::stoi(text.substr(3));
}

PublishedDay DayOf(const std::string& line) {
    const std::vector<std::string> fields = Split(line, ',');
    const std::vector<std::string> date = Split(fields.at(0), '-');
    PublishedDay day{{std::stoi(date.at(0)), std::stoi(date.at(1)), std::stoi(date.at(2))}, {}};
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        day.minutes[prayer] = MinuteOf(fields.at(prayer + 1));
    }
    return day;
}

PublishedTable ReadPublished(const std::string& path) {
    std::ifstream file(path);
    PublishedTable table;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("# ")) {
            const std::size_t colon = line.find(": ");
            table.told[line.substr(2, colon - 2)] = line.substr(colon + 2);
        } else if (!line.starts_with("date,")) {
            table.days.push_back(DayOf(line));
        }
    }
    return table;
}

std::vector<std::string> PublishedFiles() {
    std::vector<std::string> paths;
    for (const auto& entry :
         std::filesystem::directory_iterator(SourcePath("tests/data/published"))) {
        if (entry.path().extension() == ".csv") {
            paths.push_back(entry.path());
        }
    }
    return paths;
}

YearTimes Calculated(const PublishedTable& table, const Authority& authority) {
    YearInputs inputs;
    inputs.year = ToInt16(table.days.front().date.year);
    CityRecord city;
    city.Latitude = RoundToInt16(table.Number("latitude") * 100.0);
    city.Longitude = RoundToInt16(table.Number("longitude") * 100.0);
    inputs.place = PlaceOf(city, table.Number("zone"));
    inputs.method.fajrAngle = authority.fajrAngle;
    inputs.method.ishaAngle = authority.ishaAngle;
    inputs.method.asrRatio = 1.0;
    return CalculateYear(inputs).times;
}

std::size_t RowOfDate(const CivilDate& date) {
    return static_cast<std::size_t>(DateSerial(date.year, date.month, date.day) -
                                    DateSerial(date.year, 1, 1));
}

/// The deviation that is farthest from 0: minutes, published less calculated with the margins.
double LargestDeviation(const PublishedTable& table, const Authority& authority) {
    const YearTimes times = Calculated(table, authority);
    double largest = 0.0;
    for (const PublishedDay& day : table.days) {
        for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
            const double minutes =
                times[prayer][RowOfDate(day.date)] * 60.0 + authority.margins[prayer];
            const double deviation = day.minutes[prayer].value_or(minutes) - minutes;
            largest = std::abs(deviation) > std::abs(largest) ? deviation : largest;
        }
    }
    return largest;
}

TEST(PublishedTimes, OfSevenAuthoritiesAreThere) {
    EXPECT_EQ(PublishedFiles().size(), 7U);
    for (const std::string& path : PublishedFiles()) {
        const PublishedTable table = ReadPublished(path);
        EXPECT_GE(table.days.size(), 17U) << path;
        EXPECT_THAT(table.told.at("source"), testing::StartsWith("https://")) << path;
    }
}

TEST(PublishedTimes, AreThoseOfTheMethodWithinTheToldMinutes) {
    for (const std::string& path : PublishedFiles()) {
        const PublishedTable table = ReadPublished(path);
        const Authority* authority = AuthorityOfKey(table.told.at("method"));
        ASSERT_NE(authority, nullptr) << path;
        EXPECT_LE(std::abs(LargestDeviation(table, *authority)), table.Number("within")) << path;
    }
}

// The neighbours of a method do not bear its table out: a degree of twilight is four minutes.
TEST(PublishedTimes, AreThoseOfNoOtherAngle) {
    for (const std::string& path : PublishedFiles()) {
        const PublishedTable table = ReadPublished(path);
        Authority other = *AuthorityOfKey(table.told.at("method"));
        other.fajrAngle += 1.0;
        EXPECT_GT(std::abs(LargestDeviation(table, other)), table.Number("within")) << path;
    }
}

TEST(PublishedTimes, AreThoseOfNoOtherMargin) {
    for (const std::string& path : PublishedFiles()) {
        const PublishedTable table = ReadPublished(path);
        Authority other = *AuthorityOfKey(table.told.at("method"));
        other.margins = {};
        if (other.margins != AuthorityOfKey(other.key)->margins) {
            EXPECT_GT(std::abs(LargestDeviation(table, other)), table.Number("within")) << path;
        }
    }
}

}  // namespace
}  // namespace horavex
