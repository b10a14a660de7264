#include "platform/memory_registry.h"

namespace horavex {
namespace {

const std::string kKey = "Software\\Horavex\\Settings";

class MemoryRegistryTest : public testing::Test {
protected:
    std::string Query(const std::string& name) {
        std::string value = "untouched";
        code = registry.QueryValue(kKey, name, value);
        return value;
    }

    MemoryRegistry registry;
    std::int32_t code = kRegistrySuccess;
};

TEST_F(MemoryRegistryTest, KeyAndValueNamesIgnoreLetterCase) {
    EXPECT_EQ(registry.CreateKey(kKey), kRegistrySuccess);
    EXPECT_EQ(registry.SetValue("SOFTWARE\\horavex\\SETTINGS", "Language", "Arabic"),
              kRegistrySuccess);
    EXPECT_EQ(registry.OpenKey("software\\HORAVEX\\settings", kRegistryAllAccess),
              kRegistrySuccess);
    EXPECT_EQ(Query("LANGUAGE"), "Arabic");
}

TEST_F(MemoryRegistryTest, MissingKeyIsNotFoundByEveryOperation) {
    EXPECT_EQ(registry.OpenKey(kKey, kRegistryAllAccess), kRegistryNotFound);
    EXPECT_EQ(registry.OpenKey(kKey, kRegistryRead), kRegistryNotFound);
    EXPECT_EQ(registry.SetValue(kKey, "a", "b"), kRegistryNotFound);
    EXPECT_EQ(registry.DeleteValue(kKey, "a"), kRegistryNotFound);
    EXPECT_EQ(registry.DeleteKey(kKey), kRegistryNotFound);
    EXPECT_EQ(Query("a"), "untouched");
    EXPECT_EQ(code, kRegistryNotFound);
}

TEST_F(MemoryRegistryTest, MissingValueIsNotFoundAndLeavesTheResult) {
    registry.CreateKey(kKey);
    EXPECT_EQ(Query("Language"), "untouched");
    EXPECT_EQ(code, kRegistryNotFound);
    EXPECT_EQ(registry.DeleteValue(kKey, "Language"), kRegistryNotFound);
}

TEST_F(MemoryRegistryTest, EmptyNameIsTheDefaultValueAndEmptyTextIsAValue) {
    registry.CreateKey(kKey);
    registry.SetValue(kKey, "", "default");
    registry.SetValue(kKey, "Language", "");
    EXPECT_EQ(Query(""), "default");
    EXPECT_EQ(Query("Language"), "");
    EXPECT_EQ(code, kRegistrySuccess);
}

TEST_F(MemoryRegistryTest, DeletedValueIsGoneAndItsKeyStays) {
    registry.CreateKey(kKey);
    registry.SetValue(kKey, "a", "1");
    EXPECT_EQ(registry.DeleteValue(kKey, "A"), kRegistrySuccess);
    EXPECT_EQ(Query("a"), "untouched");
    EXPECT_EQ(registry.OpenKey(kKey, kRegistryRead), kRegistrySuccess);
}

TEST_F(MemoryRegistryTest, DeletedKeyTakesItsValuesAlong) {
    registry.CreateKey(kKey);
    registry.SetValue(kKey, "a", "1");
    EXPECT_EQ(registry.DeleteKey(kKey), kRegistrySuccess);
    registry.CreateKey(kKey);
    Query("a");
    EXPECT_EQ(code, kRegistryNotFound);
}

TEST_F(MemoryRegistryTest, CreatingAnExistingKeyKeepsItsValues) {
    registry.CreateKey(kKey);
    registry.SetValue(kKey, "a", "1");
    EXPECT_EQ(registry.CreateKey(kKey), kRegistrySuccess);
    EXPECT_EQ(Query("a"), "1");
}

TEST_F(MemoryRegistryTest, RestrictedUserReadsAndCannotWrite) {
    registry.CreateKey(kKey);
    registry.SetValue(kKey, "a", "1");
    registry.DenyWriting(true);
    EXPECT_EQ(registry.OpenKey(kKey, kRegistryAllAccess), kRegistryAccessDenied);
    EXPECT_EQ(registry.OpenKey(kKey, kRegistryRead), kRegistrySuccess);
    EXPECT_EQ(registry.CreateKey("other"), kRegistryAccessDenied);
    EXPECT_EQ(registry.SetValue(kKey, "a", "2"), kRegistryAccessDenied);
    EXPECT_EQ(registry.DeleteValue(kKey, "a"), kRegistryAccessDenied);
    EXPECT_EQ(registry.DeleteKey(kKey), kRegistryAccessDenied);
    EXPECT_EQ(Query("a"), "1");
    registry.DenyWriting(false);
    EXPECT_EQ(registry.OpenKey("other", kRegistryRead), kRegistryNotFound);
}

TEST_F(MemoryRegistryTest, EachCallCanFailAndThenDoesNothing) {
    const auto runAll = [this] {
        std::string value;
        return std::vector<std::int32_t>{
            registry.CreateKey(kKey),         registry.OpenKey(kKey, kRegistryRead),
            registry.SetValue(kKey, "a", ""), registry.QueryValue(kKey, "a", value),
            registry.DeleteValue(kKey, "a"),  registry.DeleteKey(kKey)};
    };
    for (std::size_t n = 1; n <= 6; ++n) {
        registry.FailCall(static_cast<int>(n), 1234);
        EXPECT_EQ(runAll()[n - 1], 1234);
        EXPECT_EQ(registry.Calls(), 6);
        registry.FailCall(0);
        runAll();
    }
    EXPECT_THAT(runAll(), testing::Each(kRegistrySuccess));
}

TEST_F(MemoryRegistryTest, FailedWriteKeepsTheOldValue) {
    registry.CreateKey(kKey);
    registry.SetValue(kKey, "a", "old");
    registry.FailCall(1);
    EXPECT_EQ(registry.SetValue(kKey, "a", "new"), kRegistryWriteFault);
    EXPECT_EQ(Query("a"), "old");
}

}  // namespace
}  // namespace horavex
