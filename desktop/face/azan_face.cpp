#include "desktop/face/azan_face.h"

namespace horavex {

void AzanFace::Fill(QWidget& window) {
    window.setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    window.setAttribute(Qt::WA_ShowWithoutActivating);
    window.setProperty("placedByProgram", true);
    FillWithView(window);
}

}  // namespace horavex
