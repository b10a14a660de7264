#pragma once

#include <sndfile.h>

#include "linux/late_library.h"

/// What the program calls of libsndfile, loaded with the first call.
namespace horavex::sndfile {

// Ready before any constructor that may call it.
inline constinit const LateLibrary kLibrary{"libsndfile.so.1"};

HORAVEX_LATE(kLibrary, sf_close);
HORAVEX_LATE(kLibrary, sf_error);
HORAVEX_LATE(kLibrary, sf_open);
HORAVEX_LATE(kLibrary, sf_open_fd);
HORAVEX_LATE(kLibrary, sf_open_virtual);
HORAVEX_LATE(kLibrary, sf_readf_float);
HORAVEX_LATE(kLibrary, sf_seek);
HORAVEX_LATE(kLibrary, sf_writef_float);

}  // namespace horavex::sndfile
