#pragma once

#include <cstdint>

#include "config/methods.h"
#include "forms/combo_box.h"
#include "forms/range.h"

namespace horavex {

// An angle stands on two controls: a scroll bar of whole degrees and a slider of quarters, whose
// last step is a whole degree again.

/// The angle that a pair shows, degrees.
double AngleOnSliders(const ScrollBar& whole, const Slider& quarters);

/// Puts an angle on a pair; what lies outside its range is clipped.
void MoveSliders(double angle, ScrollBar& whole, Slider& quarters);

// The list of conventions above the angle controls, alike in the settings window and the wizard.
// Row 0 is "custom"; it only tells that no convention has the angles on the sliders.

/// The rows in a language column of the text table; what lies outside the band is refused.
void FillMethodRows(ComboBox& list, std::int16_t language);

/// The row of the convention with these angles; 0 for none.
int RowOfAngles(double fajrAngle, double ishaAngle);

template <class Window>
int RowOfSliders(const Window& form) {
    return RowOfAngles(AngleOnSliders(form.hsDepr, form.hsDepr1),
                       AngleOnSliders(form.hsDepr2, form.hsDepr21));
}

/// Selects the convention that the sliders of a window show.
template <class Window>
void ShowMethod(Window& form) {
    if (form.cboMethod.ListCount() > 0) {
        form.cboMethod.SetListIndex(RowOfSliders(form));
    }
}

template <class Window>
void ListMethods(Window& form, std::int16_t language) {
    FillMethodRows(form.cboMethod, language);
    ShowMethod(form);
}

/// The choice of a convention moves the sliders, and nothing else.
template <class Window>
void cboMethod_Click(Window& form) {
    const int row = form.cboMethod.ListIndex();
    if (row > 0 && row != RowOfSliders(form)) {
        const Method& method = Methods()[static_cast<std::size_t>(row - 1)];
        MoveSliders(method.fajrAngle, form.hsDepr, form.hsDepr1);
        MoveSliders(method.ishaAngle, form.hsDepr2, form.hsDepr21);
    }
}

}  // namespace horavex
