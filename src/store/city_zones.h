#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/bytes.h"

namespace horavex {

/// The zone in which each city lies, as "Dat/ZI.DAT" and "Dat/Z.DAT" tell.
class CityZones {
public:
    /// Reads both files. Throws FileFault for one that is missing or cannot be read, and
    /// BoundsFault for names that are cut short.
    CityZones();

    /// The zone's name in the zone database ("Africa/Cairo"); empty where none is known. Throws
    /// BoundsFault for a number that no name has.
    std::string Of(std::int16_t cityIndex) const;

private:
    Bytes index_;
    std::vector<std::string> names_;
};

}  // namespace horavex
