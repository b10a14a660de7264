#include "platform/program_folder.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <span>
#include <utility>

#include "base/fault.h"
#include "base/text.h"

namespace horavex {

namespace {

using Components = std::span<const std::string>;

std::vector<std::string> ComponentsOf(std::string path) {
    std::replace(path.begin(), path.end(), '\\', '/');
    std::vector<std::string> components = Split(path, '/');
    std::erase_if(components, [](const std::string& c) { return c.empty() || c == "."; });
    if (std::find(components.begin(), components.end(), "..") != components.end()) {
        throw FileFault(path, "leads out of the program folder");
    }
    return components;
}

// What cannot be looked into (a folder without rights, a link to itself) counts as missing, so that
// the installed folder stands in for it.
bool IsThere(Files& files, const std::string& path) {
    try {
        return files.Exists(path);
    } catch (const FileFault&) {
        return false;
    }
}

// Names of a folder that equal the wanted one but for letter case, the exact one in front.
std::vector<std::string> Spellings(FolderNames& names, const std::string& folder,
                                   const std::string& name) {
    std::vector<std::string> found = names.In(folder);
    std::erase_if(found, [&](const std::string& n) { return !EqualsIgnoringCase(n, name); });
    std::stable_partition(found.begin(), found.end(),
                          [&](const std::string& n) { return n == name; });
    return found;
}

// Where folders differ in letter case alone, each is searched.
std::optional<std::string> Find(Files& files, FolderNames& names, const std::string& folder,
                                Components path) {
    if (path.empty()) {
        return IsThere(files, folder) ? std::optional(folder) : std::nullopt;
    }
    for (const std::string& name : Spellings(names, folder, path.front())) {
        if (auto found = Find(files, names, folder + "/" + name, path.subspan(1))) {
            return found;
        }
    }
    return std::nullopt;
}

// The path of a new file below front: each component as front spells it, or else as back does,
// or else as given.
std::string NewPath(FolderNames& known, std::string front, std::string back, Components path) {
    for (const std::string& component : path) {
        std::vector<std::string> names = Spellings(known, front, component);
        const std::vector<std::string> behind = Spellings(known, back, component);
        names.insert(names.end(), behind.begin(), behind.end());
        const std::string& name = names.empty() ? component : names.front();
        front += "/" + name;
        back += "/" + (behind.empty() ? name : behind.front());
    }
    return front;
}

}  // namespace

ProgramFolder::ProgramFolder(Files& files, std::string userFolder, std::string installedFolder)
    : files_(files),
      names_(files),
      userFolder_(std::move(userFolder)),
      installedFolder_(std::move(installedFolder)) {}

std::unique_ptr<OpenFile> ProgramFolder::OpenForReading(const std::string& path) const {
    const std::string real = RealPath(path);
    auto file = files_.OpenForReading(real);
    RefuseLarger(*file, real, kLargestTable);
    return file;
}

std::string ProgramFolder::StampOf(const std::string& path) const {
    const std::string real = RealPath(path);
    const std::string stamp = files_.StampOf(real);
    return stamp.empty() ? "" : real + "\n" + stamp;
}

Bytes ProgramFolder::ReadWhole(const std::string& path, std::int64_t largest) const {
    return horavex::ReadWhole(files_, RealPath(path), largest);
}

bool ProgramFolder::Exists(const std::string& path) const {
    const auto components = ComponentsOf(path);
    return Find(files_, names_, userFolder_, components) ||
           Find(files_, names_, installedFolder_, components);
}

std::vector<std::string> ProgramFolder::List(const std::string& path) const {
    const auto components = ComponentsOf(path);
    std::vector<std::string> names;
    if (const auto folder = Find(files_, names_, userFolder_, components)) {
        names = names_.In(*folder);
    }
    if (const auto folder = Find(files_, names_, installedFolder_, components)) {
        const std::vector<std::string> users = names;
        std::ranges::copy_if(names_.In(*folder), std::back_inserter(names), [&](auto& name) {
            return std::ranges::none_of(users,
                                        [&](auto& user) { return EqualsIgnoringCase(user, name); });
        });
    }
    return names;
}

void ProgramFolder::WriteWhole(const std::string& path, ByteView bytes) const {
    files_.WriteWhole(UserPath(path), bytes);
}

void ProgramFolder::Delete(const std::string& path) const {
    files_.Delete(UserPath(path));
}

std::string ProgramFolder::RealPath(const std::string& path) const {
    const auto components = ComponentsOf(path);
    for (const std::string& folder : {userFolder_, installedFolder_}) {
        if (auto found = Find(files_, names_, folder, components)) {
            return *found;
        }
    }
    return UserPath(path);
}

std::string ProgramFolder::UserPath(const std::string& path) const {
    const auto components = ComponentsOf(path);
    const auto found = Find(files_, names_, userFolder_, components);
    return found ? *found : NewPath(names_, userFolder_, installedFolder_, components);
}

}  // namespace horavex
