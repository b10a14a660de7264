#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/combo_box.h"
#include "forms/text_box.h"
#include "terminal/forms/beginning_search.h"
#include "terminal/forms/widget.h"

namespace horavex {

/// A line of text with a cursor. The text itself is somebody else's.
class EditedLine {
public:
    /// The text after a key, or nothing where the key changes no text. kept: whether the key was
    /// one for the line at all.
    std::optional<std::string> After(const KeyPress& key, const std::string& text, bool& kept);

    /// Draws the line and, with the focus, the cursor. text: as it is shown, a character for each
    /// of the text itself.
    void Draw(Cells& cells, const Area& area, const std::string& text, const Look& look,
              bool hasFocus);

    void MoveToEnd() { cursor_ = kEnd; }

private:
    static constexpr std::size_t kEnd = static_cast<std::size_t>(-1);

    std::size_t cursor_ = kEnd;  // glyphs before it
};

/// A text box of one line.
class TextWidget : public Widget {
public:
    TextWidget(TextBox& box, const LayoutNode& node, WidgetSurroundings& around);

    int LeastWidth() const override;
    int WantedWidth() const override;
    int HeightIn(int) const override { return 1; }
    bool Widens() const override;
    void Draw(Cells& cells, const Area& area, bool hasFocus) override;
    bool TakesKeys() const override { return true; }
    bool Press(const KeyPress& key) override;

private:
    int MostWidth() const;

    TextBox& box_;
    EditedLine line_;
};

/// A text box of several lines, which is read and moved through. Lines that its layout does not
/// wrap stand beside those of its neighbours: all of them are on view, and what has no room is
/// moved through sideways.
class LinesWidget : public Widget {
public:
    LinesWidget(TextBox& box, const LayoutNode& node, WidgetSurroundings& around)
        : Widget(&box, node, around), box_(box) {}

    int LeastWidth() const override;
    int WantedWidth() const override;
    int HeightIn(int width) const override;
    int MostHeightIn(int width) const override;
    bool Widens() const override { return true; }
    bool Grows() const override;
    void Draw(Cells& cells, const Area& area, bool hasFocus) override;
    bool TakesKeys() const override { return true; }
    bool UsesPageKeys() const override { return true; }
    bool Press(const KeyPress& key) override;

private:
    bool Wraps() const;
    std::vector<std::string> LinesIn(int width) const;
    void DrawLine(Cells& cells, const Area& place, const std::string& line) const;
    bool Scroll(int lines);
    bool ScrollSideways(int columns);

    TextBox& box_;
    int first_ = 0;  // line at the top
    int left_ = 0;   // columns before the first on view
    // When it was last drawn.
    int height_ = 1;
    int width_ = 1;
    int count_ = 0;  // lines
};

/// A list under a text, which can be typed where the box says so.
class ComboWidget : public Widget {
public:
    ComboWidget(ComboBox& box, const LayoutNode& node, WidgetSurroundings& around)
        : Widget(&box, node, around), box_(box) {}

    int LeastWidth() const override;
    int WantedWidth() const override;
    int HeightIn(int) const override { return 1; }
    void Draw(Cells& cells, const Area& area, bool hasFocus) override;
    bool TakesKeys() const override { return true; }
    bool Press(const KeyPress& key) override;

private:
    bool PressClosed(const KeyPress& key);
    void Open();
    bool CanChoose(int item) const;
    void Step(int from, int step);

    ComboBox& box_;
    EditedLine line_;
    BeginningSearch search_;
};

}  // namespace horavex
