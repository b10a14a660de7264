#pragma once

#include <string>

#include "linux/system_call.h"
#include "platform/files.h"

namespace horavex {

/// A pipe of the user's, which takes bytes as they come and has no former content to keep.
class PipeOutput : public OutputFile {
public:
    /// Throws FileFault for what is no pipe, and for one that nobody reads.
    explicit PipeOutput(const std::string& path);

    void Append(ByteView bytes) override;
    void Commit() override {}

private:
    std::string path_;
    Descriptor pipe_;
};

}  // namespace horavex
