#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/folder_names.h"

namespace horavex {

/// The folder of the program's data, as two real folders laid over each other: the user's in
/// front of the installed one. Paths are relative to it, with either separator and doubled ones
/// allowed, and letter case ignored on every component: "Dat\AI.DAT", "\lang\Arabic.ini". A path
/// never leads out of the folder: ".." is a FileFault. A real folder that cannot be looked into
/// counts as empty.
class ProgramFolder {
public:
    /// Two equal folders make the one folder that is read and written (portable use).
    ProgramFolder(Files& files, std::string userFolder, std::string installedFolder);

    /// Opens the user's file, or else the installed one. Throws FileFault where neither is, and for
    /// one larger than kLargestTable.
    std::unique_ptr<OpenFile> OpenForReading(const std::string& path) const;

    /// Tells one state of the file that OpenForReading finds from any other, and from those of
    /// other files; empty where that is not known.
    std::string StampOf(const std::string& path) const;

    /// The whole content, found as OpenForReading finds it. Throws FileFault for a larger file.
    Bytes ReadWhole(const std::string& path, std::int64_t largest = kLargestTable) const;

    bool Exists(const std::string& path) const;

    /// Names in a folder, both real folders merged: a name that stands in both (letter case
    /// ignored) comes once, as the user's folder spells it. The user's names come first, each
    /// folder's in the order of Files::List. A missing folder is empty.
    std::vector<std::string> List(const std::string& path) const;

    /// Writes and deletes touch the user's folder alone. A write keeps the spelling of a name
    /// that is already there, or else the installed folder's.
    void WriteWhole(const std::string& path, ByteView bytes) const;
    void Delete(const std::string& path) const;

    /// The real path of an existing file or folder, the user's first; where there is none, the
    /// path that a write would make.
    std::string RealPath(const std::string& path) const;

private:
    std::string UserPath(const std::string& path) const;

    Files& files_;
    mutable FolderNames names_;
    std::string userFolder_;
    std::string installedFolder_;
};

}  // namespace horavex
