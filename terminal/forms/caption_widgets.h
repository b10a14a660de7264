#pragma once

#include "forms/check_box.h"
#include "forms/command_button.h"
#include "forms/label.h"
#include "forms/option_button.h"
#include "terminal/forms/widget.h"

namespace horavex {

/// A label; one that can be clicked takes keys.
class LabelWidget : public Widget {
public:
    LabelWidget(Label& label, const LayoutNode& node, WidgetSurroundings& around)
        : Widget(&label, node, around), label_(label) {}

    bool IsShown() const override;
    int LeastWidth() const override;
    int WantedWidth() const override;
    int HeightIn(int width) const override;
    bool TellsOfPrevious() const override { return Node().Property("buddy").empty(); }
    void Draw(Cells& cells, const Area& area, bool hasFocus) override;
    bool TakesKeys() const override { return static_cast<bool>(label_.onClick); }
    bool Press(const KeyPress& key) override;
    std::string KeyText() const override;

private:
    Label& label_;
};

/// A frame around others.
class FrameWidget : public Widget {
public:
    using Widget::Widget;

    int LeastWidth() const override;
    int WantedWidth() const override;
    int HeightIn(int) const override { return 2; }
    void Draw(Cells& cells, const Area& area, bool hasFocus) override;

private:
    std::string Caption() const;
};

/// One of the steps of a window that goes from page to page: its number and the caption of its
/// page, set off while that is on view.
class StepWidget : public Widget {
public:
    StepWidget(Control& page, int number, const LayoutNode& node, WidgetSurroundings& around)
        : Widget(nullptr, node, around), page_(page), number_(number) {}

    int LeastWidth() const override { return WantedWidth(); }
    int WantedWidth() const override;
    int HeightIn(int) const override { return 1; }
    void Draw(Cells& cells, const Area& area, bool hasFocus) override;

private:
    std::string Text() const;

    Control& page_;
    int number_;
};

/// What buttons, check boxes and options have in common: a caption with signs around it, and the
/// blank, which presses them.
class PressedWidget : public Widget {
public:
    using Widget::Widget;

    int LeastWidth() const override;
    int WantedWidth() const override;
    int HeightIn(int width) const override;
    void Draw(Cells& cells, const Area& area, bool hasFocus) override;
    bool TakesKeys() const override { return true; }
    bool Press(const KeyPress& key) override;
    void Reach() override { Click(); }
    std::string KeyText() const override { return Bound()->Caption(); }

    virtual void Click() = 0;

protected:
    /// Before and behind the caption.
    virtual std::string Before() const = 0;
    virtual std::string Behind() const { return {}; }
};

class ButtonWidget : public PressedWidget {
public:
    ButtonWidget(CommandButton& button, const LayoutNode& node, WidgetSurroundings& around)
        : PressedWidget(&button, node, around), button_(button) {}

    void Click() override { button_.UserClick(); }

protected:
    std::string Before() const override { return "[ "; }
    std::string Behind() const override { return " ]"; }

private:
    CommandButton& button_;
};

class CheckWidget : public PressedWidget {
public:
    CheckWidget(CheckBox& box, const LayoutNode& node, WidgetSurroundings& around)
        : PressedWidget(&box, node, around), box_(box) {}

    void Click() override { box_.UserClick(); }

protected:
    std::string Before() const override { return box_.Value() != 0 ? "[x] " : "[ ] "; }

private:
    CheckBox& box_;
};

class OptionWidget : public PressedWidget {
public:
    OptionWidget(OptionButton& option, const LayoutNode& node, WidgetSurroundings& around)
        : PressedWidget(&option, node, around), option_(option) {}

    void Click() override { option_.UserClick(); }

protected:
    std::string Before() const override { return option_.Value() ? "(•) " : "( ) "; }

private:
    OptionButton& option_;
};

}  // namespace horavex
