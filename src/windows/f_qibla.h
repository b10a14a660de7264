#pragma once

#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/form_instance.h"
#include "forms/label.h"
#include "forms/picture.h"

namespace horavex {

/// The direction of Mecca: a compass that the form itself paints, a map of the world with the way
/// there, and below both the sentence, the place and the distance.
class QiblaForm : public Form {
public:
    QiblaForm();
    ~QiblaForm() override;

    Label lblNorth{*this, "lblNorth", {.caption = "North"}};
    Label lblEast{*this, "lblEast", {.caption = "East"}};
    Label lblSouth{*this, "lblSouth", {.caption = "South"}};
    Label lblWest{*this, "lblWest", {.caption = "West"}};
    Label lblQibla{*this, "lblQibla"};
    Label lblShownPlace{*this, "lblShownPlace"};
    Label lblDistance{*this, "lblDistance", {.caption = "Distance to Mecca: {km} km"}};

    /// Tells what the sun on the compass is; hidden while the sun is down.
    Label lblSun{*this, "lblSun", {.caption = "The sun stands here now"}};
    Picture picMap{*this, "picMap", {.width = 6000, .height = 3000}};
    CommandButton cmdClose{*this, "cmdClose", {.caption = "&Close"}};
};

inline const FormInstance<QiblaForm> fQibla;

}  // namespace horavex
