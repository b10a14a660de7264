#pragma once

namespace horavex {

/// The nearest integer; a tie goes to the even one. Any finite value, the result as a float.
double RoundHalfEven(double value);

/// value x 10^places rounded half to even, divided by 10^places, in plain 64-bit products:
/// 2.675 to two places is 2.68, since its product 267.5 ties to 268. places: 0 to 22.
double RoundToPlaces(double value, int places);

/// The nearest int, a tie to the even one, for any value that a file or a text can bring: beyond
/// the range the range's end, and 0 for what is no number.
int NearestInt(double value);

}  // namespace horavex
