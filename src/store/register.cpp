#include "store/register.h"

#include "platform/platform.h"

namespace horavex {

namespace {

std::int32_t OpenForReading(const std::string& key) {
    const std::int32_t code = Ports().registry.OpenKey(key, kRegistryAllAccess);
    return code == kRegistryAccessDenied ? Ports().registry.OpenKey(key, kRegistryRead) : code;
}

std::string StoredName(const std::string& valueName) {
    return valueName == "*" ? std::string() : valueName;
}

}  // namespace

std::string RegistryKey(std::int32_t hive, const std::string& key) {
    std::string normal;
    CRegister::NormalizeKey(key, normal);
    return hive == kLocalMachine ? normal : std::to_string(hive) + "\\" + normal;
}

std::int32_t CRegister::REGGetSetting(std::int32_t hive, const std::string& key,
                                      const std::string& valueName, const std::string& defaultValue,
                                      std::string& value) const {
    value = defaultValue;
    const std::string fullKey = RegistryKey(hive, key);
    std::int32_t code = OpenForReading(fullKey);
    if (code != kRegistrySuccess) {
        return code;
    }
    std::string stored;
    code = Ports().registry.QueryValue(fullKey, StoredName(valueName), stored);
    if (code == kRegistrySuccess) {
        value = stored;
    }
    return code;
}

std::int32_t CRegister::REGSaveSetting(std::int32_t hive, const std::string& key,
                                       const std::string& valueName, const std::string& data,
                                       std::int32_t& result) const {
    const std::string fullKey = RegistryKey(hive, key);
    result = Ports().registry.CreateKey(fullKey);
    if (result == kRegistrySuccess) {
        result = Ports().registry.SetValue(fullKey, StoredName(valueName), data);
    }
    return result;
}

std::int32_t CRegister::REGDeleteSetting(std::int32_t hive, const std::string& key,
                                         const std::string& valueName, std::int32_t& result) const {
    const std::string fullKey = RegistryKey(hive, key);
    result = Ports().registry.OpenKey(fullKey, kRegistryAllAccess);
    if (result == kRegistrySuccess) {
        result = valueName.empty() ? Ports().registry.DeleteKey(fullKey)
                                   : Ports().registry.DeleteValue(fullKey, StoredName(valueName));
    }
    return result;
}

void CRegister::NormalizeKey(const std::string& key, std::string& normal) {
    normal = key;
    if (!normal.empty() && normal.front() == '\\') {
        normal.erase(0, 1);
    }
    if (!normal.empty() && normal.back() == '\\') {
        normal.pop_back();
    }
}

}  // namespace horavex
