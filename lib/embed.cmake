# Writes a file as a source of the library: cmake -DFROM=<file> -DTO=<source> -P embed.cmake
file(READ ${FROM} bytes HEX)
string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
file(WRITE ${TO} "#include \"lib/published_months.h\"

namespace horavex {

const unsigned char kPublishedTable[] = {${bytes}};
const std::size_t kPublishedTableSize = sizeof kPublishedTable;

}  // namespace horavex
")
