#include "desktop/face/qt_face.h"

#include <cmath>
#include <optional>

#include "desktop/face/day_arc.h"
#include "desktop/face/times_view.h"
#include "engine/day_view.h"
#include "engine/moment_text.h"
#include "engine/ruled_year.h"
#include "engine/solar_event.h"
#include "lang/language_pack.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

/// The moments in words: the names that the pack has given, the user's form of a time.
std::vector<PrayerEntry> RowsOf(const DayMoments& moments) {
    std::vector<PrayerEntry> rows;
    for (std::size_t prayer = 0; prayer < moments.size(); ++prayer) {
        const std::string name = frmMain->lblZoritNameArabic(static_cast<int>(prayer)).Caption();
        const std::string time = MomentText(moments[prayer]);
        rows.push_back({QString::fromStdString(name), QString::fromStdString(time)});
    }
    return rows;
}

/// Where the moments stand in the day; nothing for those that do not come.
std::vector<std::optional<double>> PartsOf(const DayMoments& moments) {
    std::vector<std::optional<double>> parts;
    for (const Moment& moment : moments) {
        const double days = moment.hours / 24.0;
        parts.push_back(IsEvent(moment.hours) ? std::optional(days - std::floor(days))
                                              : std::nullopt);
    }
    return parts;
}

/// A word of the pack; the key is the English one.
QString Word(const char* key) {
    return QString::fromStdString(GetLangString("desktop", key, key));
}

}  // namespace

// With the last of the captions another language may have come.
void QtFace::SetVariable(const std::string& name, const std::string& value) {
    PaintedFace::SetVariable(name, value);
    FaceView* view = LoadedView();
    if (view != nullptr && name == "prayer_time") {
        view->NameSigns(Word("Minimize"), Word("Close"));
    }
}

void QtFace::ShowDay(const DayView& day) {
    if (FaceView* view = LoadedView()) {
        view->ShowTimes(RowsOf(day.moments), static_cast<std::size_t>(day.next.prayer));
        view->ShowCountdown(QString::fromStdString(frmMain->Label3.Caption()),
                            static_cast<int>(day.next.remainingSeconds));
        view->ShowPlace(QString::fromStdString(day.place), QString::fromStdString(day.clocks));
        view->ShowIqama(QString::fromStdString(day.iqama));
        view->ShowSky(day.sky);
        view->Arc().ShowPrayers(PartsOf(day.moments), static_cast<std::size_t>(day.next.prayer));
        view->ExplainTimes(
            QString::fromStdString(RuleNote(day.moments, RuledYear.rules.moments.highLatitude)));
    }
}

void QtFace::Fill(QWidget& window) {
    window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint |
                          Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    FillWithView(window, new FaceView(QTime::currentTime, language_));
}

}  // namespace horavex
