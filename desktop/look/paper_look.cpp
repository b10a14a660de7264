#include "desktop/look/paper_look.h"

#include <QGuiApplication>

#include "desktop/look/roles.h"

namespace horavex::look {

namespace {

bool isOnPaper = false;

}  // namespace

PaperLook::PaperLook(QWidget& window)
    : window_(window),
      own_(window.testAttribute(Qt::WA_SetPalette) ? window.palette() : QPalette()) {
    if (IsDark(window.palette())) {
        isOnPaper = true;
        window_.setPalette(PaletteOf(Theme::kLight));
    }
}

PaperLook::~PaperLook() {
    if (isOnPaper) {
        isOnPaper = false;
        window_.setPalette(own_);
    }
}

QPalette PaletteOfSigns() {
    return isOnPaper ? PaletteOf(Theme::kLight) : QGuiApplication::palette();
}

}  // namespace horavex::look
