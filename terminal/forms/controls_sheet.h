#pragma once

#include <memory>
#include <string>
#include <vector>

#include "terminal/forms/form_sheet.h"
#include "terminal/forms/make_widget.h"

namespace horavex {

/// A window of controls: a frame in the middle of the screen, with the controls as their layout has
/// them. What is higher than the screen is moved through with the focus.
class ControlsSheet : public FormSheet, private WidgetSurroundings {
public:
    ControlsSheet(Form& form, LayoutNode layout, Host& host);

    void Draw(Cells& screen) override;
    void Press(const KeyPress& key) override;

private:
    bool FromRight() const override { return fromRight_; }
    bool HasColours() const override { return Around().hasColours; }
    int Choose(const std::vector<std::string>& texts, int chosen,
               const std::vector<std::string>& reasons) override;
    void Steer(const std::string& control, const KeyPress& key) override;
    double Seconds() const override;

    // The focus.
    bool CanTakeKeys(const Widget& widget) const;
    Widget* Focused() const;
    Widget* WidgetOf(const Control* control) const;
    void MoveFocus(Widget& widget);
    void StepFocus(int step);
    bool StepBeside(const KeyPress& key);
    void TurnToPageOf(const Widget& widget);
    bool IsOnView(const Widget& widget) const;

    // The keys that the widget with the focus has no use for.
    void PressElsewhere(const KeyPress& key);
    bool PressAccessKey(char32_t letter);
    bool PressButton(const char* property, const char* value = "true");
    void PressEnter();
    void TurnPages(int step);
    bool Scroll(int rows);
    void TakeFocusAlong(int step);

    // Drawing.
    int ArrangeIn(int width, int height);
    void FollowFocus();
    void DrawInside(Cells& inside);
    std::string HintOf(const Widget& widget) const;
    void DrawFrame(Cells& screen, const Area& window);

    LayoutNode layout_;
    std::vector<std::unique_ptr<Widget>> widgets_;
    std::vector<Widget*> order_;  // of the keyboard
    ArrangedNodes nodes_;
    Arrangement arrangement_{nodes_};
    Widget* ownFocus_ = nullptr;  // one that no control's focus stands for
    bool fromRight_ = false;
    int first_ = 0;  // row of the inside at the top of the window
    // When it was last drawn.
    Widget* seen_ = nullptr;  // the focus
    Area seenAt_;
    int rows_ = 0;   // of the inside on view
    int whole_ = 0;  // of all the inside
};

}  // namespace horavex
