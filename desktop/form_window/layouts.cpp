#include "desktop/form_window/layouts.h"

#include "ui_HoravexMainForm.h"
#include "ui_Moon_Phases.h"
#include "ui_fMessage.h"
#include "ui_fQibla.h"
#include "ui_frmDateConvert.h"
#include "ui_frmDistance.h"
#include "ui_frmRamadan.h"

namespace horavex {

namespace {

template <class Drawn>
void Fill(QWidget& window) {
    Drawn().setupUi(&window);
}

}  // namespace

Layouts DrawnLayouts() {
    return {
        {"fMessage", Fill<Ui::fMessage>},
        {"fQibla", Fill<Ui::fQibla>},
        {"frmDateConvert", Fill<Ui::frmDateConvert>},
        {"frmDistance", Fill<Ui::frmDistance>},
        {"frmRamadan", Fill<Ui::frmRamadan>},
        {"HoravexMainForm", Fill<Ui::HoravexMainForm>},
        {"Moon_Phases", Fill<Ui::Moon_Phases>},
    };
}

}  // namespace horavex
