#pragma once

namespace horavex {

/// The nearest int, a tie to the even one, for any value that a file or a text can bring: beyond
/// the range the range's end, and 0 for what is no number.
int NearestInt(double value);

}  // namespace horavex
