#include <stdexcept>

#include "desktop/form_window/choice_binders.h"
#include "desktop/form_window/grid_binder.h"
#include "desktop/form_window/picture_binder.h"
#include "desktop/form_window/range_binders.h"
#include "desktop/form_window/text_binders.h"

namespace horavex {

namespace {

template <class BinderType>
std::unique_ptr<Binder> Make(Control& control, QWidget& widget, Binder::RefreshLater later) {
    return std::make_unique<BinderType>(control, widget, std::move(later));
}

/// A text box of one line or of several, as the layout has it.
std::unique_ptr<Binder> MakeTextBox(Control& control, QWidget& widget, Binder::RefreshLater later) {
    const bool severalLines = qobject_cast<QTextEdit*>(&widget) != nullptr;
    return severalLines ? Make<LinesBinder>(control, widget, std::move(later))
                        : Make<TextBoxBinder>(control, widget, std::move(later));
}

auto MakerOf(ControlKind kind) {
    switch (kind) {
        case ControlKind::kFrame:
            return Make<FrameBinder>;
        case ControlKind::kShape:
            return Make<ShapeBinder>;
        case ControlKind::kLabel:
        case ControlKind::kSkinLabel:
            return Make<LabelBinder>;
        case ControlKind::kCommandButton:
            return Make<CommandButtonBinder>;
        case ControlKind::kCheckBox:
            return Make<CheckBoxBinder>;
        case ControlKind::kOptionButton:
            return Make<OptionButtonBinder>;
        case ControlKind::kTextBox:
            return MakeTextBox;
        case ControlKind::kListBox:
            return Make<ListBoxBinder>;
        case ControlKind::kComboBox:
            return Make<ComboBoxBinder>;
        case ControlKind::kScrollBar:
        case ControlKind::kSlider:
            return Make<MovableRangeBinder>;
        case ControlKind::kProgressBar:
            return Make<ProgressBarBinder>;
        case ControlKind::kPicture:
            return Make<PictureBinder>;
        case ControlKind::kTabStrip:
            return Make<TabStripBinder>;
        case ControlKind::kGrid:
            return Make<GridBinder>;
        case ControlKind::kForm:
        case ControlKind::kMenuItem:
        case ControlKind::kTimer:
            break;
    }
    throw std::invalid_argument("a control of this kind has no widget");
}

}  // namespace

std::unique_ptr<Binder> MakeBinder(Control& control, QWidget& widget,
                                   Binder::RefreshLater refreshLater) {
    return MakerOf(control.Kind())(control, widget, std::move(refreshLater));
}

}  // namespace horavex
