#pragma once

#include <vector>

#include "base/prayers.h"
#include "forms/control_array.h"
#include "forms/label.h"

namespace horavex {

/// Six labels, one a prayer from Fajr on, with these captions.
inline std::vector<ControlArray<Label>::Member> PrayerLabels(const PrayerTexts& captions) {
    std::vector<ControlArray<Label>::Member> labels;
    for (const char* caption : captions) {
        labels.push_back({static_cast<int>(labels.size()), {.caption = caption}});
    }
    return labels;
}

/// The everyday names, which three windows have.
inline std::vector<ControlArray<Label>::Member> EverydayPrayerLabels() {
    return PrayerLabels(kEverydayNames);
}

}  // namespace horavex
