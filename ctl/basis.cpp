#include "ctl/basis.h"

#include "ctl/place_clock.h"
#include "ctl/place_options.h"
#include "engine/current_year.h"
#include "engine/moment_text.h"
#include "engine/moments.h"
#include "engine/year_table.h"
#include "store/around_options.h"
#include "store/settings_record.h"
#include "timetables/timetable.h"

namespace horavex {

namespace {

Json ZoneJson(Date now) {
    const ZoneOffset offset = WorkingOffset(now, now);
    const std::string& name = ChosenOptions.zone;
    return {{"name", name.empty() ? Json() : Json(name)},
            {"offset", offset.seconds / kSecondsPerHour},
            {"daylight", offset.daylight}};
}

std::string RuleWord() {
    return option::kHighLatitudeRule.words[static_cast<std::size_t>(ChosenOptions.highLatitude)];
}

Json LocalJson(Date day, double hours) {
    const std::string stamp = WorkingStamp(day, hours);
    return stamp.empty() ? Json() : Json(stamp);
}

}  // namespace

void AddBasis(Json& object, Date now) {
    object["timeZone"] = ZoneJson(now);
    object["method"] = ChosenMethod == nullptr ? Json() : Json(ChosenMethod->name);
    object["highLatitudeRule"] = RuleWord();
}

std::string BasisText(Date now) {
    std::string text;
    if (!ChosenOptions.zone.empty()) {
        text += "Time zone: " + ChosenOptions.zone + ", UTC" + OffsetText(WorkingOffset(now, now)) +
                "\n";
    }
    if (ChosenMethod != nullptr) {
        text += std::string("Method: ") + ChosenMethod->name + "\n";
    }
    if (ChosenOptions.highLatitude != HighLatitudeRule::kNone) {
        text += "Nights without twilight: by the rule \"" + RuleWord() + "\"\n";
    }
    return text;
}

Json MomentsJson(Date day, const DayMoments& moments) {
    Json array = Json::array();
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        array.push_back({{"prayer", kPrayerKeys[prayer]},
                         {"local", LocalJson(day, moments[prayer].hours)},
                         {"by", WordOf(moments[prayer].by)}});
    }
    return array;
}

void AddAround(Json& object, Date day) {
    if (ReadOption(option::kAroundTheDay) == 0) {
        return;
    }
    const auto row = static_cast<std::size_t>(day - DateSerial(CurrentYear, 1, 1));
    const AroundMoments around = AroundOfRow(row);
    object["around"] = Json::array();
    for (std::size_t time = 0; time < kAroundCount; ++time) {
        object["around"].push_back({{"time", kAroundKeys[time]},
                                    {"local", LocalJson(day, around[time].hours)},
                                    {"by", WordOf(around[time].by)}});
    }
}

std::size_t DaysOfYear() {
    return 365U + static_cast<std::size_t>(LeapFlag);
}

}  // namespace horavex
