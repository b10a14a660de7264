#pragma once

#include <QImage>
#include <vector>

#include "desktop/shots/shot.h"

namespace horavex {

/// All pictures beside and below each other in columns, each under its name and its window's
/// title, one dot a pixel.
QImage ContactSheet(const std::vector<Shot>& shots);

}  // namespace horavex
