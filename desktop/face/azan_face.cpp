#include "desktop/face/azan_face.h"

#include "lang/language_pack.h"

namespace horavex {

void AzanFace::SetVariable(const std::string& name, const std::string& value) {
    PaintedFace::SetVariable(name, value);
    if (AzanView* view = LoadedView()) {
        view->NameStop(QString::fromStdString(GetLangString("notices", "Stop", "Stop")));
    }
}

void AzanFace::Fill(QWidget& window) {
    window.setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    window.setAttribute(Qt::WA_ShowWithoutActivating);
    window.setProperty("placedByProgram", true);
    FillWithView(window);
}

}  // namespace horavex
