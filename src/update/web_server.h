#pragma once

#include <string>

namespace horavex {

/// The root page of the vendor's web server, without a slash at its end. Whoever packages the
/// program sets it as the machine-wide setting "Web Server".
std::string WebServer();

/// The vendor's home page: the setting "Home Page", or else the root page of the web server.
std::string HomePage();

}  // namespace horavex
