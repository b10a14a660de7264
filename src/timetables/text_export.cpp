#include "timetables/text_export.h"

#include "base/number_text.h"
#include "base/prayers.h"
#include "base/utf8.h"
#include "engine/angle.h"
#include "engine/current_year.h"
#include "engine/moments.h"
#include "engine/progress_window.h"
#include "engine/ruled_year.h"
#include "engine/year_table.h"
#include "geo/qibla.h"
#include "platform/platform.h"
#include "store/location_record.h"
#include "store/location_text.h"
#include "store/settings_record.h"
#include "store/text_table.h"

namespace horavex {

namespace {

constexpr std::size_t kPageWidth = 78;
constexpr std::size_t kDayWidth = 5;
constexpr std::size_t kDayCaptionWidth = 6;
constexpr std::size_t kTimeWidth = 11;
constexpr const char* kFormFeed = "\f";
constexpr const char* kNoNote = " ";
constexpr const char* kBegins = "B";
constexpr const char* kFinishes = "F";

std::string Text(TextEntry entry) {
    return TextItem(entry, ActiveSettings.Language);
}

std::string Rule(std::size_t width = kPageWidth) {
    return std::string(width, '-') + Crlf;
}

std::string Cell(const std::string& text) {
    return " " + CenterText(text, kTimeWidth);
}

std::string PlaceLines() {
    const double latitude = StoredCoord(ActiveLocation.City.Latitude);
    const double longitude = StoredCoord(ActiveLocation.City.Longitude);
    return Text(TextEntry::kCity) + ": " + ActiveCityText + Crlf +
           FormatLatitude(latitude, ActiveSettings.Language) + Crlf +
           FormatLongitude(longitude, ActiveSettings.Language) + Crlf;
}

std::string ZoneLine() {
    return Text(TextEntry::kTimeZone) + ": " + Text(TextEntry::kGmt) + " " +
           SignedFixedText(ActiveSettings.TimeZone, Ports().formats.DecimalMark()) + Crlf;
}

std::string QiblaLine() {
    const std::string method =
        ActiveSettings.QiblaMethod == 2 ? Text(TextEntry::kSecond) : Text(TextEntry::kFirst);
    return QiblaText + " (" + method + " " + Text(TextEntry::kMethod) + ") " + Crlf;
}

std::string ColumnLines() {
    std::string translated(kDayCaptionWidth, ' ');
    std::string fixed = CenterText(Text(TextEntry::kDay), kDayCaptionWidth);
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        translated += Cell(Text(PrayerNameEntry(prayer)));
        fixed += Cell(prayerNames.at(prayer));
    }
    return translated + Crlf + fixed + Crlf;
}

/// The block at the head of every month.
std::string Header() {
    return PlaceLines() + ZoneLine() + QiblaLine() + Rule() + ColumnLines() + Rule();
}

std::string MonthTitle(Date date) {
    const std::string title =
        Text(TextEntry::kPrayerTimesOf) + " " + Ports().formats.MonthAndYear(date) + ".";
    return Rule() + CenterText(title, kPageWidth) + Crlf + Crlf;
}

/// What the pages are of. A new year or a change of settings may come in between two days.
struct ExportedYear {
    Date first = DateSerial(CurrentYear, 1, 1);
    int days = 365 + LeapFlag;
    YearTimes times = Times;
    YearBasis basis = RuledYear;
    SettingsRecord settings = ActiveSettings;
};

/// The mark before a day on which daylight saving changes; it leaves its footnote pending. day:
/// 1-based day of the year.
std::string DaylightMark(const SettingsRecord& settings, int day, DaylightNote& flag) {
    if (settings.DstEnabled != 1) {
        return " ";
    }
    if (day == settings.DstStart) {
        flag = kBegins;
        return "*";
    }
    if (day == settings.DstEnd) {
        flag = kFinishes;
        return "*";
    }
    return " ";
}

/// day: 1-based day of the year.
std::string DayCells(const ExportedYear& year, int day, int dayOfMonth) {
    std::string cells = CenterText(std::to_string(dayOfMonth), kDayWidth);
    const YearSource source = {year.basis.inputs, year.times, year.basis.rules.moments};
    for (const Moment& moment : MomentsOf(source, static_cast<std::size_t>(day) - 1)) {
        cells += Cell(Ports().formats.MediumTime(moment.hours / 24.0));
    }
    return cells + Crlf;
}

/// Groups of five days; the last one of a month runs into the rule.
bool EndsGroup(int dayOfMonth) {
    return dayOfMonth < 30 && dayOfMonth % 5 == 0;
}

std::string Footnote(const DaylightNote& flag) {
    return "* " + Text(TextEntry::kNote) + " : " +
           Text(flag == kBegins ? TextEntry::kStartOf : TextEntry::kEndOf) + " " +
           Text(TextEntry::kOfDaylightSaving) + "." + Crlf;
}

}  // namespace

std::string CenterText(std::string_view text, std::size_t width) {
    const std::size_t length = Utf8Length(text);
    if (length >= width) {
        return std::string(Utf8FirstCharacters(text, width));
    }
    const std::size_t before = (width - length) / 2;
    return std::string(before, ' ') + std::string(text) + std::string(width - length - before, ' ');
}

void sub0529(DaylightNote& flag, int monthIndex, std::string& page, OutputFile& file) {
    ReportProgress(monthIndex * 100.0 / 12.0);
    Ports().eventLoop.Pump();
    page += Rule(kPageWidth + 1);
    if (flag != kNoNote) {
        page += Footnote(flag);
        flag = kNoNote;
    }
    file.Append(BytesOf(page + Crlf));
}

void WriteTextPages(OutputFile& file, const std::function<bool()>& isCancelled) {
    const ExportedYear year;
    const std::string header = Header();
    std::string page;
    DaylightNote flag = kNoNote;
    int monthIndex = 0;
    for (int n = 1; n <= year.days; ++n) {
        const Date date = year.first + n - 1;
        const CivilDate civil = CivilFromDate(date);
        if (civil.day == 1) {
            if (n > 1) {
                monthIndex = civil.month - 1;
                sub0529(flag, monthIndex, page, file);
                page = kFormFeed;
            }
            page += MonthTitle(date) + header;
        }
        page += DaylightMark(year.settings, n, flag) + DayCells(year, n, civil.day);
        page += EndsGroup(civil.day) ? Crlf : "";
        if (isCancelled()) {
            break;
        }
        Ports().eventLoop.Pump();
    }
    // The count of months stands where the last turn left it: the bar never fills.
    sub0529(flag, monthIndex, page, file);
}

}  // namespace horavex
