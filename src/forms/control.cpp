#include "forms/control.h"

#include <utility>

#include "forms/form.h"

namespace horavex {

Control::Control(ControlKind kind, Element& parent, ControlName name, ControlValues definition)
    : Element(kind, std::move(name.name), std::move(definition)),
      form_(parent.OwnerForm()),
      parent_(parent),
      index_(name.index),
      tabIndex_(Now().tabIndex.value_or(form_.NextTabIndex())) {
    form_.Add(*this);
}

Control::~Control() {
    form_.Remove(*this);
}

bool Control::Has(Property property) const {
    return property == Property::kIndex ? index_.has_value() : Element::Has(property);
}

int Control::Index() const {
    Require(Property::kIndex);
    return *index_;
}

int Control::TabIndex() const {
    Require(Property::kTabIndex);
    return tabIndex_;
}

const std::string& Control::ToolTipText() const {
    Require(Property::kToolTipText);
    return Now().toolTipText;
}

void Control::SetToolTipText(std::string text) {
    Require(Property::kToolTipText);
    Assign(&ControlValues::toolTipText, std::move(text));
}

const std::string& Control::Text() const {
    throw NoSuchPropertyFault(Name(), Property::kText);
}

void Control::SetText(const std::string&) {
    throw NoSuchPropertyFault(Name(), Property::kText);
}

void Control::BringToFront() {
    Assign(&ControlValues::stacking, form_.NextStacking());
}

bool Control::AcceptsUser() const {
    return Now().enabled && Now().visible && parent_.LetsUserIn();
}

void Control::Fire(const Handler& handler) {
    form_.Run(handler);
}

void Control::Changed() {
    form_.ControlHasChanged(*this);
}

}  // namespace horavex
