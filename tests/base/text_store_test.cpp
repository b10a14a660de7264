#include "base/text_store.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace horavex {
namespace {

TEST(TextStore, TextsStayWhereTheyAreHoweverManyFollow) {
    TextStore store;
    const std::string_view first = store.Keep("first");
    const char* const place = first.data();
    const std::string_view longest = store.Keep(std::string(1 << 20, 'x'));
    for (int n = 0; n < 100000; ++n) {
        store.Keep("another one");
    }
    EXPECT_EQ(first, "first");
    EXPECT_EQ(first.data(), place);
    EXPECT_EQ(longest, std::string(1 << 20, 'x'));
}

TEST(TextStore, TextsStayWhenTheStoreIsMoved) {
    TextStore store;
    const std::string_view text = store.Keep("Mec", "ca");
    const TextStore moved = std::move(store);
    EXPECT_EQ(text, "Mecca");
}

TEST(TextStore, EmptyTextsAreKeptToo) {
    TextStore store;
    EXPECT_EQ(store.Keep(""), "");
    EXPECT_EQ(store.Keep("", "end"), "end");
}

}  // namespace
}  // namespace horavex
