#include "desktop/form_window/canvas.h"

#include <QFontInfo>
#include <QPainter>
#include <algorithm>

#include "desktop/documents/drawing_steps.h"
#include "desktop/form_window/twips.h"
#include "desktop/look/window_inks.h"

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

void Canvas::ShowWhole(const Drawing& drawing) {
    drawing_ = drawing;
    update();
}

QRectF Canvas::Target() const {
    if (!property("keepsShape").toBool()) {
        return rect();
    }
    QRectF target({}, twips_.scaled(size(), Qt::KeepAspectRatio));
    target.moveCenter(QRectF(rect()).center());
    return target;
}

QSize Canvas::sizeHint() const {
    return {PixelsOf(twips_.width()), PixelsOf(twips_.height())};
}

// Texts are placed for lines of that height; larger ones would lie over each other where the
// picture has not grown with them.
QFont Canvas::FontIn(const QRectF& target) const {
    constexpr double kLine = 20.0;  // pixels, at the picture's own size
    const double scale = kTwipsPerPixel * std::min(target.width() / twips_.width(),
                                                   target.height() / twips_.height());
    const double share = kLine * scale / fontMetrics().height();
    QFont fitting = font();
    if (share < 1.0) {
        fitting.setPixelSize(std::max(1, int(QFontInfo(fitting).pixelSize() * share)));
    }
    return fitting;
}

void Canvas::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Inks inks = look::WindowInks(palette());
    if (property("runsWithReading").toBool() && isRightToLeft()) {
        painter.translate(width(), 0.0);
        painter.scale(-1.0, 1.0);
    }
    if (twips_.isEmpty()) {
        constexpr int kRoomForPens = 3;
        const QMargins room(kRoomForPens, kRoomForPens, kRoomForPens, kRoomForPens);
        DrawWhole(painter, rect().marginsRemoved(room), drawing_, inks);
    } else {
        painter.setFont(FontIn(Target()));
        DrawSteps(painter, Target(), twips_, drawing_, inks);
    }
}

}  // namespace horavex
