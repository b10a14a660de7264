#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/control.h"
#include "terminal/forms/arrangement.h"
#include "terminal/screen/key_press.h"

namespace horavex {

/// What the widgets of a form need of the window that they lie in.
class WidgetSurroundings {
public:
    virtual ~WidgetSurroundings() = default;

    /// Whether the captions of the form run from right to left.
    virtual bool FromRight() const = 0;

    /// Lets the user choose one of some texts, -1 where none is chosen; runs until that is done.
    /// Those with a reason cannot be.
    virtual int Choose(const std::vector<std::string>& texts, int chosen,
                       const std::vector<std::string>& reasons) = 0;

    /// Sends a key to the widget of a control.
    virtual void Steer(const std::string& control, const KeyPress& key) = 0;

    /// Whether the terminal shows drawings in their colours.
    virtual bool HasColours() const = 0;

    /// Seconds of a clock that only goes forward.
    virtual double Seconds() const = 0;
};

/// One part of a form on the screen. It keeps nothing of its control's values: it shows them as
/// they are, and hands a user's doing to the control, which may be the end of the form.
class Widget : public Arranged {
public:
    Widget(Control* control, const LayoutNode& node, WidgetSurroundings& around)
        : control_(control), node_(node), around_(around) {}

    bool IsShown() const override { return control_ == nullptr || control_->Visible(); }

    /// Draws into a part of the form's inside.
    virtual void Draw(Cells& cells, const Area& area, bool hasFocus) = 0;

    /// Takes a key while it has the focus. False for one that it has no use for.
    virtual bool Press(const KeyPress&) { return false; }

    /// Whether the page keys are its own, which may change its value.
    virtual bool UsesPageKeys() const { return false; }

    /// Does what its access key asks for.
    virtual void Reach() {}

    /// Whether the keys can go to it, now or at another time.
    virtual bool TakesKeys() const { return false; }

    /// The text that names the widget's access key with "&"; empty for none.
    virtual std::string KeyText() const { return {}; }

    /// What is told about it while it has the focus.
    virtual std::string Hint() const;

    Control* Bound() const { return control_; }
    const LayoutNode& Node() const { return node_; }

protected:
    bool FromRight() const { return around_.FromRight(); }
    WidgetSurroundings& Around() const { return around_; }

    /// Faint where users cannot use it.
    Tone ToneOf(bool hasFocus, Tone usual = Tone::kPlain) const;

private:
    Control* control_;
    const LayoutNode& node_;
    WidgetSurroundings& around_;
};

/// A caption without the sign before its access key.
std::string WithoutKey(const std::string& caption);

/// The access key of a caption, as a capital letter where the script has them; 0 for none.
char32_t AccessKey(const std::string& caption);

/// Writes a caption with its access key set off, on the side where its text begins.
void PutCaption(Cells& cells, const Area& area, const std::string& caption, const Look& look,
                bool fromRight);

}  // namespace horavex
