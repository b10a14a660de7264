#include "lang/pack_forms.h"

#include "windows/f_message.h"
#include "windows/frm_main.h"
#include "windows/frm_month.h"
#include "windows/frm_times.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

template <class... Forms>
std::vector<std::unique_ptr<Form>> Make() {
    std::vector<std::unique_ptr<Form>> forms;
    (forms.push_back(std::make_unique<Forms>()), ...);
    return forms;
}

}  // namespace

std::vector<std::unique_ptr<Form>> PackForms() {
    return Make<FrmMain, SettingsForm, MessageForm, TimesForm, MonthForm>();
}

}  // namespace horavex
