#include "document_blocks.h"

#include <gtest/gtest.h>

#include <fstream>

#include "build_folder.h"

namespace horavex {
namespace {

std::vector<std::string> ReadBlock(std::istream& document) {
    std::vector<std::string> lines;
    for (std::string line; std::getline(document, line) && line != "```";) {
        lines.push_back(line);
    }
    return lines;
}

}  // namespace

std::vector<std::string> BlockOf(const std::string& document, const std::string& language,
                                 const std::string& part) {
    std::ifstream file(SourcePath(document));
    for (std::string line; std::getline(file, line);) {
        if (!line.starts_with("```")) {
            continue;
        }
        const std::vector<std::string> lines = ReadBlock(file);
        if (line == "```" + language && TextOf(lines).find(part) != std::string::npos) {
            return lines;
        }
    }
    ADD_FAILURE() << "no block of " << language << " with " << part << " in " << document;
    return {};
}

std::string TextOf(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    return text;
}

}  // namespace horavex
