#include "windows/frm_reminders.h"

namespace horavex {

RemindersForm::RemindersForm()
    : Form("frmReminders", {.caption = "Athan and Reminders", .width = 15000, .height = 6300}) {}

RemindersForm::~RemindersForm() = default;

}  // namespace horavex
