#include "forms/resizer.h"

#include <cstddef>
#include <iterator>
#include <string>

#include "base/fault.h"

namespace horavex {

namespace {

using Read = double (Element::*)() const;
using Write = void (Element::*)(double);

struct Column {
    Read value;
    Write write;
    Read innerSize;  // of the parent
    Read size;       // of a parent that has no inner size
};

constexpr Column kColumns[] = {
    {&Element::Left, &Element::SetLeft, &Element::ScaleWidth, &Element::Width},
    {&Element::Top, &Element::SetTop, &Element::ScaleHeight, &Element::Height},
    {&Element::Width, &Element::SetWidth, &Element::ScaleWidth, &Element::Width},
    {&Element::Height, &Element::SetHeight, &Element::ScaleHeight, &Element::Height},
};

double Fraction(double part, double whole) {
    if (whole == 0.0) {
        throw DivisionByZeroFault("a parent without extent");
    }
    return part / whole;
}

float& Cell(std::vector<clsResizer::Row>& ratios, int tabIndex, std::size_t column) {
    if (tabIndex < 0 || static_cast<std::size_t>(tabIndex) >= ratios.size()) {
        throw BoundsFault("TabIndex " + std::to_string(tabIndex) + " has no row");
    }
    return ratios[static_cast<std::size_t>(tabIndex)][column];
}

/// Runs a step with the parent's inner size, or with its size where that fails.
template <class Step>
void AgainstParent(const Element& parent, const Column& column, Step step) {
    try {
        step((parent.*column.innerSize)());
    } catch (const Fault&) {
        RunStep([&] { step((parent.*column.size)()); });
    }
}

/// Runs a step for each column of each control that has a row.
template <class Step>
void ForEachCell(const Form* form, std::vector<clsResizer::Row>& ratios, Step step) {
    if (form == nullptr) {
        return;
    }
    for (Control* control : form->Controls()) {
        if (!control->Has(Property::kTabIndex)) {
            continue;
        }
        for (std::size_t i = 0; i < std::size(kColumns); ++i) {
            AgainstParent(control->Parent(), kColumns[i], [&](double parentSize) {
                step(*control, kColumns[i], Cell(ratios, control->TabIndex(), i), parentSize);
            });
        }
    }
}

}  // namespace

void clsResizer::PrepareClass(Form& newForm) {
    form = &newForm;
    if (!form->Controls().empty()) {
        ratios.assign(form->Controls().size(), Row{});
    }
    RecordLayout();
}

void clsResizer::RecordLayout() {
    ForEachCell(form, ratios,
                [](const Control& control, const Column& column, float& cell, double parentSize) {
                    cell = static_cast<float>(Fraction((control.*column.value)(), parentSize));
                });
}

void clsResizer::ResizeControls() {
    ForEachCell(form, ratios,
                [](Control& control, const Column& column, float cell, double parentSize) {
                    (control.*column.write)(static_cast<double>(cell) * parentSize);
                });
}

}  // namespace horavex
