#include <unistd.h>

#include <algorithm>
#include <memory>
#include <optional>

#include "base/text.h"
#include "calendar/date_words.h"
#include "ctl/basis.h"
#include "ctl/calculation.h"
#include "ctl/date_option.h"
#include "ctl/day_text.h"
#include "ctl/place_clock.h"
#include "ctl/place_options.h"
#include "ctl/status_line.h"
#include "ctl/told_day.h"
#include "ctl/watch.h"
#include "engine/current_year.h"
#include "engine/day_driver.h"
#include "engine/next_prayer.h"
#include "geo/qibla.h"
#include "lang/language_pack.h"
#include "store/stored_values.h"
#include "timetables/timetable.h"

namespace horavex {

namespace {

struct TodayOptions {
    PlaceOptions place;
    std::optional<std::string> at;
    bool watch = false;
    std::string format;
};

Json HoursJson(const DayMoments& moments) {
    Json hours = Json::array();
    for (const Moment& moment : moments) {
        hours.push_back(moment.hours);
    }
    return hours;
}

Json TimesJson(const DayMoments& moments) {
    Json times = Json::object();
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        times[kPrayerKeys[prayer]] = Ports().formats.MediumTime(moments[prayer].hours / 24.0);
    }
    return times;
}

Json HijriJson(const HijriDate& hijri) {
    return {{"day", hijri.day},
            {"month", hijri.month},
            {"monthName", HijriMonthName(hijri.month)},
            {"year", hijri.year}};
}

Json DayJson(const DayView& day) {
    Json json = {{"city", day.place},
                 {"date", IsoDate(CivilFromDate(day.date))},
                 {"hijri", HijriJson(day.hijri)},
                 {"hours", HoursJson(day.moments)},
                 {"times", TimesJson(day.moments)},
                 {"next",
                  {{"index", day.next.prayer},
                   {"sentence", NextPrayerSentence(day.next)},
                   {"remainingSeconds", static_cast<int>(day.next.remainingSeconds)},
                   {"remaining", RemainingText(day.next.remainingSeconds)}}},
                 {"qibla", {{"degrees", day.qiblaDegrees}, {"text", QiblaText}}},
                 {"failure", FailureJson()}};
    AddBasis(json, day.now);
    json["moments"] = MomentsJson(day.date, day.moments);
    AddAround(json, day.date);
    return json;
}

int PresentYear() {
    return CivilFromDate(Ports().clock.Today()).year;
}

/// The day of now; a new year is calculated when it has come.
DayView DayOfNow(Session& session) {
    const Date now = Ports().clock.Now();
    if (CivilFromDate(now).year != CurrentYear) {
        Calculate(session, CivilFromDate(now).year);
    }
    return TakeDayView(now).value();
}

/// One frame of the live view.
std::string Frame(Session& session) {
    return DayText(DayOfNow(session), true) + "\nCtrl+C ends\n";
}

void Watch(Session& session) {
    if (isatty(STDOUT_FILENO) == 0) {
        RefuseUsage("--watch wants a terminal");
    }
    if (session.status == kDone) {
        WatchInTerminal([&] { return Frame(session); });
    }
}

/// The accepted place is where the computer stands, so its clock counts; another place, or a zone
/// by hand, has a clock of its own.
void SetClock(ConsoleClock& clock, const TodayOptions& options) {
    if (options.at) {
        clock.StandAt(ParseMomentOption(*options.at));
    } else if (NamesPlace(options.place) || options.place.rules.timeZone) {
        clock.RunInWorkingZone();
    }
}

/// For status bars a line of their own.
std::string TextOf(const DayView& day, const std::string& format) {
    return format.empty()
               ? DayText(day, false)
               : FilledLine(format, FieldsOf(ToldDay(day), UniversalOfWorking(day.now))) + "\n";
}

void RunToday(Session& session, const TodayOptions& options) {
    CheckLine(options.format);
    currentLanguage = ReadStoredLanguage();
    ApplyPlace(options.place, options.at ? ParseMomentOption(*options.at) : Ports().clock.Today());
    SetClock(session.platform.clock, options);
    Calculate(session, PresentYear());
    if (options.watch) {
        Watch(session);
    } else {
        const DayView day = DayOfNow(session);
        session.Print(DayJson(day), session.status == kDone ? TextOf(day, options.format) : "");
    }
}

}  // namespace

void AddTodayCommand(CLI::App& app, Session& session) {
    auto* command = AddCommand(app, session, "today", "The day's times and the next prayer");
    auto options = std::make_shared<TodayOptions>();
    AddPlaceOptions(*command, options->place);
    auto* at = command->add_option("--at", options->at, "A moment in place of now");
    command->add_option("--format", options->format, "A line with {next}, {time}, {remaining}, ...")
        ->excludes("--json");
    command->add_flag("--watch", options->watch, "Redraw each second in the terminal")
        ->excludes(at)
        ->excludes("--json")
        ->excludes("--format");
    command->callback([&session, options] { RunToday(session, *options); });
}

}  // namespace horavex
