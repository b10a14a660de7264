#include "linux/late_library.h"

#include <dlfcn.h>

#include <stdexcept>

extern "C" {
// They stand for a library's header.
const char* sf_error_number(int number);
int horavex_has_no_such_function(int number);
}

namespace horavex {
namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;

constexpr const char* kThere = "libpulse.so.0";  // which no other test here looks into

constinit const LateLibrary library("libsndfile.so.1");

HORAVEX_LATE(library, sf_error_number);
HORAVEX_LATE(library, horavex_has_no_such_function);

bool IsLoaded(const char* name) {
    void* const handle = ::dlopen(name, RTLD_NOW | RTLD_NOLOAD);
    if (handle != nullptr) {
        ::dlclose(handle);
    }
    return handle != nullptr;
}

TEST(LateLibraryTest, IsLoadedWithTheFirstLookAndStays) {
    const LateLibrary there(kThere);
    EXPECT_FALSE(IsLoaded(kThere));
    void* const found = there.Find("pa_get_library_version");
    EXPECT_TRUE(IsLoaded(kThere));
    EXPECT_EQ(there.Find("pa_get_library_version"), found);
}

TEST(LateLibraryTest, FunctionIsCalledAsItsHeaderHasIt) {
    EXPECT_STREQ(sf_error_number(0), "No Error.");
}

TEST(LateLibraryTest, MissingLibraryIsNamed) {
    const LateLibrary missing("libhoravex-has-none.so.9");
    EXPECT_THAT([&] { missing.Find("sf_error"); },
                ThrowsMessage<std::runtime_error>(HasSubstr("libhoravex-has-none.so.9")));
}

TEST(LateLibraryTest, MissingFunctionIsNamed) {
    EXPECT_THAT([] { horavex_has_no_such_function(1); },
                ThrowsMessage<std::runtime_error>(HasSubstr("horavex_has_no_such_function")));
}

}  // namespace
}  // namespace horavex
