#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/files.h"

namespace horavex {

/// What lies in real folders, each read again only when it has changed.
class FolderNames {
public:
    explicit FolderNames(Files& files) : files_(files) {}

    /// Names in a folder as Files::List tells them; none for one that cannot be looked into.
    std::vector<std::string> In(const std::string& folder);

private:
    struct Known {
        std::string stamp;
        std::vector<std::string> names;
    };

    Files& files_;
    std::map<std::string, Known> known_;  // by folder
};

}  // namespace horavex
