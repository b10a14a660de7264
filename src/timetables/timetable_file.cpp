#include "timetables/timetable_file.h"

#include "base/fault.h"
#include "base/text.h"
#include "platform/platform.h"
#include "timetables/csv_timetable.h"
#include "timetables/html_timetable.h"
#include "timetables/ics_timetable.h"
#include "timetables/json_timetable.h"
#include "timetables/text_export.h"

namespace horavex {

namespace {

struct NamedFormat {
    std::string_view name;
    TimetableFormat format;
};

constexpr NamedFormat kFormats[] = {
    {"text", TimetableFormat::kText}, {"txt", TimetableFormat::kText},
    {"csv", TimetableFormat::kCsv},   {"json", TimetableFormat::kJson},
    {"ics", TimetableFormat::kIcs},   {"html", TimetableFormat::kHtml},
    {"htm", TimetableFormat::kHtml},  {"pdf", TimetableFormat::kPdf}};

void WritePdf(const std::string& path, const PrintedYear& year) {
    const DocumentTools& tools = InstalledDocumentTools();
    if (!tools.writePdf) {
        throw Fault("what sets PDF in type comes with the desktop program, which is not installed");
    }
    tools.writePdf(path, year);
}

/// Nothing offers to cancel it: the flag of the alarm and of the export is another's.
void WriteText(const std::string& path) {
    const auto file = Ports().files.OpenForWriting(path);
    WriteTextPages(*file, [] { return false; });
    file->Commit();
}

/// The formats that are one text.
std::string WholeText(TimetableFormat format, const PrintedYear& year) {
    switch (format) {
        case TimetableFormat::kCsv:
            return CsvTimetable(year.table);
        case TimetableFormat::kJson:
            return JsonTimetable(year.table);
        case TimetableFormat::kIcs:
            return IcsTimetable(year.table, year.words, Ports().clock.UniversalNow());
        default:
            return HtmlTimetable(year.table, year.words, year.today);
    }
}

}  // namespace

std::optional<TimetableFormat> TimetableFormatOf(std::string_view name) {
    for (const NamedFormat& known : kFormats) {
        if (EqualsIgnoringCase(known.name, name)) {
            return known.format;
        }
    }
    return std::nullopt;
}

std::optional<TimetableFormat> TimetableFormatOfPath(std::string_view path) {
    return TimetableFormatOf(path.substr(path.rfind('.') + 1));
}

void WriteTimetable(TimetableFormat format, const std::string& path, PaperSize paper) {
    if (format == TimetableFormat::kText) {
        WriteText(path);
        return;
    }
    const Timetable table = TakeTimetable();
    const TimetableWords words = TakeTimetableWords();
    const PrintedYear year = {table, words, Ports().clock.Today(), paper};
    if (format == TimetableFormat::kPdf) {
        WritePdf(path, year);
    } else {
        WriteChosenFile(Ports().files, path, BytesOf(WholeText(format, year)));
    }
}

}  // namespace horavex
