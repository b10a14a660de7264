#include "config/help_topics.h"

#include <algorithm>
#include <string_view>

#include "base/fault.h"
#include "config/help.h"
#include "lang/profile_file.h"
#include "platform/platform.h"

namespace horavex {

namespace {

constexpr const char* kTopics = "topics";
constexpr const char* kWindows = "windows";

std::string ReadText(const std::string& path) {
    return StringOf(Ports().programFolder.ReadWhole(path, kLargestText));
}

void CheckPage(CheckReport& report, const std::string& path) {
    try {
        report.Expect(!TitleOfPage(ReadText(path)).empty(), path + ": has no title");
    } catch (const FileFault& fault) {
        report.Expect(false, path + ": " + fault.what());
    }
}

/// A page that a language lacks is read in English.
void CheckPageInAllLanguages(CheckReport& report, const std::string& page) {
    for (const std::string& language : Ports().programFolder.List("help")) {
        const std::string path = "help/" + language + "/" + page;
        if (Ports().programFolder.Exists(path)) {
            CheckPage(report, path);
        }
    }
    report.Expect(Ports().programFolder.Exists("help/English/" + page),
                  "help/English/" + page + ": is missing");
}

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

void CheckHelp(CheckReport& report) {
    try {
        const std::vector<std::string> pages = HelpTopics(ReadText(kHelpFileName)).Pages();
        report.Expect(!pages.empty(), std::string(kHelpFileName) + ": names no page");
        for (const std::string& page : pages) {
            CheckPageInAllLanguages(report, page);
        }
    } catch (const std::exception& fault) {  // a number that is none is no Fault
        report.Expect(false, std::string(kHelpFileName) + ": " + fault.what());
    }
}

}  // namespace horavex
