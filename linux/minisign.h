#pragma once

#include <string>

#include "base/bytes.h"

namespace horavex {

/// Whether a signature of the tool minisign over these bytes is one by a key.
/// signature: the text of the file that the tool leaves beside the signed one, four lines; its
/// trusted comment is signed, too. key: what the tool prints of the public key, 56 signs of base64.
/// Signatures of the kind without a hash in front, which older versions made, count as none.
/// Anything else than a whole signature by that very key is false; never fails.
bool IsMinisigned(const Bytes& file, const std::string& signature, const std::string& key);

}  // namespace horavex
