#include "desktop/form_window/layouts.h"

#include "desktop/documents/drawing_steps.h"
#include "forms/inks.h"
#include "ui_HoravexMainForm.h"
#include "ui_Moon_Phases.h"
#include "ui_NewCoordinates.h"
#include "ui_fCountry.h"
#include "ui_fMessage.h"
#include "ui_fQibla.h"
#include "ui_frmAbout.h"
#include "ui_frmAdjust.h"
#include "ui_frmAthan.h"
#include "ui_frmCrescent.h"
#include "ui_frmDateConvert.h"
#include "ui_frmDistance.h"
#include "ui_frmMonth.h"
#include "ui_frmRamadan.h"
#include "ui_frmReminders.h"
#include "ui_frmSky.h"
#include "ui_frmTimes.h"
#include "ui_frmWizard.h"

namespace horavex {

namespace {

template <class Drawn>
void Fill(QWidget& window) {
    Drawn().setupUi(&window);
}

// The bar of the progress is near white on every desktop, and so lies in a trough of its own.
void FillMessage(QWidget& window) {
    Ui::fMessage drawn;
    drawn.setupUi(&window);
    QPalette trough = drawn.Shape1->palette();
    trough.setColor(QPalette::Window, OnPaper(ink::kAccent));
    drawn.Shape1->setPalette(trough);
    drawn.Shape1->setAutoFillBackground(true);
}

// The pages lie over each other, and each keeps its place while another one is on view, so that
// the window keeps its size.
void FillMoonPhases(QWidget& window) {
    Fill<Ui::Moon_Phases>(window);
    for (QWidget* widget : window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        QSizePolicy policy = widget->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        widget->setSizePolicy(policy);
    }
}

}  // namespace

Layouts DrawnLayouts() {
    return {
        {"NewCoordinates", Fill<Ui::NewCoordinates>},
        {"fCountry", Fill<Ui::fCountry>},
        {"fMessage", FillMessage},
        {"frmAthan", Fill<Ui::frmAthan>},
        {"fQibla", Fill<Ui::fQibla>},
        {"frmDateConvert", Fill<Ui::frmDateConvert>},
        {"frmDistance", Fill<Ui::frmDistance>},
        {"frmRamadan", Fill<Ui::frmRamadan>},
        {"frmWizard", Fill<Ui::frmWizard>},
        {"frmAbout", Fill<Ui::frmAbout>},
        {"frmAdjust", Fill<Ui::frmAdjust>},
        {"frmReminders", Fill<Ui::frmReminders>},
        {"frmSky", Fill<Ui::frmSky>},
        {"frmCrescent", Fill<Ui::frmCrescent>},
        {"frmTimes", Fill<Ui::frmTimes>},
        {"frmMonth", Fill<Ui::frmMonth>},
        {"HoravexMainForm", Fill<Ui::HoravexMainForm>},
        {"Moon_Phases", FillMoonPhases},
    };
}

}  // namespace horavex
