#pragma once

#include "forms/range.h"
#include "terminal/forms/widget.h"

namespace horavex {

/// A scroll bar or a slider: a line with a thumb, moved by the arrow keys.
class BarWidget : public Widget {
public:
    BarWidget(MovableRange& range, const LayoutNode& node, WidgetSurroundings& around)
        : Widget(&range, node, around), range_(range) {}

    int LeastWidth() const override;
    int WantedWidth() const override;
    int HeightIn(int) const override { return 1; }
    bool Widens() const override { return range_.Kind() == ControlKind::kScrollBar; }
    void Draw(Cells& cells, const Area& area, bool hasFocus) override;
    bool TakesKeys() const override { return true; }
    bool UsesPageKeys() const override { return true; }
    bool Press(const KeyPress& key) override;

private:
    MovableRange& range_;
};

class ProgressWidget : public Widget {
public:
    ProgressWidget(ProgressBar& bar, const LayoutNode& node, WidgetSurroundings& around)
        : Widget(&bar, node, around), bar_(bar) {}

    int LeastWidth() const override { return 8; }
    int WantedWidth() const override { return 16; }
    int HeightIn(int) const override { return 1; }
    void Draw(Cells& cells, const Area& area, bool hasFocus) override;

private:
    ProgressBar& bar_;
};

}  // namespace horavex
