#pragma once

#include <QLocale>
#include <optional>

namespace horavex {

/// Gives the toolkit's own words, those of its dialogues, buttons and menus of text boxes, the
/// language of the current pack, and tells it as PackLocale does. They are English where the
/// toolkit's translations are not installed or do not have the language. Its font becomes one that
/// has the pack's letters. Widgets on view change at once.
std::optional<QLocale> SpeakLanguageOfPack();

}  // namespace horavex
