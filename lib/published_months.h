#pragma once

#include "calendar/umm_al_qura.h"

namespace horavex {

/// The file of the published months as it is built, inside the library.
extern const unsigned char kPublishedTable[];
extern const std::size_t kPublishedTableSize;

/// The months, read once.
const UmmAlQura& PublishedMonths();

}  // namespace horavex
