#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "linux/growing_file.h"

namespace horavex {

/// What a run that has not come to its end has left: records that are whole, from the beginning on.
struct WholeRecords {
    std::int64_t bytes = 0;
    std::uint64_t count = 0;
};

/// Those of JSON lines: each line that has its end. A missing file has none.
WholeRecords WholeJsonLines(const std::string& path);

/// Those of CSV, whose records are the rows with one number in front: all but the last one, which
/// nothing tells to be whole. None, without the head, where there is one record at most.
WholeRecords WholeCsvRecords(const std::string& path);

/// Where the records go.
class YearsOutput {
public:
    /// path: a file that begins with kept bytes of its own; empty for the standard output. Throws
    /// FileFault.
    YearsOutput(const std::string& path, std::int64_t keptBytes);

    /// False where the standard output takes no more. Throws FileFault where the file does not.
    bool Append(std::string_view record) const;

private:
    std::optional<GrowingFile> file_;
};

}  // namespace horavex
