#pragma once

#include <array>
#include <cstddef>

#include "engine/moment.h"
#include "engine/night_rules.h"

namespace horavex {

/// Times around a day that no athan calls.
enum AroundTime : std::size_t { kImsak, kDuha, kMiddleOfNight, kLastThird, kAroundCount };

/// By AroundTime.
using AroundMoments = std::array<Moment, kAroundCount>;

/// The times around a day, which stand on its prayers with all that the rules ask of these:
///
/// - imsak, so many minutes before Fajr, when a fast begins with something in hand;
/// - the beginning of Duha, a quarter of an hour after sunrise: the time in which the sun rises by
///   a spear's length, some twelve minutes, rounded up (Ibn Uthaymin, al-Sharh al-Mumti', 4/122);
/// - the middle and the last third of the night behind the day, from Maghrib to the next Fajr. A
///   rule of high latitudes counts its nights to sunrise instead.
///
/// On the last day of the year the night is as long as the one before it. NoEvent where a prayer
/// that a time stands on does not exist; by a rule where one is.
AroundMoments AroundOf(const YearSource& year, std::size_t row, int imsakMinutes);

/// Those of a day of the program's year by the rules and options in force.
AroundMoments AroundOfRow(std::size_t row);

}  // namespace horavex
