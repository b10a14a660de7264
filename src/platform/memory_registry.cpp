#include "platform/memory_registry.h"

#include "base/text.h"

namespace horavex {

void MemoryRegistry::FailCall(int n, std::int32_t code) {
    call_.Pick(n);
    failureCode_ = code;
}

std::int32_t MemoryRegistry::OpenKey(const std::string& key, std::int32_t access) {
    Values* values = nullptr;
    return FindKey(key, access != kRegistryRead, values);
}

std::int32_t MemoryRegistry::CreateKey(const std::string& key) {
    if (call_.Count()) {
        return failureCode_;
    }
    if (deny_) {
        return kRegistryAccessDenied;
    }
    keys_.try_emplace(AsciiLower(key));
    return kRegistrySuccess;
}

std::int32_t MemoryRegistry::QueryValue(const std::string& key, const std::string& valueName,
                                        std::string& value) {
    Values* values = nullptr;
    if (const std::int32_t code = FindKey(key, false, values); code != kRegistrySuccess) {
        return code;
    }
    const auto at = values->find(AsciiLower(valueName));
    if (at == values->end()) {
        return kRegistryNotFound;
    }
    value = at->second;
    return kRegistrySuccess;
}

std::int32_t MemoryRegistry::SetValue(const std::string& key, const std::string& valueName,
                                      const std::string& value) {
    Values* values = nullptr;
    const std::int32_t code = FindKey(key, true, values);
    if (code == kRegistrySuccess) {
        (*values)[AsciiLower(valueName)] = value;
    }
    return code;
}

std::int32_t MemoryRegistry::DeleteValue(const std::string& key, const std::string& valueName) {
    Values* values = nullptr;
    if (const std::int32_t code = FindKey(key, true, values); code != kRegistrySuccess) {
        return code;
    }
    return values->erase(AsciiLower(valueName)) == 0 ? kRegistryNotFound : kRegistrySuccess;
}

std::int32_t MemoryRegistry::DeleteKey(const std::string& key) {
    Values* values = nullptr;
    const std::int32_t code = FindKey(key, true, values);
    if (code == kRegistrySuccess) {
        keys_.erase(AsciiLower(key));
    }
    return code;
}

std::int32_t MemoryRegistry::FindKey(const std::string& key, bool forWriting, Values*& values) {
    if (call_.Count()) {
        return failureCode_;
    }
    const auto at = keys_.find(AsciiLower(key));
    if (at == keys_.end()) {
        return kRegistryNotFound;
    }
    values = &at->second;
    return forWriting && deny_ ? kRegistryAccessDenied : kRegistrySuccess;
}

}  // namespace horavex
