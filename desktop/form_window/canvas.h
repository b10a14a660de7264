#pragma once

#include <QSizeF>
#include <QWidget>

#include "forms/drawing.h"

namespace horavex {

/// The widget of a picture control: its picture file and the drawing over it. Under the name
/// "qt_form" it is the place in a layout where a form's own drawing is shown, whole, in its own
/// shape. A layout may have a picture keep its shape, too, by the property "keepsShape", and one
/// without texts turn round with the direction of reading, by "runsWithReading". All of it is in
/// the colours of the window, its texts in the window's font as far as the picture has room.
class Canvas : public QWidget {
public:
    explicit Canvas(QWidget* parent = nullptr) : QWidget(parent) {}

    /// twips: the scale size of the control.
    void Show(const QSizeF& twips, const std::string& picture, const Drawing& drawing);

    void ShowWhole(const Drawing& drawing);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRectF Target() const;
    QFont FontIn(const QRectF& target) const;

    QSizeF twips_;  // empty for a drawing that is shown whole
    Drawing drawing_;
};

}  // namespace horavex
