#include "timetables/text_export.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "base/number_text.h"
#include "base/prayers.h"
#include "base/text.h"
#include "base/utf8.h"
#include "engine/angle.h"
#include "engine/current_year.h"
#include "engine/moment_text.h"
#include "engine/moments.h"
#include "engine/progress_window.h"
#include "engine/ruled_year.h"
#include "engine/solar_event.h"
#include "geo/qibla.h"
#include "platform/platform.h"
#include "store/location_record.h"
#include "store/location_text.h"
#include "store/open_texts.h"
#include "store/settings_record.h"
#include "store/text_table.h"
#include "timetables/timetable.h"

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

void AppendCentered(std::string& page, std::string_view text, std::size_t width) {
    const std::size_t length = Utf8Length(text);
    if (length >= width) {
        page += Utf8FirstCharacters(text, width);
        return;
    }
    const std::size_t before = (width - length) / 2;
    page.append(before, ' ');
    page += text;
    page.append(width - length - before, ' ');
}

void AppendCell(std::string& page, std::string_view text) {
    page += ' ';
    AppendCentered(page, text, kTimeWidth);
}

/// None where the settings' own zone counts, which tell on which days its clock changes.
std::vector<DayClock> ClocksOfZone(std::size_t days) {
    return RuledYear.rules.moments.zone.empty() ? std::vector<DayClock>() : TakeClocks(days);
}

/// What the pages are of. A new year or a change of settings may come in between two days.
struct ExportedYear {
    Date first = DateSerial(CurrentYear, 1, 1);
    int days = 365 + LeapFlag;
    std::vector<DayMoments> moments = MomentsOfAllRows();
    SettingsRecord settings = ActiveSettings;
    std::string zoneName = RuledYear.rules.zoneName;
    HighLatitudeRule highLatitude = RuledYear.rules.moments.highLatitude;
    std::vector<DayClock> clocks = ClocksOfZone(moments.size());
    double timeZone = clocks.empty() ? ActiveSettings.TimeZone : StandardHours(clocks);
};

/// Makes the block at the head of every month.
class HeaderMaker {
public:
    std::string Text(TextEntry entry) const { return texts_.Item(entry, ActiveSettings.Language); }

    std::string Make(const ExportedYear& year) const {
        return PlaceLines() + ZoneLine(year) + QiblaLine() + Rule() + ColumnLines() + Rule();
    }

private:
    std::string PlaceLines() const {
        const double latitude = StoredCoord(ActiveLocation.City.Latitude);
        const double longitude = StoredCoord(ActiveLocation.City.Longitude);
        return Text(TextEntry::kCity) + ": " + ActiveCityText + Crlf +
               FormatLatitude(latitude, ActiveSettings.Language) + Crlf +
               FormatLongitude(longitude, ActiveSettings.Language) + Crlf;
    }

    std::string ZoneLine(const ExportedYear& year) const {
        return Text(TextEntry::kTimeZone) + ": " + Text(TextEntry::kGmt) + " " +
               SignedFixedText(year.timeZone, Ports().formats.DecimalMark()) +
               (year.zoneName.empty() ? "" : ", " + year.zoneName) + Crlf;
    }

    std::string QiblaLine() const {
        const std::string method =
            ActiveSettings.QiblaMethod == 2 ? Text(TextEntry::kSecond) : Text(TextEntry::kFirst);
        return QiblaText + " (" + method + " " + Text(TextEntry::kMethod) + ") " + Crlf;
    }

    std::string ColumnLines() const {
        std::string translated(kDayCaptionWidth, ' ');
        std::string fixed = CenterText(Text(TextEntry::kDay), kDayCaptionWidth);
        for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
            AppendCell(translated, Text(PrayerNameEntry(prayer)));
            AppendCell(fixed, prayerNames.at(prayer));
        }
        return translated + Crlf + fixed + Crlf;
    }

    OpenTexts texts_;
};

/// prayerTimesOf: the words before the month.
std::string MonthTitle(const std::string& prayerTimesOf, Date date) {
    const std::string title = prayerTimesOf + " " + Ports().formats.MonthAndYear(date) + ".";
    return Rule() + CenterText(title, kPageWidth) + Crlf + Crlf;
}

/// The change of a day of the settings. day: 1-based day of the year.
DaylightChange ChangeInSettings(const SettingsRecord& settings, int day) {
    if (settings.DstEnabled != 1) {
        return DaylightChange::kNone;
    }
    return day == settings.DstStart ? DaylightChange::kBegins
           : day == settings.DstEnd ? DaylightChange::kEnds
                                    : DaylightChange::kNone;
}

/// The same of the zone that counts, which may hold what the settings cannot.
DaylightChange ChangeOn(const ExportedYear& year, int day) {
    return year.clocks.empty() ? ChangeInSettings(year.settings, day)
                               : year.clocks.at(static_cast<std::size_t>(day) - 1).change;
}

/// The mark before a day on which daylight saving changes; it leaves its footnote pending.
std::string DaylightMark(DaylightChange change, DaylightNote& flag) {
    if (change == DaylightChange::kNone) {
        return " ";
    }
    flag = change == DaylightChange::kBegins ? kBegins : kFinishes;
    return "*";
}

/// The cells of a year's moments. Two thirds of them show a minute that another one shows, too.
class Cells {
public:
    void Append(std::string& page, const Moment& moment) {
        if (HasMarks(moment)) {
            AppendCell(page, MomentCell(moment));
        } else {
            page += OfMinute(moment);
        }
    }

private:
    const std::string& OfMinute(const Moment& moment) {
        const ClockTime clock = ClockTimeOf(moment.hours / 24.0);
        std::string& cell = cells_[static_cast<std::size_t>(clock.hour * 60 + clock.minute)];
        if (cell.empty()) {
            AppendCell(cell, MomentCell(moment));
        }
        return cell;
    }

    std::vector<std::string> cells_ =
        std::vector<std::string>(24 * 60);  // by the minute of the day; empty before the first
};

void AppendDay(std::string& page, const DayMoments& moments, int dayOfMonth, Cells& cells) {
    AppendCentered(page, std::to_string(dayOfMonth), kDayWidth);
    for (const Moment& moment : moments) {
        cells.Append(page, moment);
    }
    page += Crlf;
}

/// Those of a day that are times at all and have marks.
void TakeMarked(const DayMoments& moments, std::vector<Moment>& marked) {
    std::ranges::copy_if(moments, std::back_inserter(marked), [](const Moment& moment) {
        return HasMarks(moment) && std::fabs(moment.hours) < NoEvent;
    });
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

/// A text as lines that keep to the page.
std::string Wrapped(std::string_view text) {
    std::string lines;
    std::size_t length = 0;
    for (const std::string& word : Split(text, ' ')) {
        const std::size_t width = Utf8Length(word);
        const bool fits = length == 0 || length + 1 + width <= kPageWidth;
        lines += (length == 0 ? "" : fits ? " " : Crlf) + word;
        length = fits && length > 0 ? length + 1 + width : width;
    }
    return lines + Crlf;
}

/// What the marks beside some moments mean; nothing without marks.
std::string MarkLines(std::span<const Moment> moments, HighLatitudeRule rule) {
    std::string lines;
    for (const std::string& note : ColumnNotes(moments, rule)) {
        lines += Wrapped(note);
    }
    return lines;
}

}  // namespace

std::string CenterText(std::string_view text, std::size_t width) {
    std::string centered;
    AppendCentered(centered, text, width);
    return centered;
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
    const HeaderMaker heads;
    const std::string header = heads.Make(year);
    const std::string prayerTimesOf = heads.Text(TextEntry::kPrayerTimesOf);
    std::string page;
    Cells cells;
    std::vector<Moment> marked;  // of the page
    DaylightNote flag = kNoNote;
    int monthIndex = 0;
    for (int n = 1; n <= year.days; ++n) {
        const Date date = year.first + n - 1;
        const CivilDate civil = CivilFromDate(date);
        if (civil.day == 1) {
            if (n > 1) {
                monthIndex = civil.month - 1;
                page += MarkLines(marked, year.highLatitude);
                marked.clear();
                sub0529(flag, monthIndex, page, file);
                page = kFormFeed;
            }
            page += MonthTitle(prayerTimesOf, date) + header;
        }
        const DayMoments& moments = year.moments[static_cast<std::size_t>(n) - 1];
        page += DaylightMark(ChangeOn(year, n), flag);
        AppendDay(page, moments, civil.day, cells);
        TakeMarked(moments, marked);
        page += EndsGroup(civil.day) ? Crlf : "";
        if (isCancelled()) {
            break;
        }
        Ports().eventLoop.Pump();
    }
    page += MarkLines(marked, year.highLatitude);
    // The count of months stands where the last turn left it: the bar never fills.
    sub0529(flag, monthIndex, page, file);
}

}  // namespace horavex
