#include "ctl/exported_year.h"

#include <algorithm>

#include "base/int16.h"
#include "base/text.h"
#include "lang/language_pack.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "store/stored_values.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

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

void Accept(std::int16_t textColumn) {
    ActiveSettings = Settings;
    ActiveSettings.Language = textColumn;
    ActiveIshaAngle = IshaAngle;
    ActiveLocation = Location;
    ActiveCityText = CityText;
}

}  // namespace

void AddFileFormOptions(CLI::App& command, FileForm& form) {
    command.add_option("--paper", form.paper, "a4 or letter, of a pdf")
        ->check(CLI::IsMember({"a4", "letter"}));
    command.add_option("--language", form.language, "A language pack, as French");
}

void TakeExportCall(Session& session, const YearCall& call, const FileForm& form) {
    currentLanguage = form.language.value_or(ReadStoredLanguage());
    const auto column = TextColumnOf(form.language.value_or(""));
    Settings.Language = column.value_or(Settings.Language);
    TakeYearCall(call);
    Accept(column.value_or(Settings.Language));
    if (column && form.format == "text") {
        session.platform.formats.FollowPack();
    }
}

void WriteYearFile(const std::string& path, const FileForm& form) {
    WriteTimetable(*TimetableFormatOf(form.format), path,
                   form.paper == "letter" ? PaperSize::kLetter : PaperSize::kA4);
}

}  // namespace horavex
