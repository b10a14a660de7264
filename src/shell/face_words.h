#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace horavex {

struct DaySky;
struct DayView;

/// A prayer in a line of the face.
struct ToldPrayer {
    std::string name;
    std::string time;
    std::string cell;            // the time in short, where there is little room
    std::string iqama;           // "Iqama 12:15"; empty where none is told
    std::optional<double> part;  // of the day, where it stands in it; nothing for no time
};

/// What a face shows of a day, in the words of the pack.
struct FaceWords {
    std::vector<ToldPrayer> prayers;
    std::size_t next = 0;        // the one to mark
    std::string tomorrow;        // its name where it is tomorrow's, else empty
    std::string countdownWords;  // in front of the digits
    int seconds = 0;             // that remain
    std::string clock;           // the user's form of the time, without seconds
    std::string place;
    std::string clocks;     // a line on the clocks where two are told
    std::string iqama;      // the countdown to an iqama
    std::string timesNote;  // what marks beside the times mean
    std::shared_ptr<const DaySky> sky;
};

FaceWords FaceWordsOf(const DayView& day);

}  // namespace horavex
