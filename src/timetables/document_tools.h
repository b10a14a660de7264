#pragma once

#include <functional>
#include <string>

#include "forms/drawing.h"
#include "timetables/timetable.h"
#include "timetables/timetable_words.h"

namespace horavex {

enum class PaperSize {
    kA4,
    kLetter,
    kUsual,  // what the user's country prints on
};

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
    std::function<void(const std::string& path, const PrintedYear& year)> writePdf = {};

    /// Replaces or makes the file. Size in twips.
    std::function<void(const std::string& path, const Drawing& drawing, double width,
                       double height)>
        writePng = {};

    /// Shows the page of a month, 1 to 12, as it would be printed, or prints it on the printer that
    /// the user chooses; returns when the user is done.
    std::function<void(const PrintedYear& year, int month)> previewMonth = {};
    std::function<void(const PrintedYear& year, int month)> printMonth = {};
};

/// Installs what the front end has.
void InstallDocumentTools(DocumentTools tools);

/// The installed tools; none before that.
const DocumentTools& InstalledDocumentTools();

}  // namespace horavex
