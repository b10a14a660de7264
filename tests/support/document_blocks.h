#pragma once

#include <string>
#include <vector>

namespace horavex {

/// The lines of the first fenced block of a document of the sources that says this language and
/// has this part somewhere. A failure of the test, and nothing, where there is none.
std::vector<std::string> BlockOf(const std::string& document, const std::string& language,
                                 const std::string& part);

/// The lines as they stood in the document.
std::string TextOf(const std::vector<std::string>& lines);

}  // namespace horavex
