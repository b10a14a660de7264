#pragma once

namespace horavex {

/// Rewrites the coordinates and the zones of the settings window in Arabic. Their former captions
/// go to Tag, where whoever parses them finds them while the language is Arabic. Callers ask for
/// it in that language alone, each time the captions have been made anew. Throws BoundsFault for
/// a coordinate of fewer than six words.
void Translate();

}  // namespace horavex
