#include "soak/monkey.h"

#include <algorithm>
#include <vector>

#include "forms/check_box.h"
#include "forms/combo_box.h"
#include "forms/command_button.h"
#include "forms/grid.h"
#include "forms/label.h"
#include "forms/option_button.h"
#include "forms/picture.h"
#include "forms/range.h"
#include "forms/text_box.h"
#include "lang/form_language.h"

namespace horavex {

namespace {

/// What is typed: what boxes ask for, what lies at the edges of it, and what is none.
const std::vector<std::string> kTexts = {
    "",      "0",    "1",     "-1",        "7",           "12",      "13",   "-12",  "-12.5",
    "5.75",  "23",   "24",    "29",        "30",          "31",      "59",   "60",   "90",
    "91",    "180",  "366",   "1450",      "1990",        "2050",    "9999", "2,5",  ".",
    "-",     "1e9",  "1e400", "99999",     "2147483648",  "nan",     "inf",  "abc",  "Mecca",
    "cairo", "Oslo", "a",     "São Paulo", "مكة",         "12:30",   "N",    "é\n",  "&&",
    "%s%n",  "\xff", "'\"<>", "../../x",   "/home/s.mp3", "  blank", "٣",    "٢٠٢٦", "\t"};

std::string NameOf(const Control& control) {
    return control.Name() + ControlIndexSuffix(control);
}

/// What users may choose of a menu.
std::vector<MenuItem*> ChoicesOf(const MenuItem& menu) {
    std::vector<MenuItem*> choices = menu.Entries();
    std::erase_if(choices, [](const MenuItem* entry) {
        return !entry->Visible() || entry->Caption() == "-" ||
               (!entry->Enabled() && entry->Entries().empty());
    });
    return choices;
}

bool IsForUsers(const Control* control) {
    return control->Kind() != ControlKind::kTimer && control->Kind() != ControlKind::kMenuItem;
}

}  // namespace

void Monkey::ActOn(Form& form, std::string& did) {
    std::vector<Control*> controls;
    std::ranges::copy_if(form.Controls(), std::back_inserter(controls), IsForUsers);
    if (controls.empty() || chance_.OneIn(10)) {
        did = form.Name();
        ActOnWindow(form);
        return;
    }
    Control& control = *chance_.Of(controls);
    did = form.Name() + "." + NameOf(control);
    ActOn(control);
    if (form.IsLoaded() && form.Visible()) {
        form.Paint();
    }
}

void Monkey::ChooseIn(MenuItem& menu, std::string& did) {
    const std::vector<MenuItem*> choices = ChoicesOf(menu);
    if (choices.empty() || chance_.OneIn(6)) {
        return;
    }
    MenuItem& chosen = *chance_.Of(choices);
    did = NameOf(chosen);
    if (chosen.Entries().empty()) {
        chosen.UserClick();
    } else {
        ChooseIn(chosen, did);
    }
}

void Monkey::ActOnWindow(Form& form) {
    switch (chance_.Below(6)) {
        case 0:
            return form.UserHelp();
        case 1:
            return form.UserActivate();
        case 2:
            return form.SetWindowState(chance_.OneIn(2) ? WindowState::kMinimized
                                                        : WindowState::kMaximized);
        case 3:
            return form.SetWindowState(WindowState::kNormal);
        default:
            return form.UserClose();
    }
}

void Monkey::ActOn(Control& control) {
    switch (control.Kind()) {
        case ControlKind::kLabel:
        case ControlKind::kSkinLabel:
            return static_cast<Label&>(control).UserClick();
        case ControlKind::kCommandButton:
            return static_cast<CommandButton&>(control).UserClick();
        case ControlKind::kCheckBox:
            return static_cast<CheckBox&>(control).UserClick();
        case ControlKind::kOptionButton:
            return static_cast<OptionButton&>(control).UserClick();
        case ControlKind::kTextBox:
            return TypeInto(static_cast<TextBox&>(control));
        case ControlKind::kListBox:
            PickFrom(static_cast<ListBox&>(control));
            return chance_.OneIn(3) ? static_cast<ListBox&>(control).UserDoubleClick() : void();
        case ControlKind::kComboBox:
            return chance_.OneIn(2) ? TypeInto(static_cast<ComboBox&>(control))
                                    : PickFrom(static_cast<ComboBox&>(control));
        case ControlKind::kTabStrip:
            return PickFrom(static_cast<TabStrip&>(control));
        case ControlKind::kScrollBar:
            return Move(static_cast<ScrollBar&>(control));
        case ControlKind::kSlider:
            return Move(static_cast<Slider&>(control));
        case ControlKind::kGrid:
            return static_cast<Grid&>(control).UserPage(chance_.OneIn(2) ? 1 : -1);
        case ControlKind::kPicture:
            static_cast<Picture&>(control).UserMouseMove(
                {double(chance_.Below(9000)), double(chance_.Below(6000))});
            return static_cast<Picture&>(control).UserClick();
        default:
            return;  // nothing that a user could do
    }
}

template <class Box>
void Monkey::TypeInto(Box& box) {
    const std::string text = chance_.OneIn(4) ? box.Text() + Text() : Text();
    if (chance_.OneIn(3)) {
        box.UserEdit(text);
    } else {
        box.UserType(text);
    }
    if (chance_.OneIn(3)) {
        box.UserLeave();
    }
}

template <class Choice>
void Monkey::PickFrom(Choice& list) {
    if (list.ListCount() > 0) {
        list.UserSelect(chance_.Below(list.ListCount()));
    }
}

template <class Thumb>
void Monkey::Move(Thumb& range) {
    const auto [least, most] = std::minmax({range.Min(), range.Max()});
    const int value = chance_.Between(least, most);
    if (chance_.OneIn(3)) {
        range.UserDrag(value);
    }
    range.UserSlide(value);
}

std::string Monkey::Text() {
    return chance_.OneIn(40) ? std::string(3000, 'x') : chance_.Of(kTexts);
}

}  // namespace horavex
