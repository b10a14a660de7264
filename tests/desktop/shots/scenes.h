#pragma once

#include <functional>
#include <string>
#include <vector>

#include "desktop/shots/stage.h"

namespace horavex {

/// What is to be seen of the program: one look at a stage of its own.
struct Scene {
    std::string name;  // of small letters, digits and hyphens; a file can have it
    std::function<void(Stage&)> play;
    Setting setting = {};
};

/// All of them: every window with its pages, the face in its shapes and hours, menus, messages.
const std::vector<Scene>& Scenes();

// By subject.
std::vector<Scene> FaceScenes();
std::vector<Scene> MenuScenes();
std::vector<Scene> SettingsScenes();
std::vector<Scene> AthanScenes();
std::vector<Scene> TimetableScenes();
std::vector<Scene> ToolScenes();
std::vector<Scene> SkyScenes();
std::vector<Scene> HelpScenes();

}  // namespace horavex
