#include <gtest/gtest.h>

#include "desktop/application.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (testing::FLAGS_gtest_list_tests) {
        return RUN_ALL_TESTS();  // the build lists the tests, and may have no display for windows
    }
    const horavex::Application application(argc, argv);
    return RUN_ALL_TESTS();
}
