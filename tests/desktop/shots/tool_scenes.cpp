#include "calendar/date_conversion_window.h"
#include "desktop/shots/scenes.h"
#include "geo/distance_window.h"
#include "geo/qibla_window.h"
#include "moon/moon_window.h"
#include "windows/f_qibla.h"
#include "windows/frm_date_convert.h"
#include "windows/frm_distance.h"
#include "windows/frm_main.h"
#include "windows/frm_ramadan.h"
#include "windows/moon_phases.h"

namespace horavex {

namespace {

constexpr int kMoonPages = 4;

void LookAtConversion(Stage& stage) {
    stage.Visit(ShowDateConversion, *frmDateConvert, [&] {
        frmDateConvert->TodaysDate.UserClick();
        stage.Look(*frmDateConvert);
    });
}

void LookAtQibla(Stage& stage) {
    stage.Visit(ShowQibla, *fQibla);
}

void LookAtDistance(Stage& stage) {
    stage.Visit(ShowDistance, *frmDistance, [&] {
        FillPickedCity(DistanceCity::kA, "Cairo, Cairo - Egypt",
                       "Latitude: 30 degrees, 3 minutes North",
                       "Longitude: 31 degrees, 15 minutes East");
        frmDistance->OptionDistanceToMecca.UserClick();
        frmDistance->optKilometers.UserClick();
        frmDistance->cmdCalcDistance.UserClick();
        stage.Look(*frmDistance);
    });
}

void LookAtEmptyDistance(Stage& stage) {
    stage.Visit(ShowDistance, *frmDistance);
}

Scene MoonPage(int page) {
    return {"moon-" + std::to_string(page + 1), [=](Stage& stage) {
                stage.Visit(ShowMoonPhases, *Moon_Phases, [&] {
                    Moon_Phases->SSTab1.UserSelect(page);
                    Moon_Phases->cmdCalculate.UserClick();
                    Moon_Phases->Cmdeclipse_sun.UserClick();
                    stage.Look(*Moon_Phases);
                });
            }};
}

void LookAtRamadanHelp(Stage& stage) {
    stage.Visit(ShowMoonPhases, *Moon_Phases, [&] { stage.Visit(ShowRamadanHelp, *frmRamadan); });
}

}  // namespace

std::vector<Scene> ToolScenes() {
    std::vector<Scene> scenes = {
        {"date-conversion", LookAtConversion},
        {"qibla", LookAtQibla},
        {"distance", LookAtDistance},
        {"distance-empty", LookAtEmptyDistance},
    };
    for (int page = 0; page < kMoonPages; ++page) {
        scenes.push_back(MoonPage(page));
    }
    scenes.push_back({"moon-help", LookAtRamadanHelp});
    return scenes;
}

}  // namespace horavex
