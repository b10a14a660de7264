#pragma once

#include "forms/form.h"
#include "forms/form_instance.h"
#include "forms/label.h"
#include "forms/picture.h"

namespace horavex {

/// The direction of Mecca: a compass that the form itself paints, the sentence below it, and a map
/// of the world with the way there.
class QiblaForm : public Form {
public:
    QiblaForm() : Form("fQibla", {.caption = "Qibla", .width = 13800, .height = 6600}) {}

    Label lblNorth{*this, "lblNorth", {.caption = "North"}};
    Label lblEast{*this, "lblEast", {.caption = "East"}};
    Label lblSouth{*this, "lblSouth", {.caption = "South"}};
    Label lblWest{*this, "lblWest", {.caption = "West"}};
    Label lblQibla{*this, "lblQibla"};

    /// Tells what the sun on the compass is; hidden while the sun is down.
    Label lblSun{*this, "lblSun", {.caption = "The sun stands here now"}};
    Picture picMap{*this, "picMap", {.width = 3900, .height = 1950}};
};

inline const FormInstance<QiblaForm> fQibla;

}  // namespace horavex
