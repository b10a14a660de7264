#include "desktop/desktop_platform.h"

#include "linux/folders.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

ProgramFolder FindProgramFolder(Files& files) {
    const ProgramFolders folders = FindProgramFolders();
    return {files, folders.user, folders.installed};
}

RegistryFile FindRegistry(Files& files) {
    const RegistryFiles paths = FindRegistryFiles();
    return {files, paths.user, paths.machine};
}

}  // namespace

DesktopPlatform::DesktopPlatform()
    : folder_(FindProgramFolder(files_)),
      registry_(FindRegistry(files_)),
      instanceLock_(InstanceLockPath()),
      formWindows_(AllLayouts()),
      windows_(formWindows_),
      tray_(frmMain->mnuPopup),
      shell_(files_) {
    InstallPlatform(&platform_);
}

DesktopPlatform::~DesktopPlatform() {
    InstallPlatform(nullptr);
}

Layouts DesktopPlatform::AllLayouts() {
    Layouts layouts = DrawnLayouts();
    layouts["frmMain"] = [this](QWidget& window) { face_.Fill(window); };
    return layouts;
}

}  // namespace horavex
