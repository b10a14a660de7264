#pragma once

#include <curl/curl.h>

#include "linux/late_library.h"

/// What the program calls of libcurl, loaded with the first call.
namespace horavex::curl {

// Ready before any constructor that may call it.
inline constinit const LateLibrary kLibrary{"libcurl.so.4"};

HORAVEX_LATE(kLibrary, curl_easy_cleanup);
HORAVEX_LATE(kLibrary, curl_easy_init);
HORAVEX_LATE(kLibrary, curl_easy_perform);
HORAVEX_LATE(kLibrary, curl_easy_setopt);
HORAVEX_LATE(kLibrary, curl_global_init);

}  // namespace horavex::curl
