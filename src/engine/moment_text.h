#pragma once

#include <array>
#include <span>
#include <string>
#include <vector>

#include "engine/around_day.h"
#include "engine/moment.h"
#include "store/options.h"

namespace horavex {

// Moments in the words of the current pack. Beside the clock stand the day, where it is not the
// moment's own, and a dagger where a rule of high latitudes made the moment.

/// The dagger.
inline constexpr const char* kRuleMark = "\u2020";

/// True for a moment beside whose clock something stands.
bool HasMarks(const Moment& moment);

/// Sets both beside a text of the moment's clock: "12:14 AM, next day †".
std::string WithMarks(const std::string& clock, const Moment& moment);

/// The same in the user's form of a time.
std::string MomentText(const Moment& moment);

/// The same in short, for columns: "12:14 AM+1†".
std::string CellWithMarks(const std::string& clock, const Moment& moment);
std::string MomentCell(const Moment& moment);

std::string RuleName(HighLatitudeRule rule);

/// The keys of the times around a day, by AroundTime, for packs and files.
inline constexpr std::array<const char*, kAroundCount> kAroundKeys = {"Imsak", "Duha",
                                                                      "MiddleOfNight", "LastThird"};

/// The name of such a time.
std::string AroundName(std::size_t time);

/// What the dagger means; empty where none of the moments has it.
std::string RuleNote(std::span<const Moment> moments, HighLatitudeRule rule);

/// The lines that belong below columns with such moments: what stands beside the times, each once.
std::vector<std::string> ColumnNotes(std::span<const Moment> moments, HighLatitudeRule rule);

}  // namespace horavex
