// Renders the face over whole screens and as a line into PNG files, in every language, to be looked
// at by the people who draw it:
//
//     QT_QPA_PLATFORM=offscreen render_shapes FOLDER
#include <QApplication>

#include "desktop/face/poster_view.h"
#include "desktop/face/strip_view.h"
#include "desktop/pack_day.h"
#include "sky/day_sky.h"
#include "support/program_copy.h"
#include "support/shipped_languages.h"
#include "support/test_platform.h"

namespace {

using namespace horavex;

const QSize kScreens[] = {{1024, 768}, {1280, 800}, {1366, 768}, {1920, 1080}};

QString folder;

/// A day in words under a sun of that altitude.
FaceDay Under(double altitude, const DayView& day) {
    DaySky sky;
    sky.sunAltitude = altitude;
    FaceDay face = FaceDayOf(day);
    face.sky = std::make_shared<const DaySky>(sky);
    return face;
}

template <class View>
void Save(View& view, const FaceDay& day, const QString& name) {
    view.ShowDay(day);
    view.grab().save(folder + "/" + name + ".png");
}

void RenderShapes(const QString& name, const FaceDay& day) {
    for (const QSize& screen : kScreens) {
        PosterView poster([] {});
        poster.resize(screen);
        poster.ShowDates(LongDates());
        const QString size =
            QString::number(screen.width()) + "x" + QString::number(screen.height());
        Save(poster, day, "screen-" + name + "-" + size);
    }
    StripView strip;
    Save(strip, day, "line-" + name);
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    TestPlatform platform;
    CopyBuiltProgramFolder(platform.files);
    folder = QString::fromLocal8Bit(argv[1]);
    for (const std::string& language : kShippedLanguages) {
        SpeakPack(language);
        const QString name = QString::fromStdString(language);
        RenderShapes(name + "-noon", Under(40.0, DayWithIqamas()));
        RenderShapes(name + "-night", Under(-40.0, NightOfRamadan()));
    }
    return 0;
}
