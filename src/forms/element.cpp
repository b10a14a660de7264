#include "forms/element.h"

namespace horavex {

Element::Element(ControlKind kind, std::string name, ControlValues definition)
    : kind_(kind), name_(std::move(name)), definition_(std::move(definition)), now_(definition_) {}

void Element::Require(Property property) const {
    if (!Has(property)) {
        throw NoSuchPropertyFault(name_, property);
    }
}

const std::string& Element::Caption() const {
    Require(Property::kCaption);
    return now_.caption;
}

void Element::SetCaption(std::string caption) {
    Require(Property::kCaption);
    Assign(&ControlValues::caption, std::move(caption));
}

bool Element::Enabled() const {
    Require(Property::kEnabled);
    return now_.enabled;
}

void Element::SetEnabled(bool enabled) {
    Require(Property::kEnabled);
    Assign(&ControlValues::enabled, enabled);
}

bool Element::Visible() const {
    Require(Property::kVisible);
    return now_.visible;
}

void Element::SetVisible(bool visible) {
    Require(Property::kVisible);
    Assign(&ControlValues::visible, visible);
}

double Element::Left() const {
    Require(Property::kPlace);
    return now_.left;
}

double Element::Top() const {
    Require(Property::kPlace);
    return now_.top;
}

double Element::Width() const {
    Require(Property::kPlace);
    return now_.width;
}

double Element::Height() const {
    Require(Property::kPlace);
    return now_.height;
}

void Element::SetLeft(double left) {
    Require(Property::kPlace);
    Assign(&ControlValues::left, left);
}

void Element::SetTop(double top) {
    Require(Property::kPlace);
    Assign(&ControlValues::top, top);
}

void Element::SetWidth(double width) {
    AssignSize(&ControlValues::width, width);
}

void Element::SetHeight(double height) {
    AssignSize(&ControlValues::height, height);
}

void Element::AssignSize(double ControlValues::*field, double value) {
    Require(Property::kPlace);
    if (Assign(field, value)) {
        Resized();
    }
}

double Element::ScaleWidth() const {
    Require(Property::kScaleSize);
    return now_.width;
}

double Element::ScaleHeight() const {
    Require(Property::kScaleSize);
    return now_.height;
}

}  // namespace horavex
