#include "desktop/desktop_platform.h"

#include <QApplication>
#include <utility>

#include "linux/folders.h"
#include "linux/left_overs.h"
#include "linux/program_stores.h"
#include "platform/fault_box.h"
#include "shell/close_face.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

// The folders that the program writes into.
std::vector<std::string> OwnFolders() {
    return {FindProgramFolders().user, ConfigHome() + "/horavex", ConfigHome() + "/autostart"};
}

// The player's thread must not outlive the platform; what it has posted by then is dropped there.
void PostToProgramThread(std::function<void()> event) {
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [event = std::move(event)] { RunGuarded(event); },
        Qt::QueuedConnection);
}

}  // namespace

DesktopPlatform::DesktopPlatform()
    : eventLoop_([this] { LeaveBuses(); }),
      folder_(FindProgramFolder(files_)),
      beep_(PostToProgramThread, QApplication::beep),
      dialogs_([this] { beep_.Sound(); }),
      registry_(FindRegistry(files_)),
      instanceLock_(InstanceLockPath()),
      formWindows_(AllLayouts()),
      windows_(formWindows_),
      tray_(frmMain->mnuPopup, BringHiddenFaceIntoWindowList),
      shell_(files_),
      audioPlayer_(PostToProgramThread),
      broadcast_(PostToProgramThread),
      busPump_(broadcast_) {
    InstallPlatform(&platform_);
    ClearLeftOvers(OwnFolders());
}

DesktopPlatform::~DesktopPlatform() {
    InstallPlatform(nullptr);
}

/// The process is about to end: nothing of it stays on view, and nobody waits for it any more.
void DesktopPlatform::LeaveBuses() {
    notices_.Withdraw(NoticeKind::kAthan);
    notices_.Withdraw(NoticeKind::kPrayer);
    notices_.Withdraw(NoticeKind::kMissed);
    mediaPlayers_.GoOnAtOnce();
    Flush(QDBusConnection::sessionBus());
}

Layouts DesktopPlatform::AllLayouts() {
    Layouts layouts = DrawnLayouts();
    layouts["frmMain"] = [this](QWidget& window) { face_.Fill(window); };
    layouts["frmAzan"] = [this](QWidget& window) { athanFace_.Fill(window); };
    return layouts;
}

}  // namespace horavex
