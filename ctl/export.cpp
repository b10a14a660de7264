#include <memory>
#include <optional>

#include "ctl/basis.h"
#include "ctl/calculation.h"
#include "ctl/document_fonts.h"
#include "ctl/place_options.h"
#include "engine/current_year.h"
#include "lang/language_pack.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "store/stored_values.h"
#include "timetables/timetable_file.h"

namespace horavex {

namespace {

struct ExportOptions {
    PlaceOptions place;
    int year = 0;
    std::string format;
    std::string output;
    std::string paper = "a4";
    std::optional<std::string> language;
};

/// What is written is told of the accepted settings.
void Accept() {
    ActiveSettings = Settings;
    ActiveIshaAngle = IshaAngle;
    ActiveLocation = Location;
    ActiveCityText = CityText;
}

void Write(Session& session, const ExportOptions& options) {
    InstallDocumentFonts();
    WriteTimetable(*TimetableFormatOf(options.format), options.output,
                   options.paper == "letter" ? PaperSize::kLetter : PaperSize::kA4);
    if (options.output != kStandardOutput) {
        Json json = {{"file", options.output}, {"days", DaysOfYear()}};
        AddYearBasis(json);
        session.Print(json, options.output + ": " + std::to_string(DaysOfYear()) + " days\n" +
                                BasisText(DateSerial(CurrentYear, 1, 1)));
    }
}

void RunExport(Session& session, const ExportOptions& options) {
    if (session.json && options.output == kStandardOutput) {
        RefuseUsage("--json and the timetable cannot both go to the standard output");
    }
    currentLanguage = options.language.value_or(ReadStoredLanguage());
    ApplyPlace(options.place, DateSerial(options.year, 1, 1));
    Accept();
    Calculate(session, options.year);
    if (session.status == kDone) {
        Write(session, options);
    } else {
        Json json = {{"file", nullptr}, {"days", 0}};
        AddYearBasis(json);
        session.Print(json, "");
    }
}

}  // namespace

void AddExportCommand(CLI::App& app, Session& session) {
    auto* command = AddCommand(app, session, "export", "A year's timetable as a file");
    auto options = std::make_shared<ExportOptions>();
    AddPlaceOptions(*command, options->place);
    command->add_option("--year", options->year, "Gregorian year")
        ->check(CLI::Range(1, 9999))
        ->required();
    command->add_option("--format", options->format, "text, csv, json, ics, html or pdf")
        ->check(CLI::IsMember({"text", "csv", "json", "ics", "html", "pdf"}))
        ->required();
    command
        ->add_option("--output", options->output,
                     "The file or pipe to write; - for standard output")
        ->required();
    command->add_option("--paper", options->paper, "a4 or letter, of a pdf")
        ->check(CLI::IsMember({"a4", "letter"}));
    command->add_option("--language", options->language, "A language pack, as French");
    command->callback([&session, options] { RunExport(session, *options); });
}

}  // namespace horavex
