#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "timetables/document_tools.h"

namespace horavex {

enum class TimetableFormat { kText, kCsv, kJson, kIcs, kHtml, kPdf };

/// The format of a name, in any case: "text", "csv", "json", "ics", "html", "pdf", and "txt" and
/// "htm" as suffixes have them. Nothing for another name.
std::optional<TimetableFormat> TimetableFormatOf(std::string_view name);

/// The format that the suffix of a path names.
std::optional<TimetableFormat> TimetableFormatOfPath(std::string_view path);

/// Writes the year of the table into a file, in the language of the current pack but for the
/// pages of text, which follow the accepted settings. Throws Fault when the file fails or the
/// front end cannot make the format.
void WriteTimetable(TimetableFormat format, const std::string& path, PaperSize paper);

}  // namespace horavex
