#include <algorithm>
#include <memory>
#include <span>
#include <sstream>

#include "base/plain_text.h"
#include "base/utf8.h"
#include "ctl/basis.h"
#include "ctl/calculation.h"
#include "ctl/year_call.h"
#include "ctl/year_json.h"
#include "engine/current_year.h"
#include "engine/moment_text.h"
#include "engine/moments.h"
#include "engine/ruled_year.h"
#include "engine/year_table.h"

namespace horavex {

namespace {

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
std::vector<Moment> AllMoments() {
    std::vector<Moment> all;
    for (const DayMoments& moments : MomentsOfAllRows()) {
        all.insert(all.end(), moments.begin(), moments.end());
    }
    return all;
}

std::string TimesText() {
    const std::vector<Moment> all = AllMoments();
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

void PrintYear(Session& session, const YearCall& call) {
    RequireAll(call.place);
    TakeYearCall(call);
    Calculate(session, call.year);
    if (session.json) {
        session.PrintJson(YearJson());
    } else if (session.status == kDone) {
        session.Print(nullptr, TimesText());
    }
}

}  // namespace

void AddYearCommand(CLI::App& app, Session& session) {
    auto* command = AddCommand(app, session, "year", "The six times of every day of a year");
    auto call = std::make_shared<YearCall>();
    AddYearCallOptions(*command, *call);
    command->callback([&session, call] { PrintYear(session, *call); });
}

}  // namespace horavex
