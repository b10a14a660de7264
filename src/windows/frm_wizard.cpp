#include "windows/frm_wizard.h"

namespace horavex {

WizardForm::WizardForm()
    : Form(
          "frmWizard",
          {.caption = "Horavex Prayer Times Configuration Wizard", .width = 9300, .height = 7350}) {
}

WizardForm::~WizardForm() = default;

}  // namespace horavex
