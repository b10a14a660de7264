// Writes the settings records of a fresh install: Mecca in its zone, so that the first start
// calculates at once. Arguments: the compiled A.dat, the folder of the data files.

#include <iostream>

#include "lib/data_writer.h"
#include "lib/text_source.h"
#include "lib/tool_platform.h"
#include "store/angle_band.h"
#include "store/location_files.h"
#include "store/settings_defaults.h"
#include "store/settings_record.h"

namespace {

using namespace horavex;

constexpr std::int16_t kMeccaLatitude = 2143;  // hundredths of a degree
constexpr double kMeccaZone = 3.0;             // hours east of Greenwich

void Build(char** arguments) {
    ToolPlatform platform;
    platform.files.WriteWhole("/program/Dat/A.dat", BytesOf(ReadText(arguments[0])));
    LoadAngleBand(kMeccaLatitude);
    ApplyDefaultSettings(DateSerial(2026, 1, 1));
    Settings.DstEnabled = 0;
    Settings.Language = 1;
    Settings.CityIndex = kMeccaCityIndex;
    Settings.TimeZone = kMeccaZone;
    Settings.Reserved.fill(' ');
    const SettingsBytes record = EncodeSettings(Settings);
    WriteDataFile(arguments[1], "AI.DAT", record);
    WriteDataFile(arguments[1], "Settings.DAT", record);
    std::cout << "settings of a fresh install\n";
}

}  // namespace

int main(int argumentCount, char** arguments) {
    return RunTool("build_settings", argumentCount, 2, Build, arguments);
}
