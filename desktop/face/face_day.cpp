#include "desktop/face/face_day.h"

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

QString Text(const std::string& text) {
    return QString::fromStdString(text);
}

/// The name that the pack has given.
QString NameOf(std::size_t prayer) {
    return Text(frmMain->lblZoritNameArabic(static_cast<int>(prayer)).Caption());
}

/// A prayer of tomorrow that comes next stands in its row in place of today's: what is marked is
/// what is told.
DayMoments ShownMoments(const DayView& day) {
    DayMoments moments = day.moments;
    if (day.next.isTomorrows) {
        moments.at(static_cast<std::size_t>(day.next.prayer)) = day.next.moment;
    }
    return moments;
}

void NameTomorrow(PrayerEntry& row) {
    const std::string words = GetLangString("desktop", "Tomorrow", "{prayer} tomorrow");
    row.name = Text(FilledText(words, "{prayer}", row.name.toStdString()));
}

QString IqamaOf(Moment moment, int minutes) {
    if (minutes == 0 || !IsEvent(moment.hours)) {
        return {};
    }
    moment.hours += minutes / 60.0;
    return Text(FilledText(GetLangString("desktop", "IqamaAt", "Iqama {time}"), "{time}",
                           Ports().formats.MediumTime(moment.hours / 24.0)));
}

std::optional<double> PartOfDay(const Moment& moment) {
    const double days = moment.hours / 24.0;
    return IsEvent(moment.hours) ? std::optional(days - std::floor(days)) : std::nullopt;
}

}  // namespace

FaceDay FaceDayOf(const DayView& day) {
    FaceDay face;
    const DayMoments moments = ShownMoments(day);
    for (std::size_t prayer = 0; prayer < moments.size(); ++prayer) {
        face.rows.push_back({NameOf(prayer), Text(MomentText(moments[prayer]))});
        face.cells.push_back({NameOf(prayer), Text(MomentCell(moments[prayer]))});
        face.iqamas.push_back(IqamaOf(moments[prayer], day.iqamaMinutes[prayer]));
        face.arc.push_back(PartOfDay(moments[prayer]));
    }
    face.next = static_cast<std::size_t>(day.next.prayer);
    if (day.next.isTomorrows) {
        NameTomorrow(face.rows.at(face.next));
    }
    face.countdownWords = Text(day.fast.empty() ? frmMain->Label3.Caption() : day.fast);
    face.seconds = static_cast<int>(day.next.remainingSeconds);
    face.clock = Text(Ports().formats.MediumTime(day.now));
    face.place = Text(day.place);
    face.clocks = Text(day.clocks);
    face.iqama = Text(day.iqama);
    face.timesNote = Text(RuleNote(moments, RuledYear.rules.moments.highLatitude));
    face.sky = day.sky;
    return face;
}

QString DesktopWord(const char* key) {
    return Text(GetLangString("desktop", key, key));
}

}  // namespace horavex
