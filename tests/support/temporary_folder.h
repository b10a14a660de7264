#pragma once

#include <string>

namespace horavex {

/// A real folder of one test, empty at first; it goes with all that is in it.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& Path() const { return path_; }

    /// The path of a name in it.
    std::string operator/(const std::string& name) const { return path_ + "/" + name; }

private:
    std::string path_;
};

}  // namespace horavex
