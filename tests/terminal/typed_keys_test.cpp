#include "terminal/session/typed_keys.h"

#include <gmock/gmock.h>

#include <string>

namespace horavex {
namespace {

TEST(TypedKeys, ArePressedInTheirOrder) {
    PollEventLoop loop;
    std::u32string pressed;
    TypedKeys keys(loop, [&](const KeyPress& key) { pressed += key.character; });
    for (const char32_t letter : {U'a', U'b', U'c'}) {
        keys.Add(CharacterKey(letter));
    }
    loop.RunWhile([&] { return pressed.size() < 3; });
    EXPECT_EQ(pressed, U"abc");
}

TEST(TypedKeys, KeyBehindOneThatEndsAWaitIsPressedAfterIt) {
    PollEventLoop loop;
    std::u32string told;
    bool waits = false;
    TypedKeys keys(loop, [&](const KeyPress& key) {
        told += key.character;
        if (key.Is(U'o')) {  // opens a box
            waits = true;
            loop.RunWhile([&] { return waits; });
            told += U'!';
        }
        waits = waits && !key.Is(U'c');  // closes it
    });
    for (const char32_t letter : {U'o', U'c', U'n'}) {
        keys.Add(CharacterKey(letter));
    }
    loop.RunWhile([&] { return told.size() < 4; });
    EXPECT_EQ(told, U"oc!n");
}

}  // namespace
}  // namespace horavex
