#pragma once

#include <QIcon>

namespace horavex {

/// The program's emblem, a crescent over a dial of the night sky, drawn anew at every size that
/// notification areas and window managers ask for.
QIcon Emblem();

/// The same while athans are silenced: grey like a thing at rest, and struck out.
QIcon QuietEmblem();

}  // namespace horavex
