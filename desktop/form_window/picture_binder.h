#pragma once

#include <QMouseEvent>
#include <algorithm>
#include <utility>

#include "desktop/form_window/binder_of.h"
#include "desktop/form_window/canvas.h"
#include "forms/picture.h"

namespace horavex {

/// A layout may have a picture with texts in it grow with them, by the number of lines that it is
/// high at least: the property "textLines".
class PictureBinder : public BinderOf<Picture, Canvas> {
public:
    PictureBinder(Control& bound, QWidget& boundWidget, RefreshLater refreshLater)
        : BinderOf(bound, boundWidget, std::move(refreshLater)) {
        widget.setMouseTracking(true);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::MouseMove && control.onMouseMove) {
            const QPointF at = static_cast<QMouseEvent*>(event)->position();
            Hand([this, at] {
                control.UserMouseMove({at.x() * control.ScaleWidth() / widget.width(),
                                       at.y() * control.ScaleHeight() / widget.height()});
            });
        }
        return BinderOf::eventFilter(watched, event);
    }

    void Show() override {
        if (const int lines = widget.property("textLines").toInt(); lines > 0) {
            widget.setFixedHeight(
                std::max(widget.minimumHeight(), lines * widget.fontMetrics().height()));
        }
        widget.Show({control.ScaleWidth(), control.ScaleHeight()}, control.PictureName(),
                    control.drawing);
    }
    void Clicked() override {
        Hand([this] { control.UserClick(); });
    }
};

}  // namespace horavex
