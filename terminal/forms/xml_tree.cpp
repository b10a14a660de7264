#include "terminal/forms/xml_tree.h"

#include <algorithm>
#include <stdexcept>

namespace horavex {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

class XmlReader {
public:
    explicit XmlReader(std::string_view xml) : rest_(xml) {}

    XmlElement Root() {
        if (rest_.starts_with("<?")) {
            UpTo("?>");
        }
        SkipBlanks();
        return Element();
    }

private:
    /// What stands before the mark, which is passed.
    std::string_view UpTo(std::string_view mark) {
        const std::size_t at = rest_.find(mark);
        if (at == rest_.npos) {
            throw std::invalid_argument("XML without " + std::string(mark));
        }
        const std::string_view before = rest_.substr(0, at);
        rest_.remove_prefix(at + mark.size());
        return before;
    }

    void SkipBlanks() {
        rest_.remove_prefix(std::min(rest_.find_first_not_of(kBlanks), rest_.size()));
    }

    std::string_view Word() {
        const std::string_view word = rest_.substr(0, rest_.find_first_of(" \t\r\n=/>"));
        rest_.remove_prefix(word.size());
        return word;
    }

    XmlElement Element() {
        UpTo("<");
        XmlElement element;
        element.tag = Word();
        ReadAttributes(element);
        if (rest_.starts_with("/")) {
            UpTo(">");
            return element;
        }
        UpTo(">");
        ReadInside(element);
        return element;
    }

    void ReadAttributes(XmlElement& element) {
        SkipBlanks();
        while (!rest_.empty() && rest_.front() != '/' && rest_.front() != '>') {
            const std::string name(Word());
            UpTo("\"");
            element.attributes[name] = UpTo("\"");
            SkipBlanks();
        }
    }

    void ReadInside(XmlElement& element) {
        for (;;) {
            element.text += rest_.substr(0, rest_.find('<'));
            rest_.remove_prefix(std::min(rest_.find('<'), rest_.size()));
            if (rest_.starts_with("</")) {
                UpTo(">");
                return;
            }
            element.children.push_back(Element());
            element.text += element.children.back().text;
        }
    }

    std::string_view rest_;
};

}  // namespace

const XmlElement* XmlElement::Child(std::string_view childTag) const {
    const auto found = std::find_if(children.begin(), children.end(),
                                    [&](const XmlElement& child) { return child.tag == childTag; });
    return found == children.end() ? nullptr : &*found;
}

std::string XmlElement::Attribute(const std::string& name) const {
    const auto found = attributes.find(name);
    return found == attributes.end() ? std::string() : found->second;
}

XmlElement ReadXml(std::string_view xml) {
    return XmlReader(xml).Root();
}

}  // namespace horavex
