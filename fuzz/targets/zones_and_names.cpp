#include "base/fault.h"
#include "base/utf8.h"
#include "fuzz/damaged_folder.h"
#include "fuzz/target.h"
#include "fuzz/targets/targets.h"
#include "lang/language_pack.h"
#include "shell/face_place.h"
#include "store/city_names.h"
#include "store/city_zones.h"
#include "store/location_record.h"
#include "store/settings_record.h"

namespace horavex {

namespace {

/// The face looks for the name of its place in the script of the pack.
void TellPlace(MemoryFiles& files, std::int16_t city) {
    files.WriteWhole("/program/lang/Arabic.ini", BytesOf("[timetables]\nTitle=\u0645\nCode=ar\n"));
    currentLanguage = "Arabic";
    ActiveSettings.CityIndex = city;
    ActiveCityText = LookupLocation(city, ActiveLocation);
    PlaceOfFace();
}

}  // namespace

void FuzzZonesAndNames(ByteView bytes) {
    FuzzInput input(bytes);
    const std::int16_t city = input.TakeInt16();
    const std::int64_t cities = input.TakeByte();
    DamagedFolder folder(input, {"Dat/ZI.DAT", "Dat/Z.DAT", "Dat/N.DAT"});
    RunStep([city] {
        const CityZones zones;
        zones.Of(city);
        zones.Of(kFirstCityIndex);
    });
    RunStep([cities] {
        TextStore texts;
        const auto names = ReadOtherNames(cities, texts);
        Require(names.empty() || static_cast<std::int64_t>(names.size()) == cities,
                "names of every city or of none");
    });
    RunStep([&] { TellPlace(folder.platform.files, city); });
}

}  // namespace horavex
