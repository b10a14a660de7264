#pragma once

#include <CLI/CLI.hpp>

namespace horavex {

/// A check of an option's value: a number, fractions allowed, from one to another. Refuses "nan"
/// too, which lies outside no pair of limits.
CLI::Validator NumberFrom(double smallest, double largest);

}  // namespace horavex
