#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "base/bytes.h"

namespace horavex {

/// A file open for reading. Closes with its end of life.
class OpenFile {
public:
    virtual ~OpenFile() = default;

    /// Length in bytes. Throws FileFault when the system cannot tell.
    virtual std::int64_t Size() = 0;

    /// Up to count bytes from a 0-based offset; fewer where the file ends, none behind its end.
    /// Throws FileFault when the system fails the read.
    virtual Bytes ReadAt(std::int64_t offset, std::size_t count) = 0;
};

/// A file open for writing from its beginning on. What was written stays, whatever happens later.
/// Closes with its end of life.
class OutputFile {
public:
    virtual ~OutputFile() = default;

    /// Throws FileFault when the system fails the write; a part of the bytes may be out by then.
    virtual void Append(ByteView bytes) = 0;
};

/// Files and folders by real path. Every failure is a FileFault that names the path.
class Files {
public:
    virtual ~Files() = default;

    /// Throws FileFault for a missing file; never creates one.
    virtual std::unique_ptr<OpenFile> OpenForReading(const std::string& path) = 0;

    /// Makes the file, or empties the one that is there at once. Throws FileFault for a missing
    /// folder.
    virtual std::unique_ptr<OutputFile> OpenForWriting(const std::string& path) = 0;

    /// Replaces or makes the whole file, and its folder where that is missing. The bytes go to a
    /// temporary name first and are renamed: whatever happens, the old or the new file is there.
    virtual void WriteWhole(const std::string& path, ByteView bytes) = 0;

    /// Deleting a missing file is a FileFault.
    virtual void Delete(const std::string& path) = 0;

    /// True for a file or a folder.
    virtual bool Exists(const std::string& path) = 0;

    /// Names in a folder, without "." and "..", in the order of their bytes. A missing folder is
    /// empty.
    virtual std::vector<std::string> List(const std::string& folder) = 0;
};

/// The whole content of a file. Throws FileFault as OpenForReading and ReadAt do.
Bytes ReadWhole(Files& files, const std::string& path);

}  // namespace horavex
