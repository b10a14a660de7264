#pragma once

namespace horavex {

/// Sees that the windows' font has all letters of the current pack. Where it, with what the toolkit
/// puts in for it, has a part of them alone, words would be put together of several fonts and their
/// letters would not join: DejaVu Sans and Urdu are such a pair. A family that has them all then
/// stands behind the desktop's own as long as the pack is in use, or in front of it where the own
/// has some of them itself; without such a family all stays as it is.
void UseFontOfPack();

}  // namespace horavex
