#include "base/plain_text.h"

#include <gtest/gtest.h>

namespace horavex {
namespace {

TEST(PlainText, LosesItsControlsButTabsAndEnds) {
    EXPECT_EQ(WithoutControls("a\x1b[1mb\x7f\tc\r\n\fd"), "a[1mb\tc\n\fd");
    EXPECT_EQ(WithoutControls("a\xC2\x80"
                              "b\xC2\x9F"
                              "c"),
              "abc");
}

TEST(PlainText, KeepsWhatIsNoControl) {
    for (const char* text : {" ~", "\xC2\xA0\xC2\xBF", "\xC3\x80", "\xC2"}) {
        EXPECT_EQ(WithoutControls(text), text);
    }
}

TEST(PlainText, ControlsOfJsonStandAsEscapesOfFourDigits) {
    EXPECT_EQ(WithEscapedControls("\"\x1b\t\x7f\xC2\x85\""), "\"\\u001b\\u0009\\u007f\\u0085\"");
}

}  // namespace
}  // namespace horavex
