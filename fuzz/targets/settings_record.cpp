#include "store/settings_record.h"

#include <algorithm>

#include "base/fault.h"
#include "engine/year_calculation.h"
#include "engine/year_table.h"
#include "fuzz/damaged_folder.h"
#include "fuzz/target.h"
#include "fuzz/targets/targets.h"
#include "store/location_files.h"
#include "store/settings_files.h"

namespace horavex {

namespace {

constexpr const char* kFile = "/program/Dat/AI.DAT";

/// What was read is written as it was, and what lies behind it stays.
void RequireTheSameFile(TestPlatform& platform, const Bytes& before) {
    SaveActiveSettings();
    const Bytes after = platform.files.Contents(kFile);
    Require(after.size() == std::max(before.size(), kSettingsRecordSize), "length of the file");
    if (before.size() >= kSettingsRecordSize) {
        Require(after == before, "a record that is read and written stays as it was");
    } else {
        Require(ActiveSettings == SettingsRecord{}, "a short record is zeros");
    }
}

/// Whatever a file holds is used.
void UseSettings() {
    LoadWorkingSettings();
    LocationRecord place;
    std::string text;
    FindLocation(Settings.CityIndex, place, text);
    YearInputs inputs;
    inputs.year = 2026;
    inputs.place = {30.0, 31.25, Settings.TimeZone};
    inputs.method = MethodOf(Settings, IshaAngle);
    CalculateYear(inputs);
}

}  // namespace

void FuzzSettingsRecord(ByteView input) {
    TestPlatform platform;
    const Bytes bytes(input.begin(), input.end());
    for (const char* file : {kFile, "/program/Dat/Settings.DAT"}) {
        platform.files.WriteWhole(file, bytes);
    }
    LoadActiveSettings();
    RequireTheSameFile(platform, bytes);
    RunStep(UseSettings);
}

}  // namespace horavex
