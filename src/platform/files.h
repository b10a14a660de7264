#pragma once

#include <cstdint>
#include <limits>
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

/// The new content of a file. Until Commit the former file is there, and without a Commit nothing
/// of the new one stays.
class OutputFile {
public:
    virtual ~OutputFile() = default;

    /// Throws FileFault when the system fails the write.
    virtual void Append(ByteView bytes) = 0;

    /// Puts what was appended in the place of the former file. Once, and last. Throws FileFault;
    /// the former file is there then.
    virtual void Commit() = 0;
};

/// The largest file of a kind, in bytes; a larger one is none of that kind and is not read.
inline constexpr std::int32_t kLargestTable = 64 << 20;
inline constexpr std::int32_t kLargestText = 1 << 20;  // packs, registry, help pages
inline constexpr std::int32_t kLargestSound = std::numeric_limits<std::int32_t>::max();

/// Files and folders by real path. Every failure is a FileFault that names the path.
class Files {
public:
    virtual ~Files() = default;

    /// Throws FileFault for a missing file; never creates one.
    virtual std::unique_ptr<OpenFile> OpenForReading(const std::string& path) = 0;

    /// For a path of the user's choice. Throws FileFault for a missing folder, which may be a slip
    /// of the user's, and for what is there and is no file.
    virtual std::unique_ptr<OutputFile> OpenForWriting(const std::string& path) = 0;

    /// Replaces or makes the whole file, and its folder where that is missing. The bytes go to a
    /// temporary name first and are renamed: whatever happens, the old or the new file is there.
    virtual void WriteWhole(const std::string& path, ByteView bytes) = 0;

    /// Deleting a missing file is a FileFault.
    virtual void Delete(const std::string& path) = 0;

    /// True for a file or a folder.
    virtual bool Exists(const std::string& path) = 0;

    /// Tells one state of a file or of a folder's names from any other; empty where that is not
    /// known, and where one more change could leave it as it is.
    virtual std::string StampOf(const std::string& /*path*/) { return {}; }

    /// Names in a folder, without "." and "..", in the order of their bytes. A missing folder is
    /// empty.
    virtual std::vector<std::string> List(const std::string& folder) = 0;
};

/// Throws FileFault for an open file that is larger than its kind can be.
void RefuseLarger(OpenFile& file, const std::string& path, std::int64_t largest);

/// The whole content of a file. Throws FileFault as OpenForReading and ReadAt do, and for a file
/// larger than that.
Bytes ReadWhole(Files& files, const std::string& path, std::int64_t largest = kLargestTable);

/// Replaces or makes a whole file of the user's choice, as OpenForWriting does.
void WriteChosenFile(Files& files, const std::string& path, ByteView bytes);

}  // namespace horavex
