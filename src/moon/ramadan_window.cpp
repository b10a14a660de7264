#include "moon/ramadan_window.h"

#include "lang/form_language.h"
#include "lang/language_pack.h"
#include "windows/frm_ramadan.h"
#include "windows/moon_phases.h"

namespace horavex {

namespace {

void frmRamadan_Load() {
    TranslateOnLoad(*frmRamadan);
    frmRamadan->Text1.SetText(GetLangString("frmRamadan", "Text1", ""));
}

}  // namespace

void ShowRamadanHelp() {
    frmRamadan->onLoad = frmRamadan_Load;
    frmRamadan->cmdClose.onClick = [] { frmRamadan->Unload(); };
    frmRamadan->ShowModal(&*Moon_Phases);
}

}  // namespace horavex
