#include "store/data_check.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <optional>

#include "base/fault.h"
#include "base/text.h"
#include "base/utf8.h"
#include "platform/platform.h"
#include "store/indexed_file.h"
#include "store/location_files.h"
#include "store/settings_record.h"
#include "store/text_table.h"

namespace horavex {

namespace {

/// An index of fixed-length records over a file of packed texts.
struct TextFiles {
    const char* index;
    std::int64_t recordLength;
    const char* texts;
    std::int64_t (*startOf)(ByteView record);
};

constexpr TextFiles kCountries = {"Dat/SI.DAt", 6, "Dat/S.DAT", ShortStart};
constexpr TextFiles kCities = {"Dat/CI.DAT", 10, "Dat/C.DAt", LongStart};
constexpr TextFiles kProvinces = {"Dat/PI.DAT", 2, "Dat/P.DAT", ShortStart};
constexpr TextFiles kTexts = {"Dat/TI.DAT", 2, "Dat/T.DAT", ShortStart};

/// Populations' ranks of the cities, and the bands of depression angles.
constexpr const char* kRanks = "Dat/RI.DAT";
constexpr std::int64_t kRankLength = 2;
constexpr const char* kBands = "Dat/A.dat";
constexpr std::int64_t kBandLength = 5;

/// Zones of the cities by number, and their names; other names of the cities.
constexpr const char* kZones = "Dat/ZI.DAT";
constexpr std::int64_t kZoneLength = 2;
constexpr const char* kZoneNames = "Dat/Z.DAT";
constexpr const char* kOtherNames = "Dat/N.DAT";

/// Published Hijri years.
constexpr const char* kHijriYears = "Dat/UQ.DAT";
constexpr std::int64_t kHijriYearLength = 18;
constexpr std::uint8_t kShortestMonth = 28;
constexpr std::uint8_t kLongestMonth = 30;

std::string At(const char* file, std::int64_t number) {
    return std::string(file) + ": record " + std::to_string(number) + ": ";
}

bool HasControlCharacter(const Bytes& text) {
    return std::any_of(text.begin(), text.end(),
                       [](std::uint8_t code) { return code < 32 || code == 127; });
}

bool IsPlainText(const std::string& text) {
    return !text.empty() && IsUtf8(text) && !HasControlCharacter(BytesOf(text));
}

/// Names of one city, joined by commas; it may have none.
bool AreNames(const std::string& line) {
    return line.empty() || std::ranges::all_of(Split(line, ','), IsPlainText);
}

/// A loaded file cut into records.
class Records {
public:
    Records(ByteView bytes, std::int64_t length) : bytes_(bytes), length_(length) {}

    std::int64_t Count() const { return static_cast<std::int64_t>(bytes_.size()) / length_; }
    bool IsWhole() const { return static_cast<std::int64_t>(bytes_.size()) % length_ == 0; }

    /// number: 1 to Count().
    ByteView Of(std::int64_t number) const {
        return bytes_.subspan(static_cast<std::size_t>((number - 1) * length_),
                              static_cast<std::size_t>(length_));
    }

private:
    ByteView bytes_;
    std::int64_t length_;
};

class DataCheck {
public:
    explicit DataCheck(CheckReport& report) : report_(report) {}

    void Run() {
        for (const TextFiles& files : {kProvinces, kCountries, kCities, kTexts}) {
            CheckLength(files.index, files.recordLength);
        }
        CheckLength(kRanks, kRankLength);
        CheckLength(kZones, kZoneLength);
        CheckLength(kBands, kBandLength);
        CheckLength(kHijriYears, kHijriYearLength);
        CheckTexts(kProvinces);
        CheckTexts(kCountries);
        CheckTexts(kCities);
        CheckTexts(kTexts);
        CheckCityFields();
        CheckCountryRanges();
        CheckTextCount();
        CheckOnePerCity(kRanks, kRankLength, "rank");
        CheckOnePerCity(kZones, kZoneLength, "zone");
        CheckZoneNumbers();
        CheckOtherNames();
        CheckBands();
        CheckHijriYears();
        CheckSettings("Dat/AI.DAT");
        CheckSettings("Dat/Settings.DAT");
    }

private:
    std::optional<Bytes> ReadOrReport(const std::string& file) {
        try {
            return Ports().programFolder.ReadWhole(file);
        } catch (const FileFault& fault) {
            report_.Expect(false, file + ": " + fault.what());
            return std::nullopt;
        }
    }

    /// The bytes of a file, nothing where it cannot be read. Each is read, and a failure told,
    /// once.
    const std::optional<Bytes>& Load(const std::string& file) {
        const auto at = loaded_.find(file);
        return at != loaded_.end() ? at->second
                                   : loaded_.emplace(file, ReadOrReport(file)).first->second;
    }

    std::optional<Records> LoadRecords(const char* file, std::int64_t length) {
        const auto& bytes = Load(file);
        return bytes ? std::optional(Records(*bytes, length)) : std::nullopt;
    }

    void CheckLength(const char* file, std::int64_t recordLength) {
        if (const auto records = LoadRecords(file, recordLength)) {
            report_.Expect(records->IsWhole(), At(file, records->Count() + 1) + "it is cut short");
            report_.Expect(records->Count() > 0, std::string(file) + ": there is no record");
        }
    }

    void CheckTexts(const TextFiles& files) {
        const auto index = LoadRecords(files.index, files.recordLength);
        const auto& texts = Load(files.texts);
        if (!index || !texts) {
            return;
        }
        const auto end = static_cast<std::int64_t>(texts->size()) + 1;
        for (std::int64_t number = 1; number <= index->Count(); ++number) {
            const std::int64_t start = files.startOf(index->Of(number));
            const std::int64_t next =
                number == index->Count() ? end : files.startOf(index->Of(number + 1));
            CheckText(files, number, start, next, *texts);
        }
    }

    void CheckText(const TextFiles& files, std::int64_t number, std::int64_t start,
                   std::int64_t next, const Bytes& texts) {
        const auto size = static_cast<std::int64_t>(texts.size());
        const bool inside = start >= 1 && start < next && next <= size + 1;
        report_.Expect(inside, At(files.index, number) + "no text from position " +
                                   std::to_string(start) + " to " + std::to_string(next) + " of " +
                                   files.texts);
        if (inside) {
            const auto stored = ByteView(texts).subspan(static_cast<std::size_t>(start - 1),
                                                        static_cast<std::size_t>(next - start));
            report_.Expect(!HasControlCharacter(DecodeText(stored)),
                           At(files.index, number) + "its text holds control characters");
        }
    }

    void CheckCityFields() {
        const auto cities = LoadRecords(kCities.index, kCities.recordLength);
        const auto provinces = LoadRecords(kProvinces.index, kProvinces.recordLength);
        if (!cities || !provinces) {
            return;
        }
        for (std::int64_t number = 1; number <= cities->Count(); ++number) {
            const ByteView record = cities->Of(number);
            const bool onEarth =
                std::abs(GetInt16(record, 4)) <= 9000 && std::abs(GetInt16(record, 6)) <= 18000;
            report_.Expect(onEarth,
                           At(kCities.index, number) + "its coordinates are off the earth");
            const std::int16_t province = GetInt16(record, 8);
            report_.Expect(
                province >= 0 && province <= provinces->Count(),
                At(kCities.index, number) + "there is no province " + std::to_string(province));
        }
    }

    void CheckCountryRanges() {
        const auto countries = LoadRecords(kCountries.index, kCountries.recordLength);
        const auto cities = LoadRecords(kCities.index, kCities.recordLength);
        if (!countries || !cities) {
            return;
        }
        std::int64_t next = kFirstCityIndex;
        for (std::int64_t number = 1; number <= countries->Count(); ++number) {
            const ByteView record = countries->Of(number);
            const std::int16_t first = GetInt16(record, 2);
            const std::int16_t count = GetInt16(record, 4);
            report_.Expect(first == next && count >= 0,
                           At(kCountries.index, number) +
                               "its cities do not follow those of the country before");
            next = std::int64_t{first} + count;
        }
        report_.Expect(next == kFirstCityIndex + cities->Count(),
                       std::string(kCountries.index) +
                           ": the countries do not hold all cities of " + kCities.index);
    }

    void CheckTextCount() {
        if (const auto index = LoadRecords(kTexts.index, kTexts.recordLength)) {
            report_.Expect(index->Count() >= kTextEntries * kTextLanguages,
                           std::string(kTexts.index) + ": fewer than " +
                               std::to_string(kTextEntries) + " entries in six languages");
        }
    }

    void CheckOnePerCity(const char* file, std::int64_t length, const char* what) {
        const auto records = LoadRecords(file, length);
        const auto cities = LoadRecords(kCities.index, kCities.recordLength);
        if (records && cities) {
            report_.Expect(
                records->Count() == cities->Count(),
                std::string(file) + ": not one " + what + " for each city of " + kCities.index);
        }
    }

    /// The lines of a file, each looked at by isSound; nothing where the file cannot be read.
    std::optional<std::size_t> CheckLines(const char* file, bool (*isSound)(const std::string&)) {
        const auto& bytes = Load(file);
        if (!bytes) {
            return std::nullopt;
        }
        auto lines = Split(StringOf(*bytes), '\n');
        report_.Expect(lines.back().empty(), std::string(file) + ": the last line is cut short");
        lines.pop_back();
        report_.Expect(!lines.empty(), std::string(file) + ": there is no line");
        for (std::size_t i = 0; i < lines.size(); ++i) {
            report_.Expect(isSound(lines[i]),
                           std::string(file) + ": line " + std::to_string(i + 1) +
                               ": it is empty, no UTF-8 or holds control characters");
        }
        return lines.size();
    }

    void CheckZoneNumbers() {
        const auto zones = LoadRecords(kZones, kZoneLength);
        const auto count = CheckLines(kZoneNames, IsPlainText);
        if (!zones || !count) {
            return;
        }
        for (std::int64_t number = 1; number <= zones->Count(); ++number) {
            const std::int16_t zone = GetInt16(zones->Of(number), 0);
            report_.Expect(zone >= 0 && zone <= static_cast<std::int64_t>(*count),
                           At(kZones, number) + "there is no zone " + std::to_string(zone));
        }
    }

    void CheckOtherNames() {
        const auto count = CheckLines(kOtherNames, AreNames);
        const auto cities = LoadRecords(kCities.index, kCities.recordLength);
        if (count && cities) {
            report_.Expect(
                static_cast<std::int64_t>(*count) == cities->Count(),
                std::string(kOtherNames) + ": not one line for each city of " + kCities.index);
        }
    }

    void CheckBands() {
        const auto bands = LoadRecords(kBands, kBandLength);
        if (!bands) {
            return;
        }
        for (std::int64_t number = 1; number <= bands->Count(); ++number) {
            const ByteView record = bands->Of(number);
            const Bytes angles = DecodeText(record.subspan(2, 3));
            report_.Expect(
                angles[0] >= angles[1] && angles[1] >= angles[2] && angles[2] >= 1,
                At(kBands, number) + "its angles do not go from the largest to the smallest");
            report_.Expect(number == 1 ? GetInt16(record, 0) < 0
                                       : GetInt16(bands->Of(number - 1), 0) < GetInt16(record, 0),
                           At(kBands, number) + "its limit does not lie above the one before");
        }
    }

    void CheckHijriYears() {
        const auto years = LoadRecords(kHijriYears, kHijriYearLength);
        if (!years) {
            return;
        }
        for (std::int64_t number = 1; number <= years->Count(); ++number) {
            const ByteView months = years->Of(number).subspan(6);
            report_.Expect(std::ranges::all_of(months,
                                               [](std::uint8_t days) {
                                                   return days >= kShortestMonth &&
                                                          days <= kLongestMonth;
                                               }),
                           At(kHijriYears, number) + "a month is not from 28 to 30 days long");
            report_.Expect(number == 1 || Follows(years->Of(number - 1), years->Of(number)),
                           At(kHijriYears, number) + "it does not begin where the one before ends");
        }
    }

    static bool Follows(ByteView year, ByteView next) {
        const ByteView months = year.subspan(6);
        return GetInt16(next, 0) == GetInt16(year, 0) + 1 &&
               GetInt32(next, 2) ==
                   std::accumulate(months.begin(), months.end(), GetInt32(year, 2));
    }

    /// The program runs without settings; records that are there must make sense.
    void CheckSettings(const char* file) {
        if (!Ports().programFolder.Exists(file)) {
            return;
        }
        const auto& bytes = Load(file);
        if (!bytes) {
            return;
        }
        report_.Expect(bytes->size() >= kSettingsRecordSize,
                       std::string(file) + ": record 1: shorter than " +
                           std::to_string(kSettingsRecordSize) + " bytes");
        if (bytes->size() >= kSettingsRecordSize) {
            SettingsBytes record{};
            std::copy_n(bytes->begin(), record.size(), record.begin());
            CheckSettingsFields(file, DecodeSettings(record));
        }
    }

    void CheckSettingsFields(const char* file, const SettingsRecord& record) {
        const std::string place = At(file, 1);
        report_.Expect(record.FajrAngle >= 0.0 && record.FajrAngle <= 90.0,
                       place + "FajrAngle is no angle");
        report_.Expect(record.AsrRatio == 1.0 || record.AsrRatio == 2.0,
                       place + "AsrRatio is neither 1 nor 2");
        report_.Expect(record.AthanType >= kMuteAthan && record.AthanType <= kSoundAthan,
                       place + "AthanType is not from 1 to 3");
        report_.Expect(record.QiblaMethod == 1 || record.QiblaMethod == 2,
                       place + "QiblaMethod is neither 1 nor 2");
        report_.Expect(record.TimeZone >= -12.0 && record.TimeZone <= 12.0,
                       place + "TimeZone is not from -12 to 12");
        report_.Expect(record.Language >= 0 && record.Language <= kTextLanguages,
                       place + "Language is not from 0 to 6");
        report_.Expect(record.AlarmTime >= 0 && record.AlarmTime < kAlarmStepsPerDay,
                       place + "AlarmTime is not from 0 to 287");
        const auto isDay = [](std::int16_t day) { return day >= 1 && day <= 366; };
        report_.Expect(record.DstEnabled != 1 || (isDay(record.DstStart) && isDay(record.DstEnd)),
                       place + "a day of daylight saving is not from 1 to 366");
    }

    CheckReport& report_;
    std::map<std::string, std::optional<Bytes>> loaded_;
};

}  // namespace

void CheckDataFiles(CheckReport& report) {
    DataCheck(report).Run();
}

}  // namespace horavex
