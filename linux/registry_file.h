#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "linux/registry_text.h"
#include "platform/files.h"
#include "platform/registry_store.h"

namespace horavex {

/// The key-value store in two files: the user's, in front of the machine-wide defaults. Only the
/// user's file is written, whole each time; a change from outside counts from the next call on. A
/// missing file is empty. Where the user's file cannot be read every call returns
/// kRegistryAccessDenied, and nothing is written over it; where the machine-wide one cannot be
/// read it counts as empty. A failed write returns kRegistryWriteFault; the old file or the new
/// one is then there, never a mixture.
class RegistryFile : public RegistryStore {
public:
    /// Tells one state of a file from any other; empty where that is not known.
    using StampOfFile = std::function<std::string(const std::string& path)>;

    /// With a stamp a file is read again only where it has another one. Without it each call reads
    /// anew.
    RegistryFile(Files& files, std::string userPath, std::string machinePath,
                 StampOfFile stampOf = {});

    /// Both masks are granted wherever the key is: the user's file takes the writes.
    std::int32_t OpenKey(const std::string& key, std::int32_t access) override;
    std::int32_t CreateKey(const std::string& key) override;
    std::int32_t QueryValue(const std::string& key, const std::string& valueName,
                            std::string& value) override;

    /// kRegistryWriteFault also for a name or value that is no UTF-8.
    std::int32_t SetValue(const std::string& key, const std::string& valueName,
                          const std::string& value) override;

    /// Deleting uncovers the machine-wide value or key; what only the machine-wide file has is
    /// kRegistryAccessDenied.
    std::int32_t DeleteValue(const std::string& key, const std::string& valueName) override;
    std::int32_t DeleteKey(const std::string& key) override;

private:
    using Edit = std::function<std::int32_t(RegistryText& user, const RegistryText& machine)>;

    /// Nothing where the file cannot be read.
    using Text = std::shared_ptr<const RegistryText>;

    /// What was read of a file last.
    struct Known {
        std::string stamp;
        Text text;
    };

    Text Load(const std::string& path) const;
    Text Read(const std::string& path) const;
    Text LoadMachine() const;
    std::int32_t Change(const Edit& edit);
    std::int32_t Save(const RegistryText& user);

    Files& files_;
    std::string userPath_;
    std::string machinePath_;
    StampOfFile stampOf_;
    mutable std::map<std::string, Known> known_;  // by path
};

}  // namespace horavex
