#pragma once

namespace horavex {

/// Lets the toolkit tell assistive tools what it cannot see by itself: which widgets are windows
/// and dialogues, and what the face has painted. Once, before the first window.
void TellAssistiveTools();

}  // namespace horavex
