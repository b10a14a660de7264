#include "desktop/face/qt_face.h"

namespace horavex {

void QtFace::Fill(QWidget& window) {
    window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint |
                          Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    FillWithView(window, new FaceView(QTime::currentTime, language_));
}

}  // namespace horavex
