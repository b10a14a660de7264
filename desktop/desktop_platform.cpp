#include "desktop/desktop_platform.h"

#include <QCursor>

#include "desktop/form_window/menu.h"
#include "forms/modal_loop.h"
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

void ShowFace() {
    frmMain->SetWindowState(WindowState::kNormal);
    frmMain->Show();
}

void OpenTrayMenu() {
    const ModalLoop loop;
    RunMenu(frmMain->mnuPopup, nullptr, QCursor::pos());
}

}  // namespace

DesktopPlatform::DesktopPlatform()
    : folder_(FindProgramFolder(files_)),
      registry_(FindRegistry(files_)),
      instanceLock_(InstanceLockPath()),
      formWindows_(AllLayouts()),
      windows_(formWindows_),
      shell_(files_) {
    tray_.onChosen = ShowFace;
    tray_.onMenu = OpenTrayMenu;
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
