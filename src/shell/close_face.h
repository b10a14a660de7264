#pragma once

namespace horavex {

/// Takes the face from view while the program goes on in the notification area. On a desktop that
/// has no such area the face is minimised instead, and the user is told so the first time: a
/// hidden window could not be brought back there.
void CloseFace();

/// The last notification area is gone: a face that was hidden behind its icon comes back,
/// minimised.
void BringHiddenFaceIntoWindowList();

}  // namespace horavex
