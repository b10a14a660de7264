#include "geo/geo_room.h"

#include "geo/city_picker.h"
#include "geo/distance_window.h"
#include "geo/qibla_window.h"
#include "windows/frm_main.h"
#include "windows/horavex_main_form.h"

namespace horavex {

void BindGeoRoom() {
    BindCityPicker();
    frmMain->mnuQibla.onClick = ShowQibla;
    frmMain->mnuPopQibla.onClick = ShowQibla;
    HoravexMainForm->cmdQibla.onClick = ShowQibla;
    frmMain->mnuDistance.onClick = ShowDistance;
}

}  // namespace horavex
