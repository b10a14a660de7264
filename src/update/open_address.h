#pragma once

#include <string>

namespace horavex {

/// Hands an address or a document to what the user has for it.
void OpenIt(const std::string& target);

/// Opens a page of the web, or tells how the machine is connected where it is not online.
void OpenPage(const std::string& address);

/// The menu's way to the vendor's root page.
void mnuPopVisitWebSite_Click();

/// The button to the vendor's home page.
void AboutUpdateButton_Click();

}  // namespace horavex
