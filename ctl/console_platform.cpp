#include "ctl/console_platform.h"

#include <chrono>
#include <cmath>
#include <cstdlib>
#include <iostream>
#include <thread>

#include "base/plain_text.h"
#include "ctl/place_options.h"
#include "engine/limit_message.h"
#include "engine/year_table.h"
#include "geo/qibla.h"
#include "linux/program_stores.h"
#include "store/settings_record.h"

namespace horavex {

namespace {

Date WorkingZoneTime() {
    const Date universal = SystemClock().UniversalNow();
    if (!ChosenOptions.zone.empty()) {
        const double seconds = (universal - DateSerial(1970, 1, 1)) * kSecondsPerDay;
        return LocalDateOf(Ports().zoneRules, ChosenOptions.zone, std::llround(seconds));
    }
    const Date standard = universal + Settings.TimeZone / 24.0;
    return IsDaylightDay(standard) ? standard + 1.0 / 24.0 : standard;
}

}  // namespace

void ConsoleClock::StandAt(Date moment) {
    choice_ = [moment] { return moment; };
}

void ConsoleClock::RunInWorkingZone() {
    choice_ = WorkingZoneTime;
}

void ConsoleEventLoop::Sleep(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

void ConsoleEventLoop::EndProcess() {
    std::exit(1);
}

void ConsoleDialogs::ShowMessage(const std::string& text, const std::string&, MessageIcon) {
    std::cerr << WithoutControls(text) << '\n';
}

void ConsoleHost::ComputeQibla() {
    horavex::ComputeQibla();
}

double ConsoleHost::QiblaBearing() {
    return QiblaDegrees;
}

YearRules ConsoleHost::RulesOf(std::int16_t year) {
    YearRules rules = RulesOfYear(ChosenOptions, year);
    rules.method = ChosenMethod == nullptr ? "" : ChosenMethod->name;
    return rules;
}

ConsolePlatform::ConsolePlatform()
    : folder_(FindProgramFolder(dataFiles_)),
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
