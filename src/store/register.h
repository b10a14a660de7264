#pragma once

#include <cstdint>
#include <string>

namespace horavex {

/// The machine-wide hive, the only one in use.
inline constexpr std::int32_t kLocalMachine = static_cast<std::int32_t>(0x80000002);

/// The program's one key.
inline constexpr const char* kSettingsKey = "\\Software\\Horavex\\Settings";

/// A key of a hive as the store names it: the hive is part of the path, so that one store serves
/// all of them.
std::string RegistryKey(std::int32_t hive, const std::string& key);

/// Text values of the registry. Every operation returns 0 or the store's error code and never
/// throws; callers let a failure pass.
class CRegister {
public:
    /// value takes what is stored, or defaultValue unless it was found. A valueName of "*" is
    /// the key's default value. A user without the right to write can still read.
    std::int32_t REGGetSetting(std::int32_t hive, const std::string& key,
                               const std::string& valueName, const std::string& defaultValue,
                               std::string& value) const;

    /// Makes the key if needed and writes data. result takes the returned code too.
    std::int32_t REGSaveSetting(std::int32_t hive, const std::string& key,
                                const std::string& valueName, const std::string& data,
                                std::int32_t& result) const;

    /// Deletes the value, with "*" the key's default value; an empty valueName deletes the key.
    std::int32_t REGDeleteSetting(std::int32_t hive, const std::string& key,
                                  const std::string& valueName, std::int32_t& result) const;

    /// Takes one leading and one trailing backslash off.
    static void NormalizeKey(const std::string& key, std::string& normal);
};

}  // namespace horavex
