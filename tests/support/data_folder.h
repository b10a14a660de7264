#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/memory_files.h"
#include "store/angle_band.h"
#include "store/location_files.h"
#include "store/settings_record.h"
#include "store/text_entry.h"

namespace horavex {

/// Small data files of the program folder "/program", written as the data compilers lay them out,
/// and damage to them. Files are named by their path in the folder: "Dat/C.DAt", "lang/French.ini".
class DataFolder {
public:
    explicit DataFolder(MemoryFiles& files) : files_(files) {}

    /// A country without cities; those that are written next are its own.
    void WriteCountry(const std::string& name);

    /// The next city of the last country, coordinates in degrees x 100, north and east positive.
    /// Returns its CityIndex. province: empty for none; a new name becomes a new record.
    std::int16_t WriteCity(const std::string& name, std::int16_t latitude = 0,
                           std::int16_t longitude = 0, const std::string& province = "");

    /// Rank of the next city by population.
    void WriteRank(std::int16_t rank);

    /// Zone and other names of the next city; names joined by commas, empty for none.
    void WriteZone(const std::string& zone);
    void WriteOtherNames(const std::string& names);

    /// The next band of "Dat/A.dat"; limit in degrees x 100.
    void WriteBand(std::int16_t limit, const AngleLimits& angles);

    /// The next year of "Dat/UQ.DAT", its months 30 and 29 days long in turns, firstDay in days
    /// since 30 December 1899.
    void WriteHijriYear(std::int16_t year, std::int32_t firstDay);

    /// The text table with this many entries, each saying which it is: "text 12 in 1".
    void WriteTexts(std::uint16_t entries);

    /// One text of the table in the place of the present one, language 1 to 6.
    void WriteText(TextEntry entry, std::int16_t language, const std::string& text);

    /// Cities with and without a province in three countries, ranks, bands, texts and both
    /// settings records, all of them sound. Nothing else stays in the folder "Dat".
    void WriteSample();

    void Write(const std::string& file, const Bytes& bytes);
    void Write(const std::string& file, const std::string& text);
    Bytes Read(const std::string& file);

    // Damage. The file must be there, and so must the bytes.
    void Remove(const std::string& file);
    void ShrinkBy(const std::string& file, std::size_t bytes);
    void ShrinkTo(const std::string& file, std::size_t bytes);
    void SetByte(const std::string& file, std::size_t offset, std::uint8_t value);
    void SetInt16(const std::string& file, std::size_t offset, std::int16_t value);
    void SetInt32(const std::string& file, std::size_t offset, std::int32_t value);

private:
    std::int16_t ProvinceRecord(const std::string& name);

    MemoryFiles& files_;
    std::int16_t nextCity_ = kFirstCityIndex;
    std::map<std::string, std::int16_t> provinces_;
    std::uint16_t entries_ = 0;
    std::map<std::pair<TextEntry, std::int16_t>, std::string> texts_;
};

/// The data files that hold records or texts, as the system names them.
const std::vector<std::string>& DataFileNames();

/// The record as a file of its own holds it, 97 bytes.
Bytes RecordOf(const SettingsRecord& settings);

/// Settings that no check finds fault with.
SettingsRecord SampleSettings();

}  // namespace horavex
