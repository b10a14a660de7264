#pragma once

#include <string>
#include <utility>
#include <vector>

#include "forms/control_array.h"
#include "forms/label.h"

namespace horavex {

/// Six labels, one a prayer from Fajr on, with these captions.
inline std::vector<ControlArray<Label>::Member> PrayerLabels(std::vector<std::string> captions) {
    std::vector<ControlArray<Label>::Member> labels;
    for (std::string& caption : captions) {
        labels.push_back({static_cast<int>(labels.size()), {.caption = std::move(caption)}});
    }
    return labels;
}

/// The everyday names, which three windows have.
inline std::vector<ControlArray<Label>::Member> EverydayPrayerLabels() {
    return PrayerLabels({"Dawn", "Sunrise", "Noon", "Afternoon", "Sunset", "Night"});
}

}  // namespace horavex
