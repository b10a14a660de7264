#include "store/city_index.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
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

/// The mark of bytes: other bytes give another mark, though not against whoever seeks the same.
/// Four lanes of words go on beside each other, for the processor waits in one of them.
class Marking {
public:
    static constexpr std::size_t kBlock = 65536;  // bytes, a round of the lanes over and over

    explicit Marking(std::uint64_t mark) : lanes_{mark, mark + 1, mark + 2, mark + 3} {}

    /// Goes on with a block; all but the last are of kBlock bytes.
    void Take(ByteView block) {
        constexpr std::size_t kWord = sizeof(std::uint64_t);
        for (std::size_t at = 0; at < block.size(); at += lanes_.size() * kWord) {
            for (std::size_t lane = 0; lane < lanes_.size(); ++lane) {
                lanes_[lane] = Mixed(lanes_[lane], WordAt(block, at + lane * kWord));
            }
        }
        size_ += block.size();
    }

    std::uint64_t Mark() const {
        return std::accumulate(lanes_.begin(), lanes_.end(), size_, Mixed);
    }

private:
    std::array<std::uint64_t, 4> lanes_;
    std::uint64_t size_ = 0;
};

std::uint64_t Mark(ByteView bytes, std::uint64_t mark) {
    Marking marking(mark);
    marking.Take(bytes);
    return marking.Mark();
}

/// Of a file from an offset on, block by block: the room for all of it costs more than its mark.
std::uint64_t MarkOf(OpenFile& file, std::size_t offset, std::uint64_t mark) {
    Marking marking(mark);
    Bytes block;
    do {
        block = file.ReadAt(static_cast<std::int64_t>(offset), Marking::kBlock);
        marking.Take(block);
        offset += block.size();
    } while (block.size() == Marking::kBlock);
    return marking.Mark();
}

/// Of everything that names and places in the list come from.
std::uint64_t MarkOfFiles(ByteView otherNames) {
    std::uint64_t mark = Mark(otherNames, 0);
    for (const char* file : {"Dat\\SI.DAt", "Dat\\CI.DAT", "Dat\\C.DAt"}) {
        mark = MarkOf(*Ports().programFolder.OpenForReading(file), 0, mark);
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
    entries.emplace_back(KeyOf(FoldCityName(OwnName(city.folded))), place);
    for (const std::string& name : Split(city.otherNames, ',')) {
        if (const std::string folded = FoldCityName(name); !folded.empty()) {
            entries.emplace_back(KeyOf(folded), place);
        }
    }
}

std::vector<Entry> EntriesOf(const CityList& cities) {
    std::vector<Entry> entries;
    for (std::size_t place = 0; place < cities.size(); ++place) {
        AddEntries(entries, cities[place], static_cast<std::uint16_t>(place));
    }
    std::ranges::sort(entries);
    entries.erase(std::unique(entries.begin(), entries.end()), entries.end());
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

/// The index on the disk, of which a search reads a few records.
class IndexFile {
public:
    IndexFile() : file_(Ports().programFolder.OpenForReading(kIndex)) {}

    bool IsSound(ByteView otherNames) const {
        const Bytes head = file_->ReadAt(0, kHead);
        return head.size() == kHead && RecordsAreWhole() &&
               IsMark(head, 0, MarkOfFiles(otherNames)) &&
               IsMark(head, 8, MarkOf(*file_, kHead, 0));
    }

    /// The places under a key, which rise.
    std::vector<std::uint16_t> PlacesOf(std::uint32_t key) const {
        const std::size_t count = Count();
        std::size_t first = 0;
        for (std::size_t end = count; first < end;) {
            const std::size_t middle = first + (end - first) / 2;
            (At(middle).first < key ? first = middle + 1 : end = middle);
        }
        std::vector<std::uint16_t> places;
        for (Entry entry; first < count && (entry = At(first)).first == key; ++first) {
            places.push_back(entry.second);
        }
        return places;
    }

private:
    static bool IsMark(ByteView head, std::size_t at, std::uint64_t mark) {
        return std::ranges::equal(head.subspan(at, 8), BytesOfMark(mark));
    }

    std::size_t Count() const {
        return (static_cast<std::size_t>(file_->Size()) - kHead) / kRecord;
    }

    bool RecordsAreWhole() const {
        return (static_cast<std::size_t>(file_->Size()) - kHead) % kRecord == 0;
    }

    Entry At(std::size_t number) const {
        const Bytes record =
            file_->ReadAt(static_cast<std::int64_t>(kHead + number * kRecord), kRecord);
        if (record.size() != kRecord) {
            throw BoundsFault(std::string(kIndex) + ": cut short while it was read");
        }
        return {static_cast<std::uint32_t>(GetInt32(record, 0)),
                static_cast<std::uint16_t>(GetInt16(record, 4))};
    }

    std::unique_ptr<OpenFile> file_;
};

}  // namespace

std::optional<CityList> CitiesThatMayBe(const std::string& name) {
    std::optional<CityList> cities;
    RunStep([&] {
        const IndexFile index;
        const Bytes otherNames = Ports().programFolder.ReadWhole(kOtherNames);
        if (index.IsSound(otherNames)) {
            const std::uint32_t key = KeyOf(FoldCityName(Trim(name)));
            cities = ListCitiesAt(index.PlacesOf(key), otherNames);
        }
    });
    return cities;
}

Bytes MakeCityIndex() {
    const CityList cities = ListCities();
    const Bytes otherNames = Ports().programFolder.ReadWhole(kOtherNames);
    const Bytes records = RecordsOf(EntriesOf(cities));
    Bytes index = BytesOfMark(MarkOfFiles(otherNames));
    const Bytes mark = BytesOfMark(Mark(records, 0));
    index.insert(index.end(), mark.begin(), mark.end());
    index.insert(index.end(), records.begin(), records.end());
    return index;
}

}  // namespace horavex
