#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <map>
#include <span>

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
    YearPlace place;
    CivilDate date;
    std::array<std::optional<int>, kPrayerCount> minutes;  // of the day; none where not published
};

/// A file of data/published.
struct PublishedTable {
    std::map<std::string, std::string> told;  // by the names of the lines with "#"
    std::vector<PublishedDay> days;

    double Within() const { return TextToNumber(told.at("within")); }
};

std::optional<int> MinuteOf(const std::string& text) {
    if (text.empty()) {
        return std::nullopt;
    }
    return std::stoi(text.substr(0, 2)) * 60 + std::stoi(text.substr(3));
}

YearPlace PlaceOfTexts(const std::string& latitude, const std::string& longitude,
                       const std::string& zone) {
    CityRecord city;
    city.Latitude = RoundToInt16(TextToNumber(latitude) * 100.0);
    city.Longitude = RoundToInt16(TextToNumber(longitude) * 100.0);
    return PlaceOf(city, TextToNumber(zone));
}

/// The fields of a row from the date on.
PublishedDay DayOf(const YearPlace& place, std::span<const std::string> fields) {
    const std::vector<std::string> date = Split(fields[0], '-');
    PublishedDay day{
        place, {std::stoi(date.at(0)), std::stoi(date.at(1)), std::stoi(date.at(2))}, {}};
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        day.minutes[prayer] = MinuteOf(fields[prayer + 1]);
    }
    return day;
}

/// A row of a month's file has its place above, one of a day's file in front.
PublishedDay DayOfRow(const PublishedTable& table, const std::string& line) {
    constexpr std::size_t kPlaceFields = 4;
    const std::vector<std::string> fields = Split(line, ',');
    if (fields.size() > kPrayerCount + 1) {
        return DayOf(PlaceOfTexts(fields[1], fields[2], fields[3]),
                     std::span(fields).subspan(kPlaceFields));
    }
    return DayOf(
        PlaceOfTexts(table.told.at("latitude"), table.told.at("longitude"), table.told.at("zone")),
        fields);
}

PublishedTable ReadPublished(const std::string& path) {
    std::ifstream file(path);
    PublishedTable table;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("# ")) {
            const std::size_t colon = line.find(": ");
            table.told[line.substr(2, colon - 2)] = line.substr(colon + 2);
        } else if (!line.ends_with(",Isha")) {
            table.days.push_back(DayOfRow(table, line));
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

std::int16_t RowOfDate(const CivilDate& date) {
    return static_cast<std::int16_t>(DateSerial(date.year, date.month, date.day) -
                                     DateSerial(date.year, 1, 1));
}

/// The hours of a day by the sun alone, but for an interval to Isha.
PrayerRow Calculated(const PublishedDay& day, const Authority& authority) {
    YearInputs inputs{ToInt16(day.date.year), day.place, {}};
    inputs.method.fajrAngle = authority.fajrAngle;
    inputs.method.ishaAngle = authority.ishaAngle;
    inputs.method.asrRatio = 1.0;
    const std::int16_t row = RowOfDate(day.date);
    YearTimes times{};
    // That row alone: the year of a northern place ends at the first night without dusk.
    FillYear(YearConstantsOf(inputs.year), inputs, {row, AddInt16(row, 1)}, {}, times);
    PrayerRow hours = RowOf(times, static_cast<std::size_t>(row));
    if (authority.ishaInterval != 0) {
        hours[kIsha] = hours[kMaghrib] + authority.ishaInterval / 60.0;
    }
    return hours;
}

/// The deviation that is farthest from 0: minutes, published less calculated with the margins.
double LargestDeviation(const PublishedTable& table, const Authority& authority) {
    double largest = 0.0;
    for (const PublishedDay& day : table.days) {
        const PrayerRow hours = Calculated(day, authority);
        for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
            if (const auto published = day.minutes[prayer]) {
                const double deviation =
                    *published - (hours[prayer] * 60.0 + authority.margins[prayer]);
                largest = std::abs(deviation) > std::abs(largest) ? deviation : largest;
            }
        }
    }
    return largest;
}

TEST(PublishedTimes, OfTenMethodsAreThere) {
    EXPECT_EQ(PublishedFiles().size(), 10U);
    for (const std::string& path : PublishedFiles()) {
        const PublishedTable table = ReadPublished(path);
        EXPECT_GE(table.days.size(), 3U) << path;
        EXPECT_THAT(table.told.at("source"), testing::StartsWith("https://")) << path;
    }
}

TEST(PublishedTimes, AreThoseOfTheMethodWithinTheToldMinutes) {
    for (const std::string& path : PublishedFiles()) {
        const PublishedTable table = ReadPublished(path);
        const Authority* authority = AuthorityOfKey(table.told.at("method"));
        ASSERT_NE(authority, nullptr) << path;
        EXPECT_LE(std::abs(LargestDeviation(table, *authority)), table.Within()) << path;
    }
}

// The neighbours of a method do not bear its table out: a degree of twilight is four minutes.
TEST(PublishedTimes, AreThoseOfNoOtherAngle) {
    for (const std::string& path : PublishedFiles()) {
        const PublishedTable table = ReadPublished(path);
        Authority other = *AuthorityOfKey(table.told.at("method"));
        other.fajrAngle += 1.0;
        EXPECT_GT(std::abs(LargestDeviation(table, other)), table.Within()) << path;
    }
}

TEST(PublishedTimes, AreThoseOfNoOtherMargin) {
    for (const std::string& path : PublishedFiles()) {
        const PublishedTable table = ReadPublished(path);
        Authority other = *AuthorityOfKey(table.told.at("method"));
        other.margins = {};
        if (other.margins != AuthorityOfKey(other.key)->margins) {
            EXPECT_GT(std::abs(LargestDeviation(table, other)), table.Within()) << path;
        }
    }
}

}  // namespace
}  // namespace horavex
