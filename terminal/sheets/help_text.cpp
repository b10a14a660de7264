#include "terminal/sheets/help_text.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <set>

#include "base/utf8.h"

namespace horavex {

namespace {

/// The name of a mark in small letters: "h1", "/li".
std::string NameOf(std::string_view mark) {
    std::string name(mark.substr(0, mark.find_first_of(" \t\r\n")));
    if (name.size() > 1 && name.ends_with('/')) {
        name.pop_back();
    }
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return name;
}

/// "&amp;" and "&#8212;" as what they stand for; others stay.
std::string Character(std::string_view entity) {
    static const std::map<std::string_view, std::string> kKnown = {
        {"amp", "&"}, {"lt", "<"},    {"gt", ">"},    {"quot", "\""}, {"nbsp", " "},
        {"deg", "°"}, {"mdash", "—"}, {"ndash", "–"}, {"rarr", "→"},  {"larr", "←"}};
    if (entity.starts_with('#')) {
        const bool isHex = entity.size() > 1 && (entity[1] == 'x' || entity[1] == 'X');
        const std::string digits(entity.substr(isHex ? 2 : 1));
        const unsigned long code = std::strtoul(digits.c_str(), nullptr, isHex ? 16 : 10);
        std::string character;
        if (code > 0 && code < 0xd800) {
            AppendUtf8(character, static_cast<char32_t>(code));
        }
        return character;
    }
    const auto found = kKnown.find(entity);
    return found == kKnown.end() ? "&" + std::string(entity) + ";" : found->second;
}

class HelpReader {
public:
    std::vector<HelpParagraph> Read(std::string_view html) {
        for (std::size_t at = 0; at < html.size();) {
            if (html[at] == '<') {
                const std::size_t end = std::min(html.find('>', at), html.size());
                TakeMark(NameOf(html.substr(at + 1, end - at - 1)));
                at = end + 1;
            } else if (html[at] == '&') {
                at = TakeEntity(html, at);
            } else {
                TakeCharacter(html[at++]);
            }
        }
        EndParagraph();
        return std::move(paragraphs_);
    }

private:
    void TakeMark(const std::string& name) {
        static const std::set<std::string> kUnread = {"head", "style", "script", "title"};
        static const std::set<std::string> kBlocks = {
            "p",  "/p",  "div", "/div", "h1",  "/h1", "h2",   "/h2",   "h3",    "/h3",
            "ul", "/ul", "ol",  "/ol",  "li",  "/li", "tr",   "/tr",   "table", "/table",
            "br", "dt",  "dd",  "/dt",  "/dd", "hr",  "body", "/body", "pre",   "/pre"};
        if (kUnread.contains(name)) {
            unread_ = name;
        } else if (name == "/" + unread_) {
            unread_.clear();
        }
        if (kBlocks.contains(name)) {
            EndParagraph();
            isHeading_ = name == "h1" || name == "h2" || name == "h3";
        }
        if (name == "li") {
            text_ = "• ";
        } else if ((name == "td" || name == "th") && !text_.empty()) {
            text_ += " │ ";
        }
    }

    std::size_t TakeEntity(std::string_view html, std::size_t at) {
        constexpr std::size_t kLongest = 10;
        const std::size_t end = html.find(';', at);
        if (end == html.npos || end - at > kLongest) {
            TakeCharacter('&');
            return at + 1;
        }
        if (unread_.empty()) {
            text_ += Character(html.substr(at + 1, end - at - 1));
        }
        return end + 1;
    }

    void TakeCharacter(char c) {
        if (!unread_.empty()) {
            return;
        }
        const bool isBlank = c == ' ' || c == '\n' || c == '\t' || c == '\r';
        if (!isBlank) {
            text_ += c;
        } else if (!text_.empty() && !text_.ends_with(' ')) {
            text_ += ' ';
        }
    }

    void EndParagraph() {
        while (text_.ends_with(' ')) {
            text_.pop_back();
        }
        if (!text_.empty() && text_ != "•") {
            paragraphs_.push_back({text_, isHeading_});
        }
        text_.clear();
        isHeading_ = false;
    }

    std::vector<HelpParagraph> paragraphs_;
    std::string text_;
    std::string unread_;  // the mark whose inside is left out
    bool isHeading_ = false;
};

}  // namespace

std::vector<HelpParagraph> HelpParagraphs(std::string_view html) {
    return HelpReader().Read(html);
}

}  // namespace horavex
