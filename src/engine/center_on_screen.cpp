#include "engine/center_on_screen.h"

#include "platform/platform.h"

namespace horavex {

void CenterOnScreen(Form& form) {
    const ScreenSize screen = Ports().windows.Screen();
    form.SetLeft((screen.width - form.Width()) / 2.0);
    form.SetTop((screen.height - form.Height()) / 2.0);
}

}  // namespace horavex
