#include "linux/freed_memory.h"

#include <malloc.h>

namespace horavex {

void ReturnFreedMemory() {
    ::malloc_trim(0);
}

}  // namespace horavex
