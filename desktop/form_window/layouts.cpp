#include "desktop/form_window/layouts.h"

#include "ui_HoravexMainForm.h"
#include "ui_fMessage.h"
#include "ui_frmAbout.h"

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
        {"frmAbout", Fill<Ui::frmAbout>},
        {"HoravexMainForm", Fill<Ui::HoravexMainForm>},
    };
}

}  // namespace horavex
