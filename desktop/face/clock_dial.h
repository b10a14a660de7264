#pragma once

#include <QPixmap>
#include <QTime>

#include "desktop/face/face_button.h"

namespace horavex {

/// A clock with hands. It stands until it is given another time.
class ClockDial : public FaceButton {
public:
    using FaceButton::FaceButton;

    void ShowTime(QTime time);

protected:
    void PaintFace(QPainter& painter) override;

private:
    const QPixmap& Dial();

    QTime time_{0, 0};
    QPixmap dial_;  // without its hands
};

}  // namespace horavex
