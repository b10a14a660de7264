#pragma once

namespace horavex {

/// Binds the ways to the qibla and to the distances, and the city picker.
void BindGeoRoom();

}  // namespace horavex
