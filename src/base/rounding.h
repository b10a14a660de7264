#pragma once

namespace horavex {

/// The nearest integer; a tie goes to the even one. Any finite value, the result as a float.
double RoundHalfEven(double value);

/// value x 10^places rounded half to even, divided by 10^places, in plain 64-bit products:
/// 2.675 to two places is 2.68, since its product 267.5 ties to 268. places: 0 to 22.
double RoundToPlaces(double value, int places);

}  // namespace horavex
