#include <algorithm>
#include <memory>
#include <span>
#include <sstream>

#include "base/plain_text.h"
#include "base/utf8.h"
#include "ctl/basis.h"
#include "ctl/calculation.h"
#include "ctl/place_options.h"
#include "engine/angle.h"
#include "engine/current_year.h"
#include "engine/moment_text.h"
#include "engine/moments.h"
#include "engine/ruled_year.h"
#include "engine/year_table.h"
#include "store/location_record.h"

namespace horavex {

namespace {

struct YearArguments {
    PlaceOptions place;
    int year = 0;
};

PrayerRow HoursOf(const DayMoments& moments) {
    PrayerRow hours;
    std::ranges::transform(moments, hours.begin(), &Moment::hours);
    return hours;
}

/// A year that gave up is told as its table stands; rows that were not reached are zeros.
Json TimesJson() {
    Json rows = Json::array();
    for (std::size_t row = 0; row < DaysOfYear(); ++row) {
        rows.push_back(CalcFailed == 0 ? HoursOf(MomentsOfRow(row)) : TimesOfRow(row));
    }
    return rows;
}

constexpr std::size_t kWidth = 10;        // of a column
constexpr std::size_t kMarkedWidth = 13;  // of one whose times have marks

std::string Column(const std::string& text, std::size_t width) {
    return text + std::string(width - std::min(width, Utf8Length(text)), ' ');
}

std::string Line(std::string text) {
    text.erase(text.find_last_not_of(' ') + 1);
    return text + "\n";
}

std::string HeadLine(std::size_t width) {
    std::string line(7, ' ');
    for (const char* prayer : kPrayerKeys) {
        line += Column(prayer, width);
    }
    return Line(line);
}

std::string DayLine(std::size_t row, std::span<const Moment> moments, std::size_t width) {
    const CivilDate date = CivilFromDate(DateSerial(CurrentYear, 1, 1) + static_cast<double>(row));
    std::ostringstream line;
    line << (date.month < 10 ? "0" : "") << date.month << (date.day < 10 ? "-0" : "-") << date.day;
    line << "  ";
    for (const Moment& moment : moments) {
        line << Column(moment.hours == NoEvent ? "--" : MomentCell(moment), width);
    }
    return Line(line.str());
}

/// Day by day, each by prayer.
std::vector<Moment> YearMoments() {
    std::vector<Moment> all;
    for (std::size_t row = 0; row < DaysOfYear(); ++row) {
        const DayMoments moments = MomentsOfRow(row);
        all.insert(all.end(), moments.begin(), moments.end());
    }
    return all;
}

std::string TimesText() {
    const std::vector<Moment> all = YearMoments();
    const auto notes = ColumnNotes(all, RuledYear.rules.moments.highLatitude);
    const std::size_t width = notes.empty() ? kWidth : kMarkedWidth;
    std::string text = HeadLine(width);
    for (std::size_t row = 0; row < DaysOfYear(); ++row) {
        text += DayLine(row, std::span(all).subspan(row * kPrayerCount, kPrayerCount), width);
    }
    for (const std::string& note : notes) {
        text += note + "\n";
    }
    return WithoutControls(text) + BasisText(DateSerial(CurrentYear, 1, 1));
}

/// Without a city everything that the times depend on is asked for.
void RequireAll(const PlaceOptions& place) {
    const std::pair<const char*, bool> required[] = {
        {"--latitude", place.latitude.has_value()},
        {"--zone", place.zone || place.rules.timeZone},
        {"--fajr", place.fajr.has_value()},
        {"--isha", place.isha || place.rules.ishaInterval},
        {"--asr", place.asr.has_value()}};
    for (const auto& [name, given] : required) {
        if (!given && !NamesCity(place)) {
            RefuseUsage(std::string(name) + " is required where no city is named");
        }
    }
}

void PrintYear(Session& session, const YearArguments& options) {
    RequireAll(options.place);
    ApplyPlace(options.place, DateSerial(options.year, 1, 1));
    Calculate(session, options.year);
    Json json = {{"year", options.year},
                 {"latitude", StoredCoord(Location.City.Latitude)},
                 {"longitude", StoredCoord(Location.City.Longitude)},
                 {"calcFailed", CalcFailed},
                 {"failure", FailureJson()},
                 {"times", TimesJson()}};
    AddYearBasis(json);
    session.Print(json, session.status == kDone ? TimesText() : "");
}

}  // namespace

void AddYearCommand(CLI::App& app, Session& session) {
    auto* command = AddCommand(app, session, "year", "The six times of every day of a year");
    auto options = std::make_shared<YearArguments>();
    AddPlaceOptions(*command, options->place);
    command->add_option("--year", options->year, "Gregorian year")
        ->check(CLI::Range(1, 9999))
        ->required();
    command->callback([&session, options] { PrintYear(session, *options); });
}

}  // namespace horavex
