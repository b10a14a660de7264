#include "store/location_files.h"

#include "base/fault.h"
#include "base/utf8.h"
#include "fuzz/damaged_folder.h"
#include "fuzz/target.h"
#include "fuzz/targets/targets.h"
#include "store/angle_band.h"

namespace horavex {

namespace {

void LookForCity(std::int16_t index) {
    LocationRecord place;
    place.Country = "as it was";
    std::string text = "as it was";
    if (FindLocation(index, place, text)) {
        Require(IsUtf8(text), "the text of a place is UTF-8");
    } else {
        Require(place.Country == "as it was" && text == "as it was",
                "a place that is not found changes nothing");
    }
}

void ReadAsFarAsItGoes(std::int16_t number) {
    OpenLocationFiles();
    RunStep([] { ReadCityRanges(); });
    RunStep([number] {
        CountryRecord country;
        ReadCountry(number, country);
    });
    RunStep([number] {
        CityRecord city;
        ReadCity(number, city);
    });
    RunStep([number] { FindCountryOfCity(number); });
    CloseLocationFiles();
}

}  // namespace

void FuzzLocationFiles(ByteView bytes) {
    FuzzInput input(bytes);
    const std::int16_t number = input.TakeInt16();
    const DamagedFolder folder(input, {"Dat/C.DAt", "Dat/CI.DAt", "Dat/S.DAT", "Dat/SI.DAt",
                                       "Dat/P.DAT", "Dat/PI.DAT", "Dat/A.dat"});
    RunStep([number] { LookForCity(number); });
    RunStep([] { LookForCity(kFirstCityIndex + 1); });
    RunStep([number] { ReadAsFarAsItGoes(number); });
    RunStep([number] { LoadAngleBand(number); });
}

}  // namespace horavex
