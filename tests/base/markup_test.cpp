#include "base/markup.h"

#include <gtest/gtest.h>

namespace horavex {
namespace {

TEST(EscapedForMarkup, MarksStandForThemselves) {
    EXPECT_EQ(EscapedForMarkup("a < \"b\" & c > d"), "a &lt; &quot;b&quot; &amp; c &gt; d");
    EXPECT_EQ(EscapedForMarkup("العصر"), "العصر");
}

}  // namespace
}  // namespace horavex
