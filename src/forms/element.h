#pragma once

#include <string>
#include <utility>

#include "forms/control_values.h"
#include "forms/property.h"

namespace horavex {

class Form;

/// What forms and controls have in common: a name, the definition's values, the values as they
/// stand. Every accessor throws NoSuchPropertyFault where the kind lacks the property.
class Element {
public:
    virtual ~Element() = default;
    Element(const Element&) = delete;
    Element& operator=(const Element&) = delete;

    ControlKind Kind() const { return kind_; }
    const std::string& Name() const { return name_; }
    virtual bool Has(Property property) const { return KindHas(kind_, property); }

    const std::string& Caption() const;
    void SetCaption(std::string caption);

    /// Free text that the program keeps with the element; means nothing to a front end.
    const std::string& Tag() const { return now_.tag; }
    void SetTag(std::string tag) { Assign(&ControlValues::tag, std::move(tag)); }

    bool Enabled() const;
    void SetEnabled(bool enabled);

    bool Visible() const;
    virtual void SetVisible(bool visible);

    /// Twips; a negative place is allowed, a size is 0 or more.
    double Left() const;
    double Top() const;
    double Width() const;
    double Height() const;
    void SetLeft(double left);
    void SetTop(double top);
    void SetWidth(double width);
    virtual void SetHeight(double height);

    /// The inner size, in twips. A frame of the platform around it is not counted, so that it
    /// equals the size.
    double ScaleWidth() const;
    double ScaleHeight() const;

    virtual Form& OwnerForm() = 0;

    /// True when users may act on what lies inside this element.
    virtual bool LetsUserIn() const = 0;

protected:
    Element(ControlKind kind, std::string name, ControlValues definition);

    const ControlValues& Now() const { return now_; }
    void Require(Property property) const;

    /// Stores a value and tells the front end. False, with nothing done, for the same value.
    template <class T>
    bool Assign(T ControlValues::*field, T value) {
        if (now_.*field == value) {
            return false;
        }
        now_.*field = std::move(value);
        Changed();
        return true;
    }

    /// Changes values in place and tells the front end.
    template <class Change>
    void Alter(Change change) {
        change(now_);
        Changed();
    }

    /// Back to the definition, without any event.
    virtual void Restore() { now_ = definition_; }

    virtual void Changed() = 0;
    virtual void Resized() {}

private:
    friend class Form;

    void AssignSize(double ControlValues::*field, double value);

    ControlKind kind_;
    std::string name_;
    ControlValues definition_;
    ControlValues now_;
};

}  // namespace horavex
