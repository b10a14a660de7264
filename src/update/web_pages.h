#pragma once

#include <string>

namespace horavex {

// Both addresses are settings, and a setting that is no address of the web (http or https) counts
// as absent: nothing else is ever fetched or opened in their place.

/// The root page of the vendor's web server, without a slash at its end. Whoever packages the
/// program sets it as the machine-wide setting "Web Server".
std::string WebServer();

/// The vendor's home page: the setting "Home Page", or else the root page of the web server.
std::string HomePage();

/// The public key of whoever signs the web server's file, as minisign prints it: the machine-wide
/// setting "Update Key". Empty where none is set: then nobody asks for a signature.
std::string UpdateKey();

/// A text of a pack with the root page of the web server in the place of its mark "{address}".
std::string WithWebAddress(std::string text);

/// Hands an address or a document to what the user has for it.
void OpenIt(const std::string& target);

/// Opens a page of the web, or tells how the machine is connected where it is not online.
void OpenPage(const std::string& address);

/// The menu's way to the vendor's root page.
void mnuPopVisitWebSite_Click();

/// The button to the vendor's home page.
void AboutUpdateButton_Click();

}  // namespace horavex
