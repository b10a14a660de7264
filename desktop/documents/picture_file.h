#pragma once

#include <QPixmap>
#include <string>

namespace horavex {

/// The picture of that path in the program folder; an empty one for what is missing, unreadable or
/// no picture. A pipe or a device is not waited for.
QPixmap PictureAt(const std::string& path);

}  // namespace horavex
