#include "config/help_check.h"

#include "base/fault.h"
#include "config/help_topics.h"
#include "platform/platform.h"

namespace horavex {

namespace {

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
