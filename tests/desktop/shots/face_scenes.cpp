#include <QApplication>
#include <QScreen>

#include "desktop/face/poster_view.h"
#include "desktop/shots/scenes.h"
#include "shell/face_shape.h"
#include "store/athan_options.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

Setting InCairo(Date day, int hour, int minute) {
    return {.now = day + TimeSerial(hour, minute, 8)};
}

const Date kAutumn = DateSerial(2026, 11, 21);
const Date kRamadan = DateSerial(2026, 3, 1);

Setting InOslo(Date day, int hour) {
    return {
        .now = day + TimeSerial(hour, 20, 8), .city = "Oslo", .rule = HighLatitudeRule::kSeventh};
}

void LookAtFace(Stage& stage) {
    stage.Look(*frmMain);
}

void LookAtIqamas(Stage& stage) {
    for (const WholeOption& iqama : option::kIqamas) {
        SaveOption(iqama, 15);
    }
    Stage::Tick();
    stage.Look(*frmMain);
}

void LookAtLine(Stage& stage) {
    TurnFaceSmall();
    stage.Look(*frmMain);
}

void LookAtPoster(Stage& stage) {
    TurnFaceFullScreen();
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (dynamic_cast<PosterView*>(widget) != nullptr && widget->isVisible()) {
            widget->resize(1280, 800);
            stage.Look({widget});
        }
    }
    TurnFaceFullScreen();
}

}  // namespace

std::vector<Scene> FaceScenes() {
    return {
        {"face-before-dawn", LookAtFace, InCairo(kAutumn, 5, 31)},
        {"face-dawn", LookAtFace, InCairo(kAutumn, 6, 14)},
        {"face-morning", LookAtFace, InCairo(kAutumn, 7, 5)},
        {"face-day", LookAtFace, InCairo(kAutumn, 14, 4)},
        {"face-sunset", LookAtFace, InCairo(kAutumn, 16, 50)},
        {"face-twilight", LookAtFace, InCairo(kAutumn, 17, 31)},
        {"face-night", LookAtFace, InCairo(kAutumn, 21, 34)},
        {"face-iqama", LookAtIqamas, InCairo(kAutumn, 11, 44)},
        {"face-iftar", LookAtFace, InCairo(kRamadan, 17, 12)},
        {"face-suhoor", LookAtFace, InCairo(kRamadan, 3, 40)},
        {"face-summer-night", LookAtFace, InOslo(DateSerial(2026, 6, 21), 23)},
        {"face-winter-noon", LookAtFace, InOslo(DateSerial(2026, 12, 21), 11)},
        {"line-day", LookAtLine, InCairo(kAutumn, 14, 4)},
        {"line-iftar", LookAtLine, InCairo(kRamadan, 17, 12)},
        {"poster-day", LookAtPoster, InCairo(kAutumn, 14, 4)},
        {"poster-suhoor", LookAtPoster, InCairo(kRamadan, 3, 40)},
    };
}

}  // namespace horavex
