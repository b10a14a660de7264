#pragma once

#include <optional>
#include <string>

#include "ctl/year_call.h"
#include "timetables/timetable_file.h"

namespace horavex {

/// How a year's timetable is to look as a file.
struct FileForm {
    std::string format;  // as TimetableFormatOf knows it
    std::string paper = "a4";
    std::optional<std::string> language;  // of a pack; the stored one without
};

/// --paper and --language.
void AddFileFormOptions(CLI::App& command, FileForm& form);

/// Makes a place the working and the accepted one, since what is written is told of the accepted
/// settings, and the language the current one.
void TakeExportCall(Session& session, const YearCall& call, const FileForm& form);

/// Writes the calculated year. Throws as WriteTimetable does.
void WriteYearFile(const std::string& path, const FileForm& form);

}  // namespace horavex
