#include "support/temporary_folder.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace horavex {

TemporaryFolder::TemporaryFolder()
    : path_(std::filesystem::temp_directory_path() / "horavex-test-XXXXXX") {
    if (::mkdtemp(path_.data()) == nullptr) {
        throw std::runtime_error("no temporary folder: " + path_);
    }
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code error;
    std::filesystem::remove_all(path_, error);
}

}  // namespace horavex
