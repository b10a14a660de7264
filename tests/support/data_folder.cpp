#include "support/data_folder.h"

#include <algorithm>

#include "base/code_page.h"
#include "base/text.h"
#include "store/indexed_file.h"
#include "store/text_table.h"

namespace horavex {

namespace {

std::string RealPath(const std::string& file) {
    return "/program/" + file;
}

/// A text as the name files and the table keep it.
Bytes Stored(const std::string& text, CodePage page) {
    return DecodeText(EncodeCodePage(text, page).value());
}

void Append(Bytes& bytes, const Bytes& more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
}

void AppendInt16(Bytes& bytes, std::int16_t value) {
    bytes.resize(bytes.size() + 2);
    PutInt16(bytes, bytes.size() - 2, value);
}

void AppendInt32(Bytes& bytes, std::size_t value) {
    bytes.resize(bytes.size() + 4);
    PutInt32(bytes, bytes.size() - 4, static_cast<std::int32_t>(value));
}

std::int16_t NextPosition(const Bytes& texts) {
    return static_cast<std::int16_t>(texts.size() + 1);
}

}  // namespace

void DataFolder::WriteCountry(const std::string& name) {
    Bytes index = Read("Dat/SI.DAt");
    Bytes names = Read("Dat/S.DAT");
    AppendInt16(index, NextPosition(names));
    AppendInt16(index, nextCity_);
    AppendInt16(index, 0);
    Append(names, Stored(name, CodePage::kWindows1252));
    Write("Dat/SI.DAt", index);
    Write("Dat/S.DAT", names);
}

std::int16_t DataFolder::WriteCity(const std::string& name, std::int16_t latitude,
                                   std::int16_t longitude, const std::string& province) {
    Bytes index = Read("Dat/CI.DAT");
    Bytes names = Read("Dat/C.DAt");
    AppendInt32(index, names.size() + 1);
    AppendInt16(index, latitude);
    AppendInt16(index, longitude);
    AppendInt16(index, ProvinceRecord(province));
    Append(names, Stored(name, CodePage::kWindows1252));
    Write("Dat/CI.DAT", index);
    Write("Dat/C.DAt", names);
    Bytes countries = Read("Dat/SI.DAt");
    const std::size_t count = countries.size() - 2;
    PutInt16(countries, count, static_cast<std::int16_t>(GetInt16(countries, count) + 1));
    Write("Dat/SI.DAt", countries);
    return nextCity_++;
}

std::int16_t DataFolder::ProvinceRecord(const std::string& name) {
    Bytes index = Read("Dat/PI.DAT");
    Bytes names = Read("Dat/P.DAT");
    if (!name.empty() && !provinces_.contains(name)) {
        AppendInt16(index, NextPosition(names));
        Append(names, Stored(name, CodePage::kWindows1252));
        provinces_[name] = static_cast<std::int16_t>(index.size() / 2);
    }
    Write("Dat/PI.DAT", index);
    Write("Dat/P.DAT", names);
    return name.empty() ? std::int16_t{0} : provinces_[name];
}

void DataFolder::WriteRank(std::int16_t rank) {
    Bytes ranks = Read("Dat/RI.DAT");
    AppendInt16(ranks, rank);
    Write("Dat/RI.DAT", ranks);
}

void DataFolder::WriteZone(const std::string& zone) {
    Bytes index = Read("Dat/ZI.DAT");
    auto zones = Split(StringOf(Read("Dat/Z.DAT")), '\n');
    zones.pop_back();
    const auto at = std::find(zones.begin(), zones.end(), zone);
    AppendInt16(index, static_cast<std::int16_t>(at - zones.begin() + 1));
    Write("Dat/ZI.DAT", index);
    if (at == zones.end()) {
        Write("Dat/Z.DAT", StringOf(Read("Dat/Z.DAT")) + zone + "\n");
    }
}

void DataFolder::WriteOtherNames(const std::string& names) {
    Write("Dat/N.DAT", StringOf(Read("Dat/N.DAT")) + names + "\n");
}

void DataFolder::WriteBand(std::int16_t limit, const AngleLimits& angles) {
    Bytes bands = Read("Dat/A.dat");
    AppendInt16(bands, limit);
    const Bytes codes = {static_cast<std::uint8_t>(angles.largest),
                         static_cast<std::uint8_t>(angles.middle),
                         static_cast<std::uint8_t>(angles.smallest)};
    Append(bands, DecodeText(codes));
    Write("Dat/A.dat", bands);
}

void DataFolder::WriteHijriYear(std::int16_t year, std::int32_t firstDay) {
    Bytes years = Read("Dat/UQ.DAT");
    const std::size_t at = years.size();
    years.resize(at + 18);
    PutInt16(years, at, year);
    PutInt32(years, at + 2, firstDay);
    for (std::size_t month = 0; month < 12; ++month) {
        years[at + 6 + month] = month % 2 == 0 ? 30 : 29;
    }
    Write("Dat/UQ.DAT", years);
}

void DataFolder::WriteTexts(std::uint16_t entries) {
    entries_ = entries;
    Bytes index;
    Bytes texts;
    for (std::uint16_t entry = 1; entry <= entries; ++entry) {
        for (std::int16_t language = 1; language <= kTextLanguages; ++language) {
            const auto at = texts_.find({TextEntry{entry}, language});
            AppendInt16(index, NextPosition(texts));
            Append(texts, Stored(at != texts_.end() ? at->second
                                                    : "text " + std::to_string(entry) + " in " +
                                                          std::to_string(language),
                                 TextColumnCodePage(language)));
        }
    }
    Write("Dat/TI.DAT", index);
    Write("Dat/T.DAT", texts);
}

void DataFolder::WriteText(TextEntry entry, std::int16_t language, const std::string& text) {
    texts_[{entry, language}] = text;
    WriteTexts(std::max(static_cast<std::uint16_t>(entry), entries_));
}

void DataFolder::WriteSample() {
    for (const std::string& name : files_.List(RealPath("Dat"))) {
        Remove("Dat/" + name);
    }
    nextCity_ = kFirstCityIndex;
    provinces_.clear();
    texts_.clear();
    WriteCountry("Brazil");
    WriteCity("Santa Rosa", -2787, -5448, "Rio Grande do Sul");
    WriteCity("São Paulo", -2355, -4663, "São Paulo");
    WriteCountry("Egypt");
    WriteCity("Cairo", 3006, 3125);
    WriteCity("Ismailia", 3060, 3227);
    WriteCountry("Saudi Arabia");
    WriteCity("Mecca", 2143, 3983, "Makkah");
    for (const int rank : {5, 1, 2, 4, 3}) {
        WriteRank(static_cast<std::int16_t>(rank));
    }
    for (const char* const zone : {"America/Sao_Paulo", "America/Sao_Paulo", "Africa/Cairo",
                                   "Africa/Cairo", "Asia/Riyadh"}) {
        WriteZone(zone);
    }
    for (const char* const names : {"", "San Pablo", "القاهرة,Kairo", "", "مكة,Mekka"}) {
        WriteOtherNames(names);
    }
    WriteBand(-1, {20, 18, 5});
    WriteBand(4500, {17, 17, 4});
    WriteBand(5100, {12, 12, 3});
    WriteHijriYear(1447, 45834);
    WriteHijriYear(1448, 46188);
    WriteTexts(kTextEntries);
    Write("Dat/AI.DAT", RecordOf(SampleSettings()));
    Write("Dat/Settings.DAT", RecordOf(SampleSettings()));
}

void DataFolder::Write(const std::string& file, const Bytes& bytes) {
    files_.WriteWhole(RealPath(file), bytes);
}

void DataFolder::Write(const std::string& file, const std::string& text) {
    Write(file, BytesOf(text));
}

Bytes DataFolder::Read(const std::string& file) {
    return files_.Exists(RealPath(file)) ? ReadWhole(files_, RealPath(file)) : Bytes();
}

void DataFolder::Remove(const std::string& file) {
    files_.Delete(RealPath(file));
}

void DataFolder::ShrinkBy(const std::string& file, std::size_t bytes) {
    ShrinkTo(file, files_.Contents(RealPath(file)).size() - bytes);
}

void DataFolder::ShrinkTo(const std::string& file, std::size_t bytes) {
    Bytes& contents = files_.Contents(RealPath(file));
    contents.erase(contents.begin() + static_cast<std::ptrdiff_t>(bytes), contents.end());
}

void DataFolder::SetByte(const std::string& file, std::size_t offset, std::uint8_t value) {
    files_.Contents(RealPath(file)).at(offset) = value;
}

void DataFolder::SetInt16(const std::string& file, std::size_t offset, std::int16_t value) {
    PutInt16(files_.Contents(RealPath(file)), offset, value);
}

void DataFolder::SetInt32(const std::string& file, std::size_t offset, std::int32_t value) {
    PutInt32(files_.Contents(RealPath(file)), offset, value);
}

const std::vector<std::string>& DataFileNames() {
    static const std::vector<std::string> names = {
        "Dat/SI.DAt", "Dat/S.DAT", "Dat/CI.DAT", "Dat/C.DAt", "Dat/PI.DAT",
        "Dat/P.DAT",  "Dat/A.dat", "Dat/UQ.DAT", "Dat/T.DAT", "Dat/TI.DAT",
        "Dat/ZI.DAT", "Dat/Z.DAT", "Dat/N.DAT"};
    return names;
}

Bytes RecordOf(const SettingsRecord& settings) {
    const SettingsBytes bytes = EncodeSettings(settings);
    return {bytes.begin(), bytes.end()};
}

SettingsRecord SampleSettings() {
    SettingsRecord record;
    record.Reserved.fill(' ');
    record.FajrAngle = 18.25;
    record.AsrRatio = 2.0;
    record.DstEnabled = 1;
    record.DstStart = 94;
    record.DstEnd = 297;
    record.AthanType = kSoundAthan;
    record.QiblaMethod = 1;
    record.Language = 5;
    record.CityIndex = -31998;
    record.TimeZone = -3.5;
    record.AlarmTime = 78;
    record.AlarmEnabled = 1;
    return record;
}

}  // namespace horavex
