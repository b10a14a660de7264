#include "windows/horavex_main_form.h"

namespace horavex {

SettingsForm::SettingsForm()
    : Form("HoravexMainForm", {.caption = "Horavex Settings", .width = 9600, .height = 7200}) {}

SettingsForm::~SettingsForm() = default;

}  // namespace horavex
