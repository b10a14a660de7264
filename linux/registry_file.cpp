#include "linux/registry_file.h"

#include <utility>

#include "base/fault.h"
#include "base/utf8.h"

namespace horavex {

namespace {

// What is left to say when the user's file does not have the thing.
std::int32_t CodeBehindUser(bool isInMachine) {
    return isInMachine ? kRegistryAccessDenied : kRegistryNotFound;
}

}  // namespace

RegistryFile::RegistryFile(Files& files, std::string userPath, std::string machinePath,
                           StampOfFile stampOf)
    : files_(files),
      userPath_(std::move(userPath)),
      machinePath_(std::move(machinePath)),
      stampOf_(std::move(stampOf)) {}

std::int32_t RegistryFile::OpenKey(const std::string& key, std::int32_t /*access*/) {
    const auto user = Load(userPath_);
    if (!user) {
        return kRegistryAccessDenied;
    }
    return user->HasKey(key) || LoadMachine()->HasKey(key) ? kRegistrySuccess : kRegistryNotFound;
}

std::int32_t RegistryFile::CreateKey(const std::string& key) {
    if (!IsUtf8(key)) {
        return kRegistryWriteFault;
    }
    return Change([&](RegistryText& user, const RegistryText& machine) {
        if (!machine.HasKey(key)) {
            user.AddKey(key);
        }
        return kRegistrySuccess;
    });
}

std::int32_t RegistryFile::QueryValue(const std::string& key, const std::string& valueName,
                                      std::string& value) {
    const auto user = Load(userPath_);
    if (!user) {
        return kRegistryAccessDenied;
    }
    auto found = user->Value(key, valueName);
    if (!found) {
        found = LoadMachine()->Value(key, valueName);
    }
    if (!found) {
        return kRegistryNotFound;
    }
    value = *found;
    return kRegistrySuccess;
}

std::int32_t RegistryFile::SetValue(const std::string& key, const std::string& valueName,
                                    const std::string& value) {
    if (!IsUtf8(valueName) || !IsUtf8(value)) {
        return kRegistryWriteFault;
    }
    return Change([&](RegistryText& user, const RegistryText& machine) {
        if (!user.HasKey(key) && !machine.HasKey(key)) {
            return kRegistryNotFound;
        }
        user.Set(key, valueName, value);
        return kRegistrySuccess;
    });
}

std::int32_t RegistryFile::DeleteValue(const std::string& key, const std::string& valueName) {
    return Change([&](RegistryText& user, const RegistryText& machine) {
        return user.EraseValue(key, valueName)
                   ? kRegistrySuccess
                   : CodeBehindUser(machine.Value(key, valueName).has_value());
    });
}

std::int32_t RegistryFile::DeleteKey(const std::string& key) {
    return Change([&](RegistryText& user, const RegistryText& machine) {
        return user.EraseKey(key) ? kRegistrySuccess : CodeBehindUser(machine.HasKey(key));
    });
}

// The stamp is taken first: a file that changes meanwhile has another one at the next call.
RegistryFile::Text RegistryFile::Load(const std::string& path) const {
    const std::string stamp = stampOf_ ? stampOf_(path) : "";
    if (stamp.empty()) {
        return Read(path);
    }
    const auto known = known_.find(path);
    if (known != known_.end() && known->second.stamp == stamp) {
        return known->second.text;
    }
    auto text = Read(path);
    if (text) {
        known_.insert_or_assign(path, Known{stamp, text});
    }
    return text;
}

RegistryFile::Text RegistryFile::Read(const std::string& path) const {
    try {
        return WithMemoryFaults([&] {
            return std::make_shared<const RegistryText>(
                files_.Exists(path) ? StringOf(ReadWhole(files_, path, kLargestText)) : "");
        });
    } catch (const Fault&) {
        return nullptr;
    }
}

RegistryFile::Text RegistryFile::LoadMachine() const {
    const Text text = Load(machinePath_);
    return text ? text : std::make_shared<const RegistryText>("");
}

std::int32_t RegistryFile::Change(const Edit& edit) {
    const Text before = Load(userPath_);
    if (!before) {
        return kRegistryAccessDenied;
    }
    RegistryText user = *before;
    const std::int32_t code = edit(user, *LoadMachine());
    return code == kRegistrySuccess && user.Text() != before->Text() ? Save(user) : code;
}

// What would be too large to be read back is not written.
std::int32_t RegistryFile::Save(const RegistryText& user) {
    const std::string text = user.Text();
    if (std::ssize(text) > kLargestText) {
        return kRegistryWriteFault;
    }
    known_.erase(userPath_);
    try {
        files_.WriteWhole(userPath_, BytesOf(text));
        return kRegistrySuccess;
    } catch (const FileFault&) {
        return kRegistryWriteFault;
    }
}

}  // namespace horavex
