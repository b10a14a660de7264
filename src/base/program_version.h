#pragma once

#include <string>

namespace horavex {

/// The application's title.
inline constexpr const char* kProgramTitle = "Horavex";

/// The version for people, of four fields: major, minor, a zero that never changes, and revision.
std::string FullVersionText();

/// The version that the web server's file is compared with: major, minor and revision.
std::string RunningVersionText();

}  // namespace horavex
