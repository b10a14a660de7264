#pragma once

#include "linux/posix_files.h"

namespace horavex {

/// The path that stands for the standard output where a file is to be written.
inline constexpr const char* kStandardOutput = "-";

/// Files of the system, and what a command line writes into besides: the standard output, and pipes
/// that somebody reads.
class ConsoleFiles : public PosixFiles {
public:
    std::unique_ptr<OutputFile> OpenForWriting(const std::string& path) override;
};

}  // namespace horavex
