#include "store/settings_files.h"

#include <algorithm>

#include "base/fault.h"
#include "platform/platform.h"
#include "store/location_record.h"
#include "store/settings_record.h"

namespace horavex {

namespace {

constexpr const char* kActivePath = "Dat\\AI.DAT";
constexpr const char* kWorkingPath = "Dat\\Settings.DAT";

/// The file's bytes; none where there is no file or it cannot be read.
Bytes ReadOrNothing(const char* path) {
    try {
        return Ports().programFolder.ReadWhole(path);
    } catch (const FileFault&) {
        return {};
    }
}

SettingsRecord ReadRecord(const char* path) {
    const Bytes file = ReadOrNothing(path);
    SettingsBytes bytes{};
    if (file.size() >= bytes.size()) {
        std::copy_n(file.begin(), bytes.size(), bytes.begin());
    }
    return DecodeSettings(bytes);
}

void WriteRecord(const char* path, const SettingsRecord& record) {
    const SettingsBytes bytes = EncodeSettings(record);
    Bytes file = ReadOrNothing(path);
    file.resize(std::max(file.size(), bytes.size()));
    std::copy(bytes.begin(), bytes.end(), file.begin());
    Ports().programFolder.WriteWhole(path, file);
}

}  // namespace

void LoadActiveSettings() {
    ActiveSettings = ReadRecord(kActivePath);
}

void SaveActiveSettings() {
    WriteRecord(kActivePath, ActiveSettings);
}

void LoadWorkingSettings() {
    Settings = ReadRecord(kWorkingPath);
}

void SaveWorkingSettings() {
    WriteRecord(kWorkingPath, Settings);
}

void CopyActiveToWorking() {
    Settings = ActiveSettings;
    Location = ActiveLocation;
    CityText = ActiveCityText;
}

void ReloadWorkingSettings() {
    const double fajrAngle = Settings.FajrAngle;
    LoadWorkingSettings();
    Settings.FajrAngle = fajrAngle;
}

}  // namespace horavex
