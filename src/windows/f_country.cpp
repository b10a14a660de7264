#include "windows/f_country.h"

namespace horavex {

CountryForm::CountryForm()
    : Form("fCountry", {.caption = "Chose a City", .width = 9600, .height = 9000}) {}

CountryForm::~CountryForm() = default;

}  // namespace horavex
