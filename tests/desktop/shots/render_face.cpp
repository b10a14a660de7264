// Renders the face under different skies into PNG files, to be looked at by the people who draw it:
//
//     QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=2 render_face FOLDER
#include <QApplication>
#include <QWidget>

#include "desktop/face/qt_face.h"
#include "desktop/face_values.h"
#include "sky/day_sky.h"
#include "support/test_platform.h"

namespace {

using namespace horavex;

struct Scene {
    const char* name;
    double latitude;
    double longitude;
    double zone;  // hours east of Greenwich
    Date day;
    double hour;
};

const Scene kScenes[] = {
    {"night", 30.06, 31.25, 2.0, DateSerial(2026, 11, 21), 21.5},
    {"before-dawn", 30.06, 31.25, 2.0, DateSerial(2026, 11, 21), 5.5},
    {"dawn", 30.06, 31.25, 2.0, DateSerial(2026, 11, 21), 6.3},
    {"morning", 30.06, 31.25, 2.0, DateSerial(2026, 11, 21), 7.0},
    {"noon", 30.06, 31.25, 2.0, DateSerial(2026, 11, 21), 11.8},
    {"dusk", 30.06, 31.25, 2.0, DateSerial(2026, 11, 21), 17.0},
    {"twilight", 30.06, 31.25, 2.0, DateSerial(2026, 11, 17), 17.5},
    {"oslo-june", 59.91, 10.75, 2.0, DateSerial(2026, 6, 21), 23.5},
    {"oslo-december", 59.91, 10.75, 1.0, DateSerial(2026, 12, 21), 12.0},
    {"tromso-june", 69.65, 18.96, 2.0, DateSerial(2026, 6, 21), 1.0},
    {"jakarta", -6.2, 106.8, 7.0, DateSerial(2026, 11, 17), 19.0},
};

/// The first or last hour at which the sun of an arc passes an altitude; no event without one.
double HourOf(const std::vector<double>& arc, double altitude, bool last) {
    constexpr int kMinutes = 1440;
    for (int minute = 0; minute < kMinutes; ++minute) {
        const double part = (last ? kMinutes - minute : minute) / double{kMinutes};
        if (AltitudeOnArc(arc, part) >= altitude && minute > 0) {
            return part * 24.0;
        }
    }
    return 0.0;
}

DayView DayOf(const Scene& scene) {
    SettingsRecord record;
    record.TimeZone = scene.zone;
    const SkyWatch watch{Ports().almanac, {scene.latitude, scene.longitude}, {"", record}};
    const Date now = scene.day + scene.hour / 24.0;
    const auto arc = SunArcOfDay(watch, scene.day);
    DayView day;
    day.now = now;
    day.place = scene.name;
    day.sky = std::make_shared<DaySky>(DaySkyAt(watch, now, arc));
    const double noon = (HourOf(arc, -0.83, false) + HourOf(arc, -0.83, true)) / 2.0;
    const double hours[] = {HourOf(arc, -18.0, false), HourOf(arc, -0.83, false), noon, noon + 3.2,
                            HourOf(arc, -0.83, true),  HourOf(arc, -18.0, true)};
    day.next.prayer = 0;
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        day.moments[prayer].hours = hours[prayer];
        if (hours[prayer] > scene.hour && day.next.prayer == 0) {
            day.next.prayer = static_cast<std::int16_t>(prayer);
            day.next.remainingSeconds = (hours[prayer] - scene.hour) * 3600.0;
        }
    }
    return day;
}

void Render(QtFace& face, QWidget& window, const QString& folder, const QString& language) {
    for (const Scene& scene : kScenes) {
        face.ShowDay(DayOf(scene));
        QApplication::processEvents();
        window.grab().save(folder + "/" + scene.name + "-" + language + ".png");
    }
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const TestPlatform platform;
    QtFace face;
    QWidget window;
    face.Fill(window);
    face.LoadMovie(0, "");
    window.show();
    const QString folder = QString::fromLocal8Bit(argv[1]);
    TellEnglish(face);
    Render(face, window, folder, "english");
    TellArabic(face);
    frmMain->Label3.SetCaption("المتبقي:");
    Render(face, window, folder, "arabic");
    return 0;
}
