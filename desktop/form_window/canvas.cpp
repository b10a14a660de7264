#include "desktop/form_window/canvas.h"

#include <QPainter>

#include "desktop/documents/drawing_steps.h"
#include "desktop/form_window/twips.h"

namespace horavex {

void Canvas::Show(const QSizeF& twips, const std::string& picture, const Drawing& drawing) {
    twips_ = twips;
    drawing_ = drawing;
    if (!picture.empty()) {
        drawing_.insert(drawing_.begin(),
                        PictureStep{{0.0, 0.0}, twips.width(), twips.height(), picture});
    }
    updateGeometry();
    update();
}

QSize Canvas::sizeHint() const {
    return {PixelsOf(twips_.width()), PixelsOf(twips_.height())};
}

void Canvas::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    DrawSteps(painter, rect(), twips_, drawing_);
}

}  // namespace horavex
