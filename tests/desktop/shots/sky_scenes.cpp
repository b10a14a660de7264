#include "desktop/shots/scenes.h"
#include "skywindows/crescent_window.h"
#include "skywindows/sky_window.h"
#include "windows/frm_crescent.h"
#include "windows/frm_main.h"
#include "windows/frm_sky.h"

namespace horavex {

namespace {

constexpr int kSkyPages = 4;
constexpr int kSecondEvening = 1;

Scene SkyPage(int page) {
    return {"sky-" + std::to_string(page + 1), [=](Stage& stage) {
                stage.Visit([] { OpenSky(*frmMain); }, *frmSky,
                            [&] {
                                frmSky->tabPages.UserSelect(page);
                                stage.Look(*frmSky);
                            });
            }};
}

void FinishMap() {
    while (frmCrescent->tmrMap.Running()) {
        frmCrescent->tmrMap.Tick();
    }
}

/// The map of an evening by a criterion, both from 0; worked out or only begun.
Scene CrescentScene(const char* name, int evening, int criterion) {
    return {name, [=](Stage& stage) {
                stage.Visit([] { OpenCrescent(*frmMain); }, *frmCrescent,
                            [&] {
                                frmCrescent->cboEvening.UserSelect(evening);
                                frmCrescent->cboCriterion.UserSelect(criterion);
                                FinishMap();
                                stage.Look(*frmCrescent);
                            });
            }};
}

}  // namespace

std::vector<Scene> SkyScenes() {
    std::vector<Scene> scenes;
    for (int page = 0; page < kSkyPages; ++page) {
        scenes.push_back(SkyPage(page));
    }
    scenes.push_back(CrescentScene("crescent", kSecondEvening, 0));
    scenes.push_back(CrescentScene("crescent-odeh", kSecondEvening, 1));
    return scenes;
}

}  // namespace horavex
