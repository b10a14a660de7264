#include "desktop/form_window/layouts.h"

#include "ui_HoravexMainForm.h"
#include "ui_NewCoordinates.h"
#include "ui_fCountry.h"
#include "ui_fMessage.h"
#include "ui_frmWizard.h"

namespace horavex {

namespace {

template <class Drawn>
void Fill(QWidget& window) {
    Drawn().setupUi(&window);
}

}  // namespace

Layouts DrawnLayouts() {
    return {
        {"NewCoordinates", Fill<Ui::NewCoordinates>},
        {"fCountry", Fill<Ui::fCountry>},
        {"fMessage", Fill<Ui::fMessage>},
        {"frmWizard", Fill<Ui::frmWizard>},
        {"HoravexMainForm", Fill<Ui::HoravexMainForm>},
    };
}

}  // namespace horavex
