#include "desktop/form_window/face_screen.h"

#include <QApplication>

#include "desktop/form_window/form_window.h"
#include "windows/frm_main.h"

namespace horavex {

const QScreen& FaceScreen() {
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        const auto* window = dynamic_cast<const FormWindow*>(widget);
        if (window != nullptr && &window->Shown() == &*frmMain) {
            return *window->screen();
        }
    }
    return *QGuiApplication::primaryScreen();
}

}  // namespace horavex
