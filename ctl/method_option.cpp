#include "ctl/method_option.h"

#include "ctl/command.h"

namespace horavex {

namespace {

std::string KeysText(const std::vector<const Authority*>& authorities) {
    std::string text;
    for (const Authority* authority : authorities) {
        text += (text.empty() ? "" : ", ") + std::string(authority->key);
    }
    return text;
}

}  // namespace

const Authority& AuthorityOfText(const std::string& text) {
    const auto found = MatchingAuthorities(text);
    if (found.empty()) {
        RefuseUsage("no method matches \"" + text + "\"; the command methods lists them");
    }
    if (found.size() > 1) {
        RefuseUsage("\"" + text + "\" fits several methods: " + KeysText(found));
    }
    return *found.front();
}

}  // namespace horavex
