#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "store/location_record.h"

namespace horavex {

/// CityIndex of the first city. Cities are numbered from here so that more than 32,767 of them
/// fit a signed 16-bit field.
inline constexpr std::int16_t kFirstCityIndex = -32000;

/// The city whose CityIndex is this one is Mecca: the place that has no qibla.
inline constexpr std::int16_t kMeccaCityIndex = 5183;

/// Opens "Dat/SI.DAt" and "Dat/S.DAT" unless they are open, so that long lists can be read in one
/// go; closing twice is harmless. Throw FileFault for a missing file.
void OpenCountryFiles();
void CloseCountryFiles();

/// The same for the four files of cities and provinces.
void OpenCityFiles();
void CloseCityFiles();

/// Cities, then countries.
void OpenLocationFiles();
void CloseLocationFiles();

/// Number of records of the country and of the city index. Need the files open.
std::int64_t CountryCount();
std::int64_t CityCount();

// The readers below need their files open (FileFault otherwise) and throw BoundsFault for a
// record number below 1 and for an index whose next name starts before this one.

/// Reads a country, number from 1, and returns its name. A number behind the last record comes
/// back empty.
std::string ReadCountry(std::int16_t number, CountryRecord& country);

/// The cities of a country.
struct CityRange {
    std::int16_t first;  // CityIndex
    std::int16_t count;
};

/// Those of all countries in their order, at one go.
std::vector<CityRange> ReadCityRanges();

/// Reads a city and returns its display name: the name, and with a province ", " and that.
std::string ReadCity(std::int16_t cityIndex, CityRecord& city);

/// Fills in the name of the city's province, empty for index 0, and returns it.
std::string ReadProvince(CityRecord& city);

/// Record number of the country that holds a city. An index outside every country gives the
/// number behind the last record; an empty index gives 1.
std::int16_t FindCountryOfCity(std::int16_t cityIndex);

/// Reads a place, opening and closing the files, and returns its text. A fault leaves location as
/// it was.
std::string LookupLocation(std::int16_t cityIndex, LocationRecord& location);

/// The same for an index out of a record that may be damaged: false, with nothing changed, for one
/// that no city has.
bool FindLocation(std::int16_t cityIndex, LocationRecord& location, std::string& text);

}  // namespace horavex
