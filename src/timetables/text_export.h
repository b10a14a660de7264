#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace horavex {

/// The text in the middle of a cell of that many characters, an odd blank behind it; a text that
/// fills the cell or is longer is cut to it.
std::string CenterText(std::string_view text, std::size_t width);

/// The change of daylight saving that a month's footnote tells: " " for none, "B" for its
/// beginning and "F" for its end. Of two in one month the later one stands.
using DaylightNote = std::string;

/// Finishes one month and writes it: the closing rule, which is one hyphen longer than the others,
/// the footnote, and the end of the line. Tells the progress first; flag is " " afterwards.
/// monthIndex: months that are done, 0 to 12.
void sub0529(DaylightNote& flag, int monthIndex, std::string& page, OutputFile& file);

/// Writes the year of the table as pages for a line printer, one a month, in UTF-8: fixed columns
/// of characters, lines that end in CR LF, a form feed before each month but the first. The year is
/// that of the call, whatever becomes of the table meanwhile: events are delivered after every day.
/// Once isCancelled the page of that day is the last. Throws FileFault.
void WriteTextPages(OutputFile& file, const std::function<bool()>& isCancelled);

}  // namespace horavex
