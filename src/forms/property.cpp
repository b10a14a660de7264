#include "forms/property.h"

#include <initializer_list>
#include <string>

namespace horavex {

namespace {

using enum Property;

/// A set of properties, one bit each.
class PropertySet {
public:
    constexpr PropertySet(std::initializer_list<Property> properties) {
        for (const Property property : properties) {
            bits_ |= BitOf(property);
        }
    }

    constexpr bool Contains(Property property) const { return (bits_ & BitOf(property)) != 0; }

private:
    static constexpr unsigned BitOf(Property property) {
        return 1U << static_cast<unsigned>(property);
    }

    unsigned bits_ = 0;
};

constexpr PropertySet kWindow = {kCaption, kEnabled, kVisible, kPlace, kScaleSize};
constexpr PropertySet kOutline = {kVisible, kPlace};
constexpr PropertySet kCaptioned = {kCaption, kToolTipText, kTabIndex, kEnabled, kVisible, kPlace};
constexpr PropertySet kTextHolder = {kText, kToolTipText, kTabIndex, kEnabled, kVisible, kPlace};
constexpr PropertySet kPlain = {kToolTipText, kTabIndex, kEnabled, kVisible, kPlace};
constexpr PropertySet kBar = {kTabIndex, kEnabled, kVisible, kPlace};
constexpr PropertySet kCanvas = {kToolTipText, kTabIndex, kEnabled, kVisible, kPlace, kScaleSize};
constexpr PropertySet kMenu = {kCaption, kEnabled, kVisible};
constexpr PropertySet kUnseen = {kEnabled};

const PropertySet& PropertiesOf(ControlKind kind) {
    switch (kind) {
        case ControlKind::kForm:
            return kWindow;
        case ControlKind::kShape:
            return kOutline;
        case ControlKind::kFrame:
        case ControlKind::kLabel:
        case ControlKind::kSkinLabel:
        case ControlKind::kCommandButton:
        case ControlKind::kCheckBox:
        case ControlKind::kOptionButton:
            return kCaptioned;
        case ControlKind::kTextBox:
        case ControlKind::kListBox:
        case ControlKind::kComboBox:
            return kTextHolder;
        case ControlKind::kSlider:
        case ControlKind::kProgressBar:
        case ControlKind::kTabStrip:
        case ControlKind::kGrid:
            return kPlain;
        case ControlKind::kScrollBar:
            return kBar;
        case ControlKind::kPicture:
            return kCanvas;
        case ControlKind::kMenuItem:
            return kMenu;
        case ControlKind::kTimer:
            break;
    }
    return kUnseen;
}

std::string_view NameOf(Property property) {
    switch (property) {
        case kCaption:
            return "Caption";
        case kText:
            return "Text";
        case kToolTipText:
            return "ToolTipText";
        case kIndex:
            return "Index";
        case kTabIndex:
            return "TabIndex";
        case kEnabled:
            return "Enabled";
        case kVisible:
            return "Visible";
        case kPlace:
            return "place or size of that kind";
        case kScaleSize:
            break;
    }
    return "scale size";
}

}  // namespace

bool KindHas(ControlKind kind, Property property) {
    return PropertiesOf(kind).Contains(property);
}

NoSuchPropertyFault::NoSuchPropertyFault(std::string_view element, Property property)
    : Fault(std::string(element) + " has no " + std::string(NameOf(property))) {}

}  // namespace horavex
