#pragma once

#include <string>

namespace horavex {

/// The packs of data/lang, by name.
inline const std::string kShippedLanguages[] = {
    "Arabic", "Bengali", "English", "French", "German", "Indonesian", "Spanish", "Turkish", "Urdu",
};

}  // namespace horavex
