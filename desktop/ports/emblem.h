#pragma once

#include <QIcon>

namespace horavex {

/// The program's emblem, a crescent over a dial of the night sky, in the sizes that trays and
/// window managers ask for.
QIcon Emblem();

}  // namespace horavex
