#pragma once

#include <string>
#include <vector>

namespace horavex {

/// The keys that the program asks a pack for in one section.
struct PackSection {
    std::string name;
    std::vector<std::string> keys;
};

/// The vocabularies of a pack: messages, labels with the Hijri months and the prayer names, and
/// the texts of the athan window.
const std::vector<PackSection>& PackVocabularies();

}  // namespace horavex
