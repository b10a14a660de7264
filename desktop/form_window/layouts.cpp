#include "desktop/form_window/layouts.h"

#include <QStyle>

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

void FillAthan(QWidget& window) {
    Ui::frmAthan drawn;
    drawn.setupUi(&window);
    const auto sign = [&window](QStyle::StandardPixmap picture, auto... buttons) {
        (buttons->setIcon(window.style()->standardIcon(picture)), ...);
    };
    sign(QStyle::SP_MediaPlay, drawn.Picture__1, drawn.Picture__4);
    sign(QStyle::SP_MediaPause, drawn.Picture__2, drawn.Picture__5);
    sign(QStyle::SP_MediaStop, drawn.Picture__3, drawn.Picture__6);
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
        {"fMessage", Fill<Ui::fMessage>},
        {"frmAthan", FillAthan},
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
