#pragma once

#include <functional>
#include <string>

#include "timetables/timetable.h"
#include "timetables/timetable_words.h"

namespace horavex {

enum class PaperSize { kA4, kLetter };

/// A year to be set in type: a month a page, today marked.
struct PrintedYear {
    const Timetable& table;
    const TimetableWords& words;
    Date today;
    PaperSize paper = PaperSize::kA4;
};

/// What only a front end with fonts can do. The functions throw Fault when they fail; one that is
/// empty is not there.
struct DocumentTools {
    /// Replaces or makes the file.
    std::function<void(const std::string& path, const PrintedYear& year)> writePdf;
};

/// Installs what the front end has.
void InstallDocumentTools(DocumentTools tools);

/// The installed tools; none before that.
const DocumentTools& InstalledDocumentTools();

}  // namespace horavex
