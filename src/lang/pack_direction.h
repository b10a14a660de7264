#pragma once

namespace horavex {

/// Whether the current pack's language is written from right to left.
bool PackRunsFromRight();

}  // namespace horavex
