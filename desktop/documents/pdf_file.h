#pragma once

#include <string>

#include "timetables/document_tools.h"

namespace horavex {

/// Writes the year as a PDF, a month a page. Needs an application of the toolkit, if only one
/// without a display, for its fonts. Throws FileFault.
void WritePdf(const std::string& path, const PrintedYear& year);

}  // namespace horavex
