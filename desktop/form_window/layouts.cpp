#include "desktop/form_window/layouts.h"

#include "ui_HoravexMainForm.h"
#include "ui_fMessage.h"
#include "ui_frmMonth.h"
#include "ui_frmTimes.h"

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
        {"frmTimes", Fill<Ui::frmTimes>},
        {"frmMonth", Fill<Ui::frmMonth>},
        {"HoravexMainForm", Fill<Ui::HoravexMainForm>},
    };
}

}  // namespace horavex
