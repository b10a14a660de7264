#include <memory>
#include <sstream>

#include "ctl/calculation.h"
#include "ctl/place_options.h"
#include "engine/angle.h"
#include "engine/current_year.h"
#include "engine/solar_event.h"
#include "engine/year_table.h"
#include "store/location_record.h"

namespace horavex {

namespace {

struct YearArguments {
    PlaceOptions place;
    int year = 0;
};

std::size_t DaysOfYear() {
    return 365U + static_cast<std::size_t>(LeapFlag);
}

/// Rows that the calculation did not reach are zeros.
Json TimesJson() {
    Json rows = Json::array();
    for (std::size_t row = 0; row < DaysOfYear(); ++row) {
        rows.push_back(TimesOfRow(row));
    }
    return rows;
}

std::string DayLine(std::size_t row) {
    const CivilDate date = CivilFromDate(DateSerial(CurrentYear, 1, 1) + static_cast<double>(row));
    std::ostringstream line;
    line << (date.month < 10 ? "0" : "") << date.month << (date.day < 10 ? "-0" : "-") << date.day;
    for (const double hours : TimesOfRow(row)) {
        line << "  "
             << (hours == NoEvent ? std::string("   --   ")
                                  : Ports().formats.MediumTime(hours / 24.0));
    }
    return line.str() + "\n";
}

std::string TimesText() {
    std::string text = "        Fajr   Shurooq      Zuhr       Asr   Maghrib      Isha\n";
    for (std::size_t row = 0; row < DaysOfYear(); ++row) {
        text += DayLine(row);
    }
    return text;
}

void PrintYear(Session& session, const YearArguments& options) {
    ApplyPlace(options.place);
    Calculate(session, options.year);
    session.Print({{"year", options.year},
                   {"latitude", StoredCoord(Location.City.Latitude)},
                   {"longitude", StoredCoord(Location.City.Longitude)},
                   {"calcFailed", CalcFailed},
                   {"failure", FailureJson()},
                   {"times", TimesJson()}},
                  session.status == kDone ? TimesText() : "");
}

}  // namespace

void AddYearCommand(CLI::App& app, Session& session) {
    auto* command = AddCommand(app, session, "year", "The six times of every day of a year");
    auto options = std::make_shared<YearArguments>();
    AddCoordinateOptions(*command, options->place, true);
    AddMethodOptions(*command, options->place, true);
    command->add_option("--year", options->year, "Gregorian year")
        ->check(CLI::Range(1, 9999))
        ->required();
    command->callback([&session, options] { PrintYear(session, *options); });
}

}  // namespace horavex
