#include <algorithm>
#include <memory>
#include <optional>

#include "base/int16.h"
#include "base/text.h"
#include "ctl/basis.h"
#include "ctl/calculation.h"
#include "ctl/place_options.h"
#include "engine/current_year.h"
#include "lang/language_pack.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "store/stored_values.h"
#include "timetables/timetable_file.h"
#include "windows/horavex_main_form.h"

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

/// The column of the numbered texts, which the text pages speak, by the name of a pack. Nothing for
/// a pack whose language the texts do not have.
std::optional<std::int16_t> TextColumnOf(const std::string& pack) {
    const auto& languages = HoravexMainForm->lstLanguage.Items();
    const auto found = std::ranges::find_if(
        languages, [&pack](const std::string& name) { return EqualsIgnoringCase(name, pack); });
    return found == languages.end()
               ? std::nullopt
               : std::optional(ToInt16(static_cast<int>(found - languages.begin()) + 1));
}

/// What is written is told of the accepted settings.
void Accept(std::int16_t textColumn) {
    ActiveSettings = Settings;
    ActiveSettings.Language = textColumn;
    ActiveIshaAngle = IshaAngle;
    ActiveLocation = Location;
    ActiveCityText = CityText;
}

void Write(Session& session, const ExportOptions& options) {
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
    const auto column = TextColumnOf(options.language.value_or(""));
    Settings.Language = column.value_or(Settings.Language);
    ApplyPlace(options.place, DateSerial(options.year, 1, 1));
    Accept(column.value_or(Settings.Language));
    if (column && options.format == "text") {
        session.platform.formats.FollowPack();
    }
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
        ->type_name("FILE")
        ->required();
    command->add_option("--paper", options->paper, "a4 or letter, of a pdf")
        ->check(CLI::IsMember({"a4", "letter"}));
    command->add_option("--language", options->language, "A language pack, as French");
    command->callback([&session, options] { RunExport(session, *options); });
}

}  // namespace horavex
