#include "shell/face_words.h"

#include <cmath>

#include "engine/day_view.h"
#include "engine/moment_text.h"
#include "engine/ruled_year.h"
#include "engine/solar_event.h"
#include "lang/filled_text.h"
#include "lang/language_pack.h"
#include "platform/platform.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

/// The name that the pack has given.
const std::string& NameOf(std::size_t prayer) {
    return frmMain->lblZoritNameArabic(static_cast<int>(prayer)).Caption();
}

/// What is marked is what is told: a prayer of tomorrow that comes next stands in its row in place
/// of today's, and so does an Isha of yesterday that comes after midnight.
DayMoments ShownMoments(const DayView& day) {
    DayMoments moments = day.moments;
    moments.at(static_cast<std::size_t>(day.next.prayer)) = day.next.moment;
    return moments;
}

std::string IqamaOf(Moment moment, int minutes) {
    if (minutes == 0 || !IsEvent(moment.hours)) {
        return {};
    }
    moment.hours += minutes / 60.0;
    return FilledText(GetLangString("desktop", "IqamaAt", "Iqama {time}"), "{time}",
                      Ports().formats.MediumTime(moment.hours / 24.0));
}

std::optional<double> PartOfDay(const Moment& moment) {
    const double days = moment.hours / 24.0;
    return IsEvent(moment.hours) ? std::optional(days - std::floor(days)) : std::nullopt;
}

}  // namespace

FaceWords FaceWordsOf(const DayView& day) {
    FaceWords face;
    const DayMoments moments = ShownMoments(day);
    for (std::size_t prayer = 0; prayer < moments.size(); ++prayer) {
        const Moment& moment = moments[prayer];
        face.prayers.push_back({NameOf(prayer), MomentText(moment), MomentCell(moment),
                                IqamaOf(moment, day.iqamaMinutes[prayer]), PartOfDay(moment)});
    }
    face.next = static_cast<std::size_t>(day.next.prayer);
    if (day.next.isTomorrows) {
        face.tomorrow = FilledText(GetLangString("desktop", "Tomorrow", "{prayer} tomorrow"),
                                   "{prayer}", NameOf(face.next));
    }
    face.countdownWords = day.fast.empty() ? frmMain->Label3.Caption() : day.fast;
    face.seconds = static_cast<int>(day.next.remainingSeconds);
    face.clock = Ports().formats.MediumTime(day.now);
    face.place = day.place;
    face.clocks = day.clocks;
    face.iqama = day.iqama;
    face.timesNote = RuleNote(moments, RuledYear.rules.moments.highLatitude);
    face.sky = day.sky;
    return face;
}

}  // namespace horavex
