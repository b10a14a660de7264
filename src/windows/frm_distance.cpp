#include "windows/frm_distance.h"

namespace horavex {

DistanceForm::DistanceForm()
    : Form("frmDistance", {.caption = "Distance between 2 cities", .width = 9600, .height = 7200}) {
}

DistanceForm::~DistanceForm() = default;

}  // namespace horavex
