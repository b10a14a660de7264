#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace horavex {

/// The changeable values of a form or control, once as its definition gives them and once as
/// they stand. A kind reads only those that its properties speak of.
struct ControlValues {
    std::string caption = {};
    std::string text = {};  // UTF-8, as all texts are
    std::string toolTipText = {};
    std::string tag = {};
    std::string picture = {};  // name of a picture file; empty for none
    bool enabled = true;
    bool visible = true;  // a form's own visibility is no part of its definition
    bool checked = false;
    int value = 0;  // min to max; 0 or 1 for check boxes and options
    int min = 0;
    int max = 32767;
    int smallStep = 1;
    int largeStep = 1;
    std::vector<std::string> items = {};
    std::map<int, std::string> refusals = {};    // by index: why the item cannot be chosen
    bool typed = true;                           // false where the text is chosen from a list alone
    int listIndex = -1;                          // 0 to the number of items less 1, or -1 for none
    int intervalMs = 0;                          // 0 for a timer that never ticks
    std::optional<int> tabIndex = std::nullopt;  // by default the next number of the form
    double left = 0;                             // place and size in twips, 1/1440 inch,
    double top = 0;                              // left and top against the parent's inside
    double width = 0;
    double height = 0;
    int stacking = 0;  // among controls that overlap the highest lies in front
    int windowState = 0;
    int helpContextId = 0;
};

}  // namespace horavex
