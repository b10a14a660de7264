#pragma once

namespace horavex {

/// Rewrites the coordinates and the zones of the settings window in Arabic; their former captions
/// go to Tag. Coordinates are known by their English words: those that the text table words in
/// another language stay as they are. Callers ask for it in Arabic alone, each time the captions
/// have been made anew.
void Translate();

}  // namespace horavex
