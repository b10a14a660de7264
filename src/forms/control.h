#pragma once

#include <functional>
#include <optional>
#include <string>

#include "forms/element.h"

namespace horavex {

/// A handler that the owner sets; an empty one is passed over.
using Handler = std::function<void()>;

/// The name of a control and its index, if it belongs to a control array.
struct ControlName {
    // Implicit, so that a plain control is defined by its name alone.
    ControlName(const char* plainName) : name(plainName) {}
    ControlName(std::string arrayName, int member) : name(std::move(arrayName)), index(member) {}

    std::string name;
    std::optional<int> index = std::nullopt;  // 0 or more
};

/// One control of a form. It is made inside its parent, the form or a control that contains it,
/// and belongs to that form's list of controls from then on.
class Control : public Element {
public:
    ~Control() override;

    bool Has(Property property) const override;

    int Index() const;
    int TabIndex() const;
    Element& Parent() const { return parent_; }
    Form& OwnerForm() override { return form_; }

    const std::string& ToolTipText() const;
    void SetToolTipText(std::string text);

    virtual const std::string& Text() const;
    virtual void SetText(const std::string& text);

    /// Asks the front end to draw the control again.
    void Refresh() { Changed(); }

    /// Puts the control before all others that it overlaps.
    void BringToFront();
    int Stacking() const { return Now().stacking; }

    /// False for a disabled or hidden control and for one inside such a control or a disabled
    /// form; what a user does to it is then ignored.
    bool AcceptsUser() const;
    bool LetsUserIn() const override { return AcceptsUser(); }

protected:
    Control(ControlKind kind, Element& parent, ControlName name, ControlValues definition);

    const Form& ParentForm() const { return form_; }

    /// Runs a handler as one of the form's. The last step of its caller, since the handler may
    /// unload the form.
    void Fire(const Handler& handler);

    void Changed() override;

private:
    Form& form_;
    Element& parent_;
    std::optional<int> index_;
    int tabIndex_;
};

}  // namespace horavex
