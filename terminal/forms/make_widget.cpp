#include "terminal/forms/make_widget.h"

#include <algorithm>
#include <sstream>

#include "terminal/forms/caption_widgets.h"
#include "terminal/forms/drawing_widget.h"
#include "terminal/forms/list_widgets.h"
#include "terminal/forms/range_widgets.h"
#include "terminal/forms/text_widgets.h"

namespace horavex {

namespace {

constexpr const char* kDrawingOfForm = "qt_form";

using Made = std::unique_ptr<Widget>;

template <class WidgetType, class ControlType>
Made Make(Control& control, const LayoutNode& node, WidgetSurroundings& around) {
    return std::make_unique<WidgetType>(static_cast<ControlType&>(control), node, around);
}

Made MakeFrame(Control& control, const LayoutNode& node, WidgetSurroundings& around) {
    return std::make_unique<FrameWidget>(&control, node, around);
}

/// A text box of one line or of several, as the layout has it.
Made MakeTextBox(Control& control, const LayoutNode& node, WidgetSurroundings& around) {
    return node.shape == "QTextEdit" ? Make<LinesWidget, TextBox>(control, node, around)
                                     : Make<TextWidget, TextBox>(control, node, around);
}

/// nullptr for a kind that has no place on a form.
Made MakeFor(Control& control, const LayoutNode& node, WidgetSurroundings& around) {
    switch (control.Kind()) {
        case ControlKind::kFrame:
        case ControlKind::kShape:
            return MakeFrame(control, node, around);
        case ControlKind::kLabel:
        case ControlKind::kSkinLabel:
            return Make<LabelWidget, Label>(control, node, around);
        case ControlKind::kCommandButton:
            return Make<ButtonWidget, CommandButton>(control, node, around);
        case ControlKind::kCheckBox:
            return Make<CheckWidget, CheckBox>(control, node, around);
        case ControlKind::kOptionButton:
            return Make<OptionWidget, OptionButton>(control, node, around);
        case ControlKind::kTextBox:
            return MakeTextBox(control, node, around);
        case ControlKind::kListBox:
            return Make<ListWidget, ListBox>(control, node, around);
        case ControlKind::kComboBox:
            return Make<ComboWidget, ComboBox>(control, node, around);
        case ControlKind::kScrollBar:
        case ControlKind::kSlider:
            return Make<BarWidget, MovableRange>(control, node, around);
        case ControlKind::kProgressBar:
            return Make<ProgressWidget, ProgressBar>(control, node, around);
        case ControlKind::kPicture:
            return Make<DrawingWidget, Picture>(control, node, around);
        case ControlKind::kTabStrip:
            return Make<TabStripWidget, TabStrip>(control, node, around);
        case ControlKind::kGrid:
            return Make<GridWidget, Grid>(control, node, around);
        case ControlKind::kForm:
        case ControlKind::kMenuItem:
        case ControlKind::kTimer:
            break;
    }
    return nullptr;
}

class WidgetMaker {
public:
    WidgetMaker(Form& form, WidgetSurroundings& around) : form_(form), around_(around) {}

    void Visit(const LayoutNode& node) {
        if (Made widget = WidgetOf(node); widget != nullptr) {
            made.push_back(std::move(widget));
        }
        for (const LayoutNode& child : node.children) {
            Visit(child);
        }
    }

    std::vector<Made> made;

private:
    Made WidgetOf(const LayoutNode& node) {
        if (node.name.empty()) {
            return nullptr;
        }
        if (node.kind == LayoutNode::Kind::kPages) {
            return std::make_unique<PagesWidget>(
                [&form = form_, &node](std::size_t page) {
                    return CaptionsOf(form, node.children.at(page).Property("titledBy"));
                },
                node, around_);
        }
        if (node.name == kDrawingOfForm) {
            return std::make_unique<DrawingWidget>(form_, node, around_);
        }
        if (Control* page = FindControl(form_, node.Property("stepOf")); page != nullptr) {
            return std::make_unique<StepWidget>(*page, ++steps_, node, around_);
        }
        Control* const control = FindControl(form_, node.name);
        return control == nullptr ? nullptr : MakeFor(*control, node, around_);
    }

    Form& form_;
    WidgetSurroundings& around_;
    int steps_ = 0;
};

}  // namespace

Control* FindControl(const Form& form, const std::string& layoutName) {
    const auto& controls = form.Controls();
    const auto found = std::find_if(controls.begin(), controls.end(), [&](Control* control) {
        return layoutName == (control->Has(Property::kIndex)
                                  ? control->Name() + "_" + std::to_string(control->Index())
                                  : control->Name());
    });
    return found == controls.end() ? nullptr : *found;
}

std::string CaptionsOf(const Form& form, const std::string& layoutNames) {
    std::string captions;
    std::istringstream names(layoutNames);
    for (std::string name; names >> name;) {
        const Control* control = FindControl(form, name);
        if (control != nullptr && control->Has(Property::kCaption)) {
            captions += (captions.empty() ? "" : ", ") + WithoutKey(control->Caption());
        }
    }
    return captions;
}

std::vector<std::unique_ptr<Widget>> MakeWidgets(Form& form, const LayoutNode& layout,
                                                 WidgetSurroundings& around) {
    WidgetMaker maker(form, around);
    maker.Visit(layout);
    return std::move(maker.made);
}

}  // namespace horavex
