#pragma once

#include <QLocale>
#include <optional>

namespace horavex {

/// The toolkit's locale for the language of the current pack, by the code that the pack gives;
/// nothing for a pack without one, and for a language that the toolkit does not have.
std::optional<QLocale> PackLocale();

}  // namespace horavex
