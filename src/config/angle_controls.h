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
// Row 0 is "custom"; it only tells that no convention has the angles on the sliders, or that
// options of another one are in force beside them.

/// The rows in a language column of the text table, with their two angles; what lies outside the
/// band is refused.
void FillMethodRows(ComboBox& list, std::int16_t language);

/// The row of the convention with these angles; 0 for none.
int RowOfAngles(double fajrAngle, double ishaAngle);

template <class Window>
int RowOfSliders(const Window& form) {
    return RowOfAngles(AngleOnSliders(form.hsDepr, form.hsDepr1),
                       AngleOnSliders(form.hsDepr2, form.hsDepr21));
}

/// The same row, unless the working options ask for more than its convention does.
int RowInForce(int row);

/// Puts what the convention of a row asks beyond its angles in the place of the working options,
/// where these hold such things or wait for a commit anyway.
void TakeWholeMethod(int row);

/// Isha goes by its angle. By the clock its sliders count for nothing.
bool IshaIsByAngle();

/// Selects the convention that the sliders of a window show.
template <class Window>
void ShowMethod(Window& form) {
    form.hsDepr2.SetEnabled(IshaIsByAngle());
    form.hsDepr21.SetEnabled(IshaIsByAngle());
    if (form.cboMethod.ListCount() > 0) {
        form.cboMethod.SetListIndex(RowInForce(RowOfSliders(form)));
    }
}

template <class Window>
void ListMethods(Window& form, std::int16_t language) {
    FillMethodRows(form.cboMethod, language);
    ShowMethod(form);
}

/// The user's choice of a convention moves the sliders, and takes the place of the options of
/// another one. False where nothing was chosen, as when the program itself selects a row.
template <class Window>
bool cboMethod_Click(Window& form) {
    const int row = form.cboMethod.ListIndex();
    if (row <= 0 || row == RowInForce(RowOfSliders(form))) {
        return false;
    }
    const Method& method = Methods()[static_cast<std::size_t>(row - 1)];
    TakeWholeMethod(row);
    MoveSliders(method.fajrAngle, form.hsDepr, form.hsDepr1);
    MoveSliders(method.ishaAngle, form.hsDepr2, form.hsDepr21);
    ShowMethod(form);
    return true;
}

}  // namespace horavex
