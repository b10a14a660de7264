#include "store/location_files.h"

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
    MayRefuse([] { ReadCityRanges(); });
    MayRefuse([number] {
        CountryRecord country;
        ReadCountry(number, country);
    });
    MayRefuse([number] {
        CityRecord city;
        ReadCity(number, city);
    });
    MayRefuse([number] { FindCountryOfCity(number); });
    CloseLocationFiles();
}

}  // namespace

void FuzzLocationFiles(ByteView bytes) {
    FuzzInput input(bytes);
    const std::int16_t number = input.TakeInt16();
    const DamagedFolder folder(input, {"Dat/C.DAt", "Dat/CI.DAt", "Dat/S.DAT", "Dat/SI.DAt",
                                       "Dat/P.DAT", "Dat/PI.DAT", "Dat/A.dat"});
    MayRefuse([number] { LookForCity(number); });
    MayRefuse([] { LookForCity(kFirstCityIndex + 1); });
    MayRefuse([number] { ReadAsFarAsItGoes(number); });
    MayRefuse([number] { LoadAngleBand(number); });
}

}  // namespace horavex
