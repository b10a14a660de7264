#pragma once

#include <string>

namespace horavex {

/// The application's title.
inline constexpr const char* kProgramTitle = "Horavex";

/// The title of messages and of the qibla window, its blank at the end included.
inline constexpr const char* kSoftwareTitle = "Horavex Prayer Time Software ";

/// The version for people, of four fields: major, minor, a zero that never changes, and revision.
std::string FullVersionText();

/// The version that the web server's file is compared with: major, minor and revision, as the
/// release is called.
std::string RunningVersionText();

}  // namespace horavex
