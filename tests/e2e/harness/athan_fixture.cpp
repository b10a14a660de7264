#include "e2e/harness/athan_fixture.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <sstream>

#include "e2e/harness/wait_until.h"
#include "linux/replace_file.h"
#include "store/settings_record.h"
#include "support/build_folder.h"

namespace horavex {

namespace fs = std::filesystem;

AthanProgramTest::AthanProgramTest() {
    desktop.StoreRegistryValue("Isha Dep Angle", "18");  // no first run
    clock.InstallIn(programVariables);
    sound->InstallIn(programVariables);
    fs::create_directories(desktop / "data/horavex/Athan");
    SetSound("athan", others);
    SetSound("fagr_athan", fajr);
    StoreSettings(3, kNoAlarm);
}

void AthanProgramTest::SetSound(const std::string& name, const Samples& samples) const {
    WriteWav(desktop / ("data/horavex/Athan/" + name + ".mp3"), samples);
}

void AthanProgramTest::StoreSettings(std::int16_t athanType, int alarmTime) const {
    const std::string installed = BuiltProgramFolder() + "/Dat/AI.DAT";
    SettingsBytes bytes{};
    const std::string content = ContentOf(installed);
    std::copy(content.begin(), content.end(), bytes.begin());
    SettingsRecord record = DecodeSettings(bytes);
    record.AthanType = athanType;
    record.AlarmTime = static_cast<std::int16_t>(alarmTime);
    bytes = EncodeSettings(record);
    fs::create_directories(desktop / "data/horavex/Dat");
    for (const std::string name : {"AI.DAT", "Settings.DAT"}) {
        ReplaceFile(desktop / ("data/horavex/Dat/" + name), Bytes(bytes.begin(), bytes.end()));
    }
}

void AthanProgramTest::StoreOptions(
    const std::vector<std::pair<std::string, std::string>>& options) const {
    desktop.StoreRegistryValue("Isha Dep Angle", "18");
    std::ofstream file(desktop / "config/horavex/registry.ini", std::ios::app);
    file << "[Software\\\\Horavex\\\\Options]\n";
    for (const auto& [name, value] : options) {
        file << name << '=' << value << '\n';
    }
}

ChildProcess AthanProgramTest::Start() {
    Environment former = desktop.variables;
    desktop.variables.insert(programVariables.begin(), programVariables.end());
    ChildProcess program = desktop.Start("horavex");
    desktop.variables = std::move(former);
    face = desktop.WaitForWindow(program, kFaceTitle);
    return program;
}

int AthanProgramTest::SecondOf(std::size_t prayer) const {
    const std::string json =
        RunProgram("horavexctl", {"today", "--json", "--at", "2026-11-21T00:00:00"},
                   desktop.variables)
            .out;
    std::istringstream in(json.substr(json.find('[', json.find("\"hours\"")) + 1));
    double hours = 0.0;
    for (std::size_t i = 0; i <= prayer; ++i) {
        in >> hours;
        in.ignore(1);
    }
    return static_cast<int>(std::ceil(hours * 3600.0));
}

void AthanProgramTest::SetClock(int second) const {
    std::ostringstream moment;
    moment << "2026-11-21 " << std::setfill('0') << std::setw(2) << second / 3600 << ':'
           << std::setw(2) << second / 60 % 60 << ':' << std::setw(2) << second % 60;
    clock.Set(moment.str());
}

std::string AthanProgramTest::WaitForAthan(const ChildProcess& program) const {
    const std::string window = desktop.WaitForWindow(program, kAthanTitle);
    WaitUntil("a window that stands", [&] { return IsTopMost(window); });
    return window;
}

bool AthanProgramTest::IsTopMost(const std::string& window) const {
    return desktop.Use({"xprop", "-id", window, "_NET_WM_STATE"}).find("_STATE_ABOVE") !=
           std::string::npos;
}

// The tool waits in vain for a pointer that is there already.
void AthanProgramTest::Click(const std::string& window, int x, int y) const {
    desktop.Use({"xdotool", "mousemove", "0", "0"});
    desktop.Click(window, x, y);
}

bool AthanProgramTest::IsOnView(const ChildProcess& program) const {
    for (const std::string& window : desktop.WindowsOf(program)) {
        if (desktop.TitleOf(window) == kAthanTitle) {
            return true;
        }
    }
    return false;
}

void AthanProgramTest::ExpectTicks() const {
    const std::string before = desktop.Fingerprint();
    EXPECT_TRUE(WaitUntil("another picture", [&] { return desktop.Fingerprint() != before; }));
}

}  // namespace horavex
