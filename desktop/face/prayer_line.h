#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace horavex {

struct PrayerEntry {
    QString name;
    QString time;

    bool operator==(const PrayerEntry&) const = default;
};

/// Reads the text of all prayer times: for each prayer a blank, a name without a colon, a colon
/// and a time: " Fajr:05:31 AM Shurooq:06:52 AM". Names may hold blanks, and times a colon or
/// another mark between hours and minutes. What follows the minutes belongs to the time where it
/// is one of timeTails (" AM", " PM"). Nothing for a text that is none of that.
std::optional<std::vector<PrayerEntry>> ReadPrayerLine(const QString& text,
                                                       const QStringList& timeTails);

/// What follows the minutes of a time of day in the user's locale, before noon and after.
QStringList TailsOfTimes();

/// The row that a sentence about the next prayer speaks of: the one whose name stands in it, or
/// else the one whose hours and minutes do. Nothing where none or several do.
std::optional<std::size_t> RowNamedIn(const QString& sentence,
                                      const std::vector<PrayerEntry>& rows);

}  // namespace horavex
