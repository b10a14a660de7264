#pragma once

#include "shell/face_words.h"
#include "terminal/screen/cells.h"

namespace horavex {

/// The way of the sun over the day, from midnight to midnight, over the horizon, with the prayers
/// on it and the sun where it stands. Nothing without a sky.
void PutDayArc(Cells& cells, const Area& area, const FaceWords& day);

}  // namespace horavex
