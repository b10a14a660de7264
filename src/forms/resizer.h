#pragma once

#include <array>
#include <vector>

#include "forms/form.h"

namespace horavex {

/// Keeps the controls of one form in proportion when the form changes size: it remembers the
/// place and size of each as fractions of its direct parent's inner size, and puts them back from
/// these. Fonts stay as they are. A form that adopts it calls ResizeControls from its onResize.
///
/// Every property may fail, and so may a row that is not there: the step is passed over and the
/// control keeps what it had, while its other three steps run.
class clsResizer {
public:
    /// Columns 0 to 3 are left, top, width and height as fractions; 4 to 7 are spare.
    using Row = std::array<float, 8>;

    /// Takes the form, which has to outlive the resizer, with the layout that it has now.
    void PrepareClass(Form& newForm);

    /// Only fills the collection: a control in it is recorded and resized like any other.
    void AddControlToIgnore(Control& control) { ignored.push_back(&control); }

    /// Applies the fractions to the form's present size.
    void ResizeControls();

    /// Takes the present layout.
    void RecordLayout();

    Form* form = nullptr;
    std::vector<Row> ratios;  // by TabIndex, one for each control of the form; controls that share
                              // a TabIndex share the row, and the last one recorded wins
    std::vector<Control*> ignored;
};

}  // namespace horavex
