#include "desktop/shots/scenes.h"

#include <iterator>

namespace horavex {

namespace {

std::vector<Scene> AllScenes() {
    std::vector<Scene> all;
    for (const auto part : {FaceScenes, MenuScenes, SettingsScenes, AthanScenes, TimetableScenes,
                            ToolScenes, SkyScenes, HelpScenes}) {
        std::vector<Scene> scenes = part();
        std::move(scenes.begin(), scenes.end(), std::back_inserter(all));
    }
    return all;
}

}  // namespace

const std::vector<Scene>& Scenes() {
    static const std::vector<Scene> scenes = AllScenes();
    return scenes;
}

}  // namespace horavex
