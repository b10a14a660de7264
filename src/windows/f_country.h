#pragma once

#include <cstdint>
#include <functional>

#include "base/int16.h"
#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/form_instance.h"
#include "forms/label.h"
#include "forms/list.h"
#include "forms/picture.h"
#include "forms/text_box.h"

namespace horavex {

/// The picker of a city: a list of countries beside the cities of the chosen one, and a search
/// over the cities of all of them.
class CountryForm : public Form {
public:
    CountryForm();
    ~CountryForm() override;

    Label lblSearch{*this, "lblSearch", {.caption = "&Search"}};
    TextBox txtSearch{*this, "txtSearch"};
    ListBox lstFound{*this, "lstFound", {.visible = false}};
    Label lblNothing{*this,
                     "lblNothing",
                     {.caption = "No city found: try the nearest larger one", .visible = false}};

    Label lblCountries{*this, "lblCountries", {.caption = "C&ountries"}};
    Label lblCities{*this, "lblCities", {.caption = "C&ities"}};
    ListBox lstcountry{*this, "lstcountry"};
    ListBox lstcity{*this, "lstcity"};

    /// Where the selected city lies.
    Picture picMap{*this, "picMap", {.width = 3840, .height = 1920}};

    CommandButton cmdOK{*this, "cmdOK", {.caption = "O&K"}};
    CommandButton cmdCancel{*this, "cmdCancel", {.caption = "&Cancel"}};

    /// Flag: the distance window asks, which sets it before the picker is shown.
    std::int16_t openedFromDistance = kFalse;

    /// Each takes the CityIndex of a picked city: for the distance window, and for the settings.
    std::function<void(std::int16_t cityIndex)> onPickForDistance;
    std::function<void(std::int16_t cityIndex)> onPick;

    /// The end of a pick for the settings, when all has been done that it does.
    Handler onPickDone;
};

inline const FormInstance<CountryForm> fCountry;

}  // namespace horavex
