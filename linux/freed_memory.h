#pragma once

namespace horavex {

/// Gives memory that was freed back to the system, also between what is still in use, where the
/// allocator keeps it for later. Takes some milliseconds.
void ReturnFreedMemory();

}  // namespace horavex
