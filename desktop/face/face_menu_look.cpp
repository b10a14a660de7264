#include "desktop/face/face_menu_look.h"

#include "desktop/face/palette.h"
#include "desktop/look/look.h"

namespace horavex {

namespace {

QPalette OfTheSky() {
    QPalette colours(kSkyTop);
    colours.setColor(QPalette::Base, kSkyTop);
    colours.setColor(QPalette::Highlight, kMenuChosen);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText}) {
        colours.setColor(role, kCream);
        colours.setColor(QPalette::Disabled, role, kMenuOff);
    }
    return colours;
}

}  // namespace

// The sky itself is black where the desktop wants contrast, in a light one, too.
MenuLook FaceMenuLook() {
    if (look::WantsContrast()) {
        return {look::PaletteOf(look::Theme::kContrast), {}, true};
    }
    return {OfTheSky(), kMenuLine, true};
}

}  // namespace horavex
