#pragma once

namespace horavex {

/// A direction by an angle along a circle of the sky and one above it, degrees.
struct SkyPoint {
    double along;
    double above;
};

/// Degrees between two directions, 0 to 180, well told for small and large ones alike.
double Separation(const SkyPoint& one, const SkyPoint& other);

}  // namespace horavex
