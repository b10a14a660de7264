#include "config/help_topics.h"

#include <algorithm>
#include <string_view>

#include "config/help.h"
#include "lang/profile_file.h"

namespace horavex {

namespace {

constexpr const char* kTopics = "topics";
constexpr const char* kWindows = "windows";

}  // namespace

std::string TitleOfPage(const std::string& page) {
    constexpr std::string_view kOpening = "<title>";
    const std::size_t begin = page.find(kOpening);
    const std::size_t end = page.find("</title>");
    if (begin == std::string::npos || end == std::string::npos) {
        return {};
    }
    return page.substr(begin + kOpening.size(), end - begin - kOpening.size());
}

std::string HelpTopics::PageOf(int contextNumber) const {
    return std::string(
        FindProfileValue(file_, kTopics, std::to_string(contextNumber)).value_or(""));
}

int HelpTopics::NumberOf(const std::string& window) const {
    const auto number = FindProfileValue(file_, kWindows, window);
    return number ? std::stoi(std::string(*number)) : kHelpIndex;
}

std::vector<int> HelpTopics::Numbers() const {
    std::vector<int> numbers;
    for (const ProfileEntry& entry : ListProfileEntries(file_)) {
        if (entry.section == kTopics) {
            numbers.push_back(std::stoi(entry.key));
        }
    }
    return numbers;
}

std::vector<std::string> HelpTopics::Pages() const {
    std::vector<std::string> pages;
    for (const int number : Numbers()) {
        const std::string page = PageOf(number);
        if (std::find(pages.begin(), pages.end(), page) == pages.end()) {
            pages.push_back(page);
        }
    }
    return pages;
}

}  // namespace horavex
