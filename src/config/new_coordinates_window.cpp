#include "config/new_coordinates_window.h"

#include "lang/form_language.h"
#include "platform/platform.h"
#include "windows/new_coordinates.h"

namespace horavex {

namespace {

void cmdOK_Click() {
    Ports().dialogs.ShowMessage("This operation is not yet available in this Beta release", "",
                                MessageIcon::kInformation);
}

/// The name of the place stays.
void cmdClear_Click() {
    NewCoordinatesForm& form = *NewCoordinates;
    for (TextBox* box : {&form.Text2, &form.Text3, &form.Text4, &form.Text5, &form.Text6,
                         &form.Text7, &form.Text8}) {
        box->SetText("");
    }
}

}  // namespace

void BindNewCoordinates() {
    NewCoordinates->onLoad = [] { TranslateOnLoad(*NewCoordinates); };
    NewCoordinates->cmdOK.onClick = cmdOK_Click;
    NewCoordinates->cmdClear.onClick = cmdClear_Click;
}

}  // namespace horavex
