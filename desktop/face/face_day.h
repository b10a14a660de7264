#pragma once

#include <QString>
#include <memory>
#include <optional>
#include <vector>

#include "desktop/face/times_view.h"

namespace horavex {

struct DaySky;
struct DayView;

/// What the shapes of the face show of a day, in the words of the pack.
struct FaceDay {
    std::vector<PrayerEntry> rows;           // by prayer
    std::vector<PrayerEntry> cells;          // the same in short, where there is little room
    std::vector<QString> iqamas;             // below them; empty where none is told
    std::vector<std::optional<double>> arc;  // where they stand in the day; nothing for no time
    std::size_t next = 0;                    // the row to mark
    QString countdownWords;                  // in front of the digits
    int seconds = 0;                         // that remain
    QString clock;                           // the user's form of the time, without seconds
    QString place;
    QString clocks;     // a line on the clocks where two are told
    QString iqama;      // the countdown to an iqama
    QString timesNote;  // what marks beside the times mean
    std::shared_ptr<const DaySky> sky;
};

FaceDay FaceDayOf(const DayView& day);

/// A word of the pack for the desktop; the key is the English one.
QString DesktopWord(const char* key);

}  // namespace horavex
