#pragma once

#include <string>

namespace horavex {

/// The program's folder as the system writes paths: the program folder's own root, with a
/// backslash at its end. Written by the start.
extern std::string programFolder;

/// The first half of the start, before there is a face: reads what is stored into the accepted
/// state, works the year out or asks for settings, and brings the icon up. A record whose language
/// or whose city does not exist is damaged: the start mends it in memory, says so, and lets the
/// user set it anew.
void SettingsForm_Load();

}  // namespace horavex
