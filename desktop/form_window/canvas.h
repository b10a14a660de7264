#pragma once

#include <QSizeF>
#include <QWidget>

#include "forms/drawing.h"

namespace horavex {

/// The widget of a picture control: its picture file and the drawing over it.
class Canvas : public QWidget {
public:
    explicit Canvas(QWidget* parent = nullptr) : QWidget(parent) {}

    /// twips: the scale size of the control.
    void Show(const QSizeF& twips, const std::string& picture, const Drawing& drawing);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSizeF twips_;
    Drawing drawing_;
};

}  // namespace horavex
