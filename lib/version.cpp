#include "lib/horavex.h"

const char* horavex_version(void) {
    return HORAVEX_LIBRARY_VERSION;
}
