#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "linux/system_call.h"

namespace horavex {

/// The lines of a file, a pipe or a terminal, one after the other.
class LineReader {
public:
    /// path: "-" is the standard input. longest: bytes of a line that are kept. Throws FileFault.
    LineReader(const std::string& path, std::size_t longest);

    /// The next line without its end, LF or CR LF; a longer one without what is beyond the longest.
    /// Nothing behind the last. Throws FileFault.
    std::optional<std::string> Next();

private:
    bool Fill();

    std::string path_;
    Descriptor own_;  // open but for the standard input
    std::size_t longest_;
    std::string block_;
    std::size_t at_ = 0;  // in the block
};

}  // namespace horavex
