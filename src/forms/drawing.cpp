#include "forms/drawing.h"

#include <algorithm>

namespace horavex {

std::vector<TextStep> TextsOf(const TextRowStep& row,
                              const std::function<double(const std::string&)>& widthOf) {
    const bool fits = std::ranges::all_of(row.entries, [&](const TextRowStep::Entry& entry) {
        return widthOf(entry.text) <= row.room;
    });
    std::vector<TextStep> texts;
    for (const TextRowStep::Entry& entry : row.entries) {
        texts.push_back({entry.at, fits ? entry.text : entry.brief, row.colour});
    }
    return texts;
}

}  // namespace horavex
