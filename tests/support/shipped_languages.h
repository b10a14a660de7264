#pragma once

#include <string>

namespace horavex {

/// The packs of data/lang, by name.
inline const std::string kShippedLanguages[] = {
    "Arabic", "Bengali", "English", "French", "German", "Indonesian", "Spanish", "Turkish", "Urdu",
};

/// For tests that do nothing but look at every window: all of them. Under the sanitizers, where a
/// language takes half a minute, one each with long words, from the right, and of letters of
/// several characters, which take ways of their own through the program.
#ifdef __SANITIZE_ADDRESS__
inline const std::string kLookedAtLanguages[] = {"Arabic", "Bengali", "German"};
#else
inline constexpr auto& kLookedAtLanguages = kShippedLanguages;
#endif

}  // namespace horavex
