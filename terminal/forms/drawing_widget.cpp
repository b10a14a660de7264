#include "terminal/forms/drawing_widget.h"

#include <algorithm>
#include <cmath>

#include "terminal/forms/raster.h"

namespace horavex {

namespace {

constexpr double kTwipsPerColumn = 120.0;
constexpr double kTwipsPerRow = 240.0;

}  // namespace

const Drawing& DrawingWidget::Steps() const {
    return form_ != nullptr ? form_->drawing : picture_->drawing;
}

/// Height by width, in twips. A form's own drawing is a square.
double DrawingWidget::Shape() const {
    return form_ != nullptr ? 1.0 : picture_->ScaleHeight() / std::max(1.0, picture_->ScaleWidth());
}

bool DrawingWidget::IsShown() const {
    return form_ != nullptr || (picture_->Visible() && !picture_->drawing.empty());
}

int DrawingWidget::LeastWidth() const {
    return std::min(WantedWidth(), 12);
}

int DrawingWidget::WantedWidth() const {
    const double twips = form_ != nullptr ? 2400.0 : picture_->ScaleWidth();
    return std::clamp(static_cast<int>(twips / kTwipsPerColumn), 2, 72);
}

/// At the least a glimpse: there are texts beside it.
int DrawingWidget::HeightIn(int width) const {
    constexpr int kGlimpse = 4;
    return std::min(kGlimpse, MostHeightIn(width));
}

int DrawingWidget::MostHeightIn(int width) const {
    const double rows = std::min(width, WantedWidth()) * Shape() * kTwipsPerColumn / kTwipsPerRow;
    return std::clamp(static_cast<int>(std::lround(rows)), 1, 18);
}

void DrawingWidget::Draw(Cells& cells, const Area& area, bool) {
    const double across = kTwipsPerColumn / kTwipsPerRow * Shape();
    const int width = std::min(area.width, static_cast<int>(area.height / std::max(across, 0.01)));
    Raster raster(area.height, std::max(width, 1));
    if (form_ != nullptr) {
        form_->Paint();
        raster.DrawWhole(Steps());
    } else {
        raster.Draw(Steps(), picture_->ScaleWidth(), picture_->ScaleHeight());
    }
    raster.Put(cells, {area.row, area.column + (area.width - std::max(width, 1)) / 2},
               !Around().HasColours());
}

}  // namespace horavex
