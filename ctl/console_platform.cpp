#include "ctl/console_platform.h"

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <thread>

#include "engine/undefined_angle.h"
#include "geo/qibla.h"
#include "linux/folders.h"

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

void ConsoleEventLoop::Sleep(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

void ConsoleEventLoop::EndProcess() {
    std::exit(1);
}

void ConsoleDialogs::ShowMessage(const std::string& text, const std::string&, MessageIcon) {
    std::cerr << text << '\n';
}

void ConsoleHost::ComputeQibla() {
    horavex::ComputeQibla();
}

ConsolePlatform::ConsolePlatform()
    : folder_(FindProgramFolder(files)),
      registry_(FindRegistry(files)),
      instanceLock_(InstanceLockPath()) {
    InstallPlatform(&platform_);
    InstallDayHost(&host_);
    InstallUndefinedAngleReport();
}

ConsolePlatform::~ConsolePlatform() {
    InstallDayHost(nullptr);
    InstallPlatform(nullptr);
}

}  // namespace horavex
