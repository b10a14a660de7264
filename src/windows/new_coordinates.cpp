#include "windows/new_coordinates.h"

namespace horavex {

NewCoordinatesForm::NewCoordinatesForm()
    : Form("NewCoordinates", {.caption = "New Coordinates", .width = 6000, .height = 5400}) {}

NewCoordinatesForm::~NewCoordinatesForm() = default;

}  // namespace horavex
