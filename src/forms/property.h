#pragma once

#include <string_view>

#include "base/fault.h"

namespace horavex {

enum class ControlKind {
    kForm,
    kFrame,
    kShape,
    kLabel,
    kSkinLabel,
    kCommandButton,
    kMenuItem,
    kCheckBox,
    kOptionButton,
    kTextBox,
    kListBox,
    kComboBox,
    kScrollBar,
    kSlider,
    kProgressBar,
    kPicture,
    kTabStrip,
    kGrid,
    kTimer,
};

/// The properties that some kinds have and others lack. `Name`, `Tag` and `Parent` all have.
enum class Property {
    kCaption,
    kText,
    kToolTipText,
    kIndex,  // of a member of a control array
    kTabIndex,
    kEnabled,
    kVisible,
    kPlace,      // Left, Top, Width, Height
    kScaleSize,  // ScaleWidth, ScaleHeight
};

/// False for kIndex, which belongs to single controls and to no kind.
bool KindHas(ControlKind kind, Property property);

/// A property was read or written that the control does not have, or written where it is fixed.
class NoSuchPropertyFault : public Fault {
public:
    NoSuchPropertyFault(std::string_view element, Property property);
};

}  // namespace horavex
