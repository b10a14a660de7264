#include "base/text.h"
#include "base/utf8.h"
#include "fuzz/input.h"
#include "fuzz/target.h"
#include "fuzz/targets/targets.h"
#include "linux/registry_text.h"

namespace horavex {

namespace {

/// A value that is set is read again, by whoever reads the file next, too, and goes when erased.
void SetAndErase(RegistryText registry, const std::string& key, const std::string& name,
                 const std::string& value) {
    const auto before = registry.Value(key, name);
    registry.Set(key, name, value);
    RegistryText written(registry.Text());
    Require(written.Value(key, name) == value, "what is written is read");
    Require(written.EraseValue(key, name), "what is there can be erased");
    const auto other = RegistryText(written.Text()).Value(key, name);
    Require(!other || before, "what was erased is away");
}

}  // namespace

void FuzzRegistryFile(ByteView bytes) {
    FuzzInput input(bytes);
    const std::string key = input.TakeText();
    const std::string name = input.TakeText();
    const std::string value = input.TakeText();
    const RegistryText registry(input.TakeRest());
    Require(RegistryText(registry.Text()).Text() == registry.Text(), "a text is written as read");
    if (IsUtf8(key) && IsUtf8(name) && IsUtf8(value)) {
        SetAndErase(registry, key, name, value);
    }
}

}  // namespace horavex
