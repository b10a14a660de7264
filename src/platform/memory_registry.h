#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "platform/nth_call.h"
#include "platform/registry_store.h"

namespace horavex {

/// The key-value store in memory. Keys are known by their whole names; a key does not imply the
/// one above it.
class MemoryRegistry : public RegistryStore {
public:
    /// A restricted user: opens with all rights and all changes are denied, reading goes on.
    void DenyWriting(bool deny) { deny_ = deny; }

    /// The n-th call from now on does nothing and returns this code, 1-based, and those behind
    /// it pass again; 0 lets all pass. Every operation counts.
    void FailCall(int n, std::int32_t code = kRegistryWriteFault);

    /// Calls counted since the last FailCall.
    int Calls() const { return call_.Calls(); }

    std::int32_t OpenKey(const std::string& key, std::int32_t access) override;
    std::int32_t CreateKey(const std::string& key) override;
    std::int32_t QueryValue(const std::string& key, const std::string& valueName,
                            std::string& value) override;
    std::int32_t SetValue(const std::string& key, const std::string& valueName,
                          const std::string& value) override;
    std::int32_t DeleteValue(const std::string& key, const std::string& valueName) override;
    std::int32_t DeleteKey(const std::string& key) override;

private:
    using Values = std::map<std::string, std::string>;  // by lower-case name

    std::int32_t FindKey(const std::string& key, bool forWriting, Values*& values);

    std::map<std::string, Values> keys_;  // by lower-case name
    NthCall call_;
    std::int32_t failureCode_ = kRegistryWriteFault;
    bool deny_ = false;
};

}  // namespace horavex
