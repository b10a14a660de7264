#include "store/location_files.h"

#include <optional>

#include "base/code_page.h"
#include "base/fault.h"
#include "base/int16.h"
#include "base/program_state.h"
#include "platform/platform.h"
#include "store/indexed_file.h"

namespace horavex {

namespace {

constexpr std::int64_t kRecordOfCityZero = 32001;
constexpr const char* kCountryIndex = "Dat\\SI.DAt";
constexpr std::size_t kCountryLength = 6;

/// An index of records beside the names that it points into.
struct NameFiles {
    RecordFile index;
    PackedTexts names;
};

std::optional<NameFiles> countryFiles;
std::optional<NameFiles> cityFiles;
std::optional<NameFiles> provinceFiles;

const ProgramStateReset reset([] { CloseLocationFiles(); });

void Open(std::optional<NameFiles>& files, const char* index, std::int64_t recordLength,
          const char* names) {
    if (!files) {
        files.emplace(NameFiles{RecordFile(index, recordLength), PackedTexts(names)});
    }
}

const NameFiles& Opened(const std::optional<NameFiles>& files) {
    if (!files) {
        throw FileFault("Dat", "the location files are not open");
    }
    return *files;
}

std::string ReadName(const NameFiles& files, std::int64_t number,
                     std::int64_t (*startOf)(ByteView)) {
    return DecodeCodePage(ReadIndexedText(files.index, files.names, number, startOf),
                          CodePage::kWindows1252);
}

void ReadCountryRange(std::int64_t number, CountryRecord& country) {
    const Bytes record = Opened(countryFiles).index.Read(number);
    country.FirstCity = GetInt16(record, 2);
    country.CityCount = GetInt16(record, 4);
}

bool HoldsCity(const CountryRecord& country, std::int16_t cityIndex) {
    return cityIndex >= country.FirstCity &&
           cityIndex < std::int32_t{country.FirstCity} + country.CityCount;
}

}  // namespace

void OpenCountryFiles() {
    Open(countryFiles, kCountryIndex, kCountryLength, "Dat\\S.DAT");
}

void CloseCountryFiles() {
    countryFiles.reset();
}

void OpenCityFiles() {
    Open(cityFiles, "Dat\\CI.DAT", 10, "Dat\\C.DAt");
    Open(provinceFiles, "Dat\\PI.DAT", 2, "Dat\\P.DAT");
}

void CloseCityFiles() {
    cityFiles.reset();
    provinceFiles.reset();
}

void OpenLocationFiles() {
    OpenCityFiles();
    OpenCountryFiles();
}

void CloseLocationFiles() {
    CloseCityFiles();
    CloseCountryFiles();
}

std::int64_t CountryCount() {
    return Opened(countryFiles).index.Count();
}

std::int64_t CityCount() {
    return Opened(cityFiles).index.Count();
}

std::string ReadCountry(std::int16_t number, CountryRecord& country) {
    ReadCountryRange(number, country);
    country.Name = ReadName(Opened(countryFiles), number, ShortStart);
    return country.Name;
}

std::vector<CityRange> ReadCityRanges() {
    const Bytes records = Ports().programFolder.ReadWhole(kCountryIndex);
    std::vector<CityRange> ranges;
    for (std::size_t at = 0; at + kCountryLength <= records.size(); at += kCountryLength) {
        ranges.push_back({GetInt16(records, at + 2), GetInt16(records, at + 4)});
    }
    return ranges;
}

std::string ReadCity(std::int16_t cityIndex, CityRecord& city) {
    const NameFiles& files = Opened(cityFiles);
    const std::int64_t number = cityIndex + kRecordOfCityZero;
    const Bytes record = files.index.Read(number);
    city.Latitude = GetInt16(record, 4);
    city.Longitude = GetInt16(record, 6);
    city.ProvinceIndex = GetInt16(record, 8);
    city.Name = ReadName(files, number, LongStart);
    const std::string province = ReadProvince(city);
    return city.ProvinceIndex == 0 ? city.Name : city.Name + ", " + province;
}

std::string ReadProvince(CityRecord& city) {
    city.Province = city.ProvinceIndex == 0
                        ? std::string()
                        : ReadName(Opened(provinceFiles), city.ProvinceIndex, ShortStart);
    return city.Province;
}

std::int16_t FindCountryOfCity(std::int16_t cityIndex) {
    const std::int64_t count = CountryCount();
    if (count < 1) {
        return 1;
    }
    CountryRecord country;
    for (std::int64_t number = 1; number <= count; ++number) {
        ReadCountryRange(number, country);
        if (HoldsCity(country, cityIndex)) {
            return ToInt16(number);
        }
    }
    return ToInt16(count + 1);
}

std::string LookupLocation(std::int16_t cityIndex, LocationRecord& location) {
    LocationRecord found;
    OpenCountryFiles();
    CountryRecord country;
    found.Country = ReadCountry(FindCountryOfCity(cityIndex), country);
    CloseCountryFiles();
    OpenCityFiles();
    const std::string displayName = ReadCity(cityIndex, found.City);
    CloseCityFiles();
    location = found;
    return displayName + " - " + location.Country;
}

bool FindLocation(std::int16_t cityIndex, LocationRecord& location, std::string& text) {
    try {
        LocationRecord found;
        const std::string foundText = LookupLocation(cityIndex, found);
        if (found.City.Name.empty()) {
            return false;
        }
        location = found;
        text = foundText;
        return true;
    } catch (const Fault&) {
        return false;
    }
}

}  // namespace horavex
