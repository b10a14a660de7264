#include "desktop/face/face_menu_colours.h"

#include "desktop/face/palette.h"

namespace horavex {

QPalette FaceMenuColours() {
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

}  // namespace horavex
