#pragma once

#include <string>

namespace horavex {

/// The stored name of the language pack; "English" where none is stored.
std::string ReadStoredLanguage();

/// Stores the name of the language pack in use.
void SaveStoredLanguage(const std::string& language);

}  // namespace horavex
