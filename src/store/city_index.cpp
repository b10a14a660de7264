#include "store/city_index.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <numeric>
#include <string_view>
#include <utility>

#include "base/fault.h"
#include "base/text.h"
#include "platform/platform.h"
#include "store/city_search.h"

namespace horavex {

namespace {

constexpr const char* kIndex = "Dat\\NI.DAT";
constexpr const char* kOtherNames = "Dat\\N.DAT";

// The head: a mark of the location files, and one of the records.
constexpr std::size_t kHead = 16;
// A record: the key of a name, then a place in the list; in the order of both.
constexpr std::size_t kRecord = 6;

using Entry = std::pair<std::uint32_t, std::uint16_t>;

/// FNV-1a.
std::uint32_t KeyOf(std::string_view foldedName) {
    std::uint32_t key = 2166136261U;
    for (const char c : foldedName) {
        key = (key ^ static_cast<unsigned char>(c)) * 16777619U;
    }
    return key;
}

std::uint64_t Mixed(std::uint64_t mark, std::uint64_t word) {
    mark = (mark ^ word) * 0x9E3779B97F4A7C15U;
    return mark ^ mark >> 32U;
}

std::uint64_t WordAt(ByteView bytes, std::size_t at) {
    std::uint64_t word = 0;
    if (at < bytes.size()) {
        std::memcpy(&word, bytes.data() + at, std::min(sizeof word, bytes.size() - at));
    }
    return word;
}

/// Takes bytes into a mark: other bytes give another mark, though not against whoever seeks the
/// same. Four lanes of words go on beside each other, for the processor waits in one of them.
std::uint64_t Mark(ByteView bytes, std::uint64_t mark) {
    constexpr std::size_t kWord = sizeof(std::uint64_t);
    std::array<std::uint64_t, 4> lanes = {mark, mark + 1, mark + 2, mark + 3};
    for (std::size_t at = 0; at < bytes.size(); at += lanes.size() * kWord) {
        for (std::size_t lane = 0; lane < lanes.size(); ++lane) {
            lanes[lane] = Mixed(lanes[lane], WordAt(bytes, at + lane * kWord));
        }
    }
    return std::accumulate(lanes.begin(), lanes.end(), std::uint64_t{bytes.size()}, Mixed);
}

/// Of everything that names and places in the list come from.
std::uint64_t MarkOfFiles(ByteView otherNames) {
    std::uint64_t mark = Mark(otherNames, 0);
    for (const char* file : {"Dat\\SI.DAt", "Dat\\CI.DAT", "Dat\\C.DAt"}) {
        mark = Mark(Ports().programFolder.ReadWhole(file), mark);
    }
    return mark;
}

Bytes BytesOfMark(std::uint64_t mark) {
    Bytes bytes(8);
    PutInt32(bytes, 0, static_cast<std::int32_t>(mark & 0xFFFFFFFFU));
    PutInt32(bytes, 4, static_cast<std::int32_t>(mark >> 32U));
    return bytes;
}

/// A search takes what stands before a comma or a dash for a whole name.
std::string_view OwnName(std::string_view folded) {
    return folded.substr(0, std::min(folded.find(", "), folded.find(" - ")));
}

void AddEntries(std::vector<Entry>& entries, const ListedCity& city, std::uint16_t place) {
    entries.emplace_back(KeyOf(FoldCityName(std::string(OwnName(city.folded)))), place);
    for (const std::string& name : Split(city.foldedNames, ',')) {
        if (!name.empty()) {
            entries.emplace_back(KeyOf(name), place);
        }
    }
}

std::vector<Entry> EntriesOf(const std::vector<ListedCity>& cities) {
    std::vector<Entry> entries;
    for (std::size_t place = 0; place < cities.size(); ++place) {
        AddEntries(entries, cities[place], static_cast<std::uint16_t>(place));
    }
    std::ranges::sort(entries);
    const auto rest = std::ranges::unique(entries);
    entries.erase(rest.begin(), rest.end());
    return entries;
}

Bytes RecordsOf(const std::vector<Entry>& entries) {
    Bytes records(entries.size() * kRecord);
    std::size_t at = 0;
    for (const auto& [key, place] : entries) {
        PutInt32(records, at, static_cast<std::int32_t>(key));
        PutInt16(records, at + 4, static_cast<std::int16_t>(place));
        at += kRecord;
    }
    return records;
}

std::uint32_t KeyAt(ByteView records, std::size_t number) {
    return static_cast<std::uint32_t>(GetInt32(records, number * kRecord));
}

/// The places under a key, which rise.
std::vector<std::uint16_t> PlacesOf(ByteView records, std::uint32_t key) {
    std::size_t first = 0;
    for (std::size_t end = records.size() / kRecord; first < end;) {
        const std::size_t middle = first + (end - first) / 2;
        (KeyAt(records, middle) < key ? first = middle + 1 : end = middle);
    }
    std::vector<std::uint16_t> places;
    for (; first < records.size() / kRecord && KeyAt(records, first) == key; ++first) {
        places.push_back(static_cast<std::uint16_t>(GetInt16(records, first * kRecord + 4)));
    }
    return places;
}

bool IsSound(ByteView index, ByteView otherNames) {
    if (index.size() < kHead || (index.size() - kHead) % kRecord != 0) {
        return false;
    }
    const Bytes files = BytesOfMark(MarkOfFiles(otherNames));
    const Bytes records = BytesOfMark(Mark(index.subspan(kHead), 0));
    return std::equal(files.begin(), files.end(), index.begin()) &&
           std::equal(records.begin(), records.end(), index.begin() + 8);
}

}  // namespace

std::optional<std::vector<ListedCity>> CitiesThatMayBe(const std::string& name) {
    std::optional<std::vector<ListedCity>> cities;
    RunStep([&] {
        const Bytes index = Ports().programFolder.ReadWhole(kIndex);
        const Bytes otherNames = Ports().programFolder.ReadWhole(kOtherNames);
        if (IsSound(index, otherNames)) {
            const std::uint32_t key = KeyOf(FoldCityName(std::string(Trim(name))));
            cities = ListCitiesAt(PlacesOf(ByteView(index).subspan(kHead), key), otherNames);
        }
    });
    return cities;
}

Bytes MakeCityIndex() {
    const std::vector<ListedCity> cities = ListCities();
    const Bytes otherNames = Ports().programFolder.ReadWhole(kOtherNames);
    const Bytes records = RecordsOf(EntriesOf(cities));
    Bytes index = BytesOfMark(MarkOfFiles(otherNames));
    const Bytes mark = BytesOfMark(Mark(records, 0));
    index.insert(index.end(), mark.begin(), mark.end());
    index.insert(index.end(), records.begin(), records.end());
    return index;
}

}  // namespace horavex
