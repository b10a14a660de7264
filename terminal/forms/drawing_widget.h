#pragma once

#include "forms/form.h"
#include "forms/picture.h"
#include "terminal/forms/widget.h"

namespace horavex {

/// What a form or a picture draws, in coarse squares. A mere picture file is not shown.
class DrawingWidget : public Widget {
public:
    /// Of a picture.
    DrawingWidget(Picture& picture, const LayoutNode& node, WidgetSurroundings& around)
        : Widget(&picture, node, around), picture_(&picture) {}

    /// Of the form itself.
    DrawingWidget(Form& form, const LayoutNode& node, WidgetSurroundings& around)
        : Widget(nullptr, node, around), form_(&form) {}

    bool IsShown() const override;
    int LeastWidth() const override;
    int WantedWidth() const override;
    int HeightIn(int width) const override;
    int MostHeightIn(int width) const override;
    bool Grows() const override { return true; }
    void Draw(Cells& cells, const Area& area, bool hasFocus) override;

private:
    const Drawing& Steps() const;
    double Shape() const;

    Picture* picture_ = nullptr;
    Form* form_ = nullptr;
};

}  // namespace horavex
