#pragma once

#include <cstdint>
#include <string>

namespace horavex {

/// Error codes of the key-value store; 0 is success.
inline constexpr std::int32_t kRegistrySuccess = 0;
inline constexpr std::int32_t kRegistryNotFound = 2;
inline constexpr std::int32_t kRegistryAccessDenied = 5;
inline constexpr std::int32_t kRegistryWriteFault = 29;

/// Access masks of an open: all rights, and reading alone.
inline constexpr std::int32_t kRegistryAllAccess = 0xF003F;
inline constexpr std::int32_t kRegistryRead = 131097;

/// Raw operations of the store of text values, in keys whose names are paths with backslashes.
/// Key and value names ignore letter case. No operation throws.
class RegistryStore {
public:
    virtual ~RegistryStore() = default;

    /// Whether the key may be opened with these rights: success, not found, or access denied.
    virtual std::int32_t OpenKey(const std::string& key, std::int32_t access) = 0;

    /// Makes the key if it is missing.
    virtual std::int32_t CreateKey(const std::string& key) = 0;

    /// The value's text; an empty valueName is the key's default value.
    virtual std::int32_t QueryValue(const std::string& key, const std::string& valueName,
                                    std::string& value) = 0;
    virtual std::int32_t SetValue(const std::string& key, const std::string& valueName,
                                  const std::string& value) = 0;
    virtual std::int32_t DeleteValue(const std::string& key, const std::string& valueName) = 0;
    virtual std::int32_t DeleteKey(const std::string& key) = 0;
};

}  // namespace horavex
