#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/bytes.h"
#include "base/text_store.h"

namespace horavex {

/// One city of the database, with what a search needs. Its texts are its list's.
struct ListedCity {
    std::int16_t cityIndex;
    std::string_view name;
    std::string_view province;  // empty when none
    std::string_view country;
    std::int16_t latitude;    // degrees x 100, north positive
    std::int16_t longitude;   // degrees x 100, east positive
    std::uint16_t rank;       // by population, 1 for the largest; 0 where "Dat/RI.DAT" has none
    std::string_view folded;  // "name, province - country" for comparing
    std::string_view otherNames = {};  // joined by commas, best known first
};

/// Cities and their texts, which stay where they are when the list is moved.
class CityList {
public:
    using value_type = ListedCity;
    using const_iterator = std::vector<ListedCity>::const_iterator;

    const_iterator begin() const { return cities_.begin(); }
    const_iterator end() const { return cities_.end(); }
    std::size_t size() const { return cities_.size(); }
    bool empty() const { return cities_.empty(); }
    const ListedCity& operator[](std::size_t place) const { return cities_[place]; }

    /// Throws std::out_of_range.
    const ListedCity& at(std::size_t place) const { return cities_.at(place); }

    /// Makes room for so many.
    void Reserve(std::size_t count) { cities_.reserve(count); }

    /// The city's texts live as long as the list, as those that Texts keeps.
    void Add(const ListedCity& city) { cities_.push_back(city); }

    TextStore& Texts() { return texts_; }

private:
    TextStore texts_;
    std::vector<ListedCity> cities_;
};

/// A list, or a part of one.
using Cities = std::span<const ListedCity>;

/// "name, province - country", as a list of cities of all countries shows it.
std::string DisplayText(const ListedCity& city);

/// A name as searches compare other names: letter case, accents and apostrophes do not count, and a
/// hyphen is a blank.
std::string FoldCityName(std::string_view name);

/// All cities in the order of CityIndex. Throws as the readers of the location files do, and
/// BoundsFault for countries that hold more cities than there are. Ranks or other names that cannot
/// be read are none.
CityList ListCities();

/// Those at some places of that list, counted from 0, which rise. otherNames: the whole of the file
/// of other names, which is sound.
CityList ListCitiesAt(const std::vector<std::uint16_t>& places, ByteView otherNames);

}  // namespace horavex
