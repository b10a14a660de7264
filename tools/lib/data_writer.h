#pragma once

#include <cstdint>
#include <string>

#include "base/bytes.h"
#include "base/code_page.h"

namespace horavex {

/// Collects texts into a packed file under the substitution of the data files.
class TextPacker {
public:
    /// largest: the highest position that the index can hold.
    explicit TextPacker(std::int64_t largest) : largest_(largest) {}

    /// Appends a text and returns its 1-based position. Throws TypeMismatchFault for a text that
    /// the code page lacks characters for, OverflowFault for one that begins too far behind.
    std::int64_t Add(const std::string& text, CodePage page);

    const Bytes& Packed() const { return packed_; }

private:
    std::int64_t largest_;
    Bytes packed_;
};

void AppendInt16(Bytes& bytes, std::int64_t value);
void AppendInt32(Bytes& bytes, std::int32_t value);

/// Writes a file of the folder, which is made where it is missing. Throws FileFault.
void WriteDataFile(const std::string& folder, const std::string& name, ByteView bytes);

/// Runs a tool's work; a fault ends it with one line on standard error and status 1.
int RunTool(const char* name, int argumentCount, int wanted, void (*work)(char** arguments),
            char** arguments);

}  // namespace horavex
