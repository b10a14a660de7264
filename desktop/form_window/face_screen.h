#pragma once

class QScreen;

namespace horavex {

/// The screen that the program's face is on; the primary one where there is no face.
const QScreen& FaceScreen();

}  // namespace horavex
