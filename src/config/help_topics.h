#pragma once

#include <string>
#include <vector>

#include "base/check_report.h"

namespace horavex {

/// Name of the help file, in the program's folder.
inline constexpr const char* kHelpFileName = "Horavex.HLP";

/// What stands in the title element of a page; empty without one.
std::string TitleOfPage(const std::string& page);

/// The help file: a profile file with the sections "topics", the page of each context number in
/// the order of the contents, and "windows", the context number of each window by its name.
class HelpTopics {
public:
    explicit HelpTopics(std::string file) : file_(std::move(file)) {}

    /// The page of a context number; empty for an unknown one.
    std::string PageOf(int contextNumber) const;

    /// The context number of a window; an unknown window has the index.
    int NumberOf(const std::string& window) const;

    /// Every context number, in the order of the file.
    std::vector<int> Numbers() const;

    /// Every page once, in the order of the file.
    std::vector<std::string> Pages() const;

private:
    std::string file_;
};

/// Looks through the help of the program folder: that the help file names pages, that each is there
/// in English, and that each page of any language has a title. Never throws.
void CheckHelp(CheckReport& report);

}  // namespace horavex
